#include "support/OrdaTest.h"
#include "support/ScriptedCamera.h"
#include "support/TestDevice.h"

#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/Requests.h>
#include <vms_client_sdk/SiteTransport.h>
#include <vms_client_sdk/onvif/OnvifTransport.h>

using namespace vms_sdk;
using namespace std::chrono_literals;

namespace {

using States = QList<DevStatus>;

constexpr char readMode[] = R"({"method":"netservice_onvif_get_discoveryinfo"})";
constexpr char writeMode[] = R"({"method":"netservice_onvif_set_discoveryinfo","param":{"discoveryflag":0}})";

/// How many threads of this process have the name.
int threadsCalled(const QByteArray &name)
{
    int count = 0;
    const auto threads = QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &thread : threads) {
        QFile comm("/proc/self/task/" + thread + "/comm");
        count += comm.open(QIODevice::ReadOnly) && comm.readAll().trimmed() == name ? 1 : 0;
    }
    return count;
}

} // namespace

/// ONVIF cameras behind real sockets, seen as the client sees them: through ClientSignals.
class OnvifLinkTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        m_states.clear();
        m_troubles.clear();
        m_serials.clear();
        m_answers.clear();
        m_timeouts = 0;
        ClientSdk::instance().setRequestTimeout(15s);
        use(60s);
        const ClientSignals &sdk = ClientSignals::instance();
        connect(&sdk, &ClientSignals::signalDevStatusChanged, this,
                [this](const QString &id, DevStatus status) { m_states[id].append(status); });
        connect(&sdk, &ClientSignals::signalDevTroubled, this,
                [this](const QString &id, const LinkTrouble &trouble) { m_troubles[id] = trouble; });
        connect(&sdk, &ClientSignals::signalDevIdentified, this, [this](const QString &id, const QString &serial) {
            QVERIFY(m_states[id].isEmpty() || m_states[id].constLast() != DevOnline || m_serials.contains(serial));
            m_serials.append(serial);
        });
        connect(&sdk, &ClientSignals::signalCommonRes, this, [this](const QString &id, const QString &text) {
            const QJsonObject answer = QJsonDocument::fromJson(text.toUtf8()).object();
            m_answers[id] = answer.value("error").toObject().value("errorcode").toInt(1);
        });
        connect(&sdk, &ClientSignals::signalRequestTimeout, this, [this] { ++m_timeouts; });
    }

    void cleanup()
    {
        ClientSdk::instance().setTransport(nullptr);
        ClientSignals::instance().disconnect(this);
        OrdaTest::cleanup();
    }

    void eachWayOfShowingTheAccountIsTriedOnce_data()
    {
        columns<QStringList, QString, QStringList, QString>({"schemes", "wrong", "shown", "warning"});
        const QString none = "none refused", password = "does not accept";
        row("MD5", QStringList("MD5"), "", QStringList({none, "MD5"}), "");
        row("SHA-256", QStringList("SHA-256"), "", QStringList({none, "SHA-256"}), "");
        row("the stronger", QStringList({"MD5", "SHA-256"}), "", QStringList({none, "SHA-256"}), "");
        row("token", QStringList("Token"), "", QStringList({none, "Token"}), "");
        row("no account", QStringList(), "", QStringList("none"), "");
        row("Digest before token", QStringList({"Token", "MD5"}), "", QStringList({none, "MD5"}), "");
        row("Digest before Basic", QStringList({"Basic", "MD5"}), "", QStringList({none, "MD5"}), "");
        row("token after Digest", QStringList({"MD5", "Token"}), "Digest", QStringList({none, "MD5 refused", "Token"}),
            "");
        row("Digest, wrong", QStringList("MD5"), "password", QStringList({none, "MD5 refused"}), password);
        row("token, wrong", QStringList("Token"), "password", QStringList({none, "Token refused"}), password);
        row("both, wrong", QStringList({"Token", "SHA-256", "MD5"}), "password",
            QStringList({none, "SHA-256 refused", "Token refused"}), password);
        row("Basic only", QStringList("Basic"), "", QStringList(none), "only HTTP Basic");
        row("no user name", QStringList({"MD5", "Token"}), "user", QStringList(none), "no user name");
    }

    void eachWayOfShowingTheAccountIsTriedOnce()
    {
        QFETCH(QStringList, schemes);
        QFETCH(QString, wrong);
        QFETCH(QStringList, shown);
        QFETCH(QString, warning);
        ScriptedCamera camera(m_id);
        camera.schemes = schemes;
        camera.password = wrong == "password" ? "changed" : camera.password;
        camera.broken = wrong == "Digest" ? QStringList("MD5") : QStringList();
        camera.info.userName = wrong == "user" ? "" : "operator";
        if (!warning.isEmpty())
            expectWarning(warning);
        m_transport->setDevices({camera.info});
        const DevStatus end = warning.isEmpty() ? DevOnline : DevRefused;
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, end}));
        QCOMPARE(camera.shownFor("GetDeviceInformation"), shown);
        QCOMPARE(camera.log.first(), "GetSystemDateAndTime none");
        if (end == DevOnline) {
            common_req("r", m_id, readMode);
            QTRY_COMPARE(m_answers.value("r", 1), 0);
            return;
        }
        QCOMPARE(m_troubles[m_id].reason, warning.contains("Basic") ? TroubleReason::SignOn : TroubleReason::Password);
        m_transport->setDevices({camera.info}); // unchanged: nothing happens
        m_transport->connectAgain();
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, end, DevConnecting, end}));
        QCOMPARE(camera.shownFor("GetDeviceInformation"), shown + shown);
    }

    void anOldNonceIsNoRefusal_data()
    {
        columns<int, bool, bool>({"stales", "isTakenOnce", "isOnline"});
        row("two nonces too old", 2, false, true);
        row("too old for ever", 3, false, false);
        row("each nonce taken once", 0, true, true);
    }

    void anOldNonceIsNoRefusal()
    {
        QFETCH(int, stales);
        QFETCH(bool, isTakenOnce);
        QFETCH(bool, isOnline);
        ScriptedCamera camera(m_id);
        camera.schemes = QStringList("MD5");
        camera.open.remove("GetServices"); // so that the sign-on itself uses a nonce twice
        camera.isNonceTakenOnce = isTakenOnce;
        camera.stales = stales;
        if (!isOnline)
            expectWarning("does not accept");
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, isOnline ? DevOnline : DevRefused}));
        common_req("r", m_id, readMode);
        if (isOnline)
            QTRY_COMPARE(m_answers.value("r", 1), 0);
    }

    void tokensFollowTheCamerasClock()
    {
        ScriptedCamera camera(m_id);
        camera.schemes = QStringList("Token");
        camera.clockOffset = 3 * 3600;
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevOnline}));
        camera.clockOffset = -3600; // somebody sets it
        camera.log.clear();
        common_req("r", m_id, readMode);
        QTRY_COMPARE(m_answers.value("r", 1), 0);
        QCOMPARE(camera.log, QStringList({"GetDiscoveryMode Token refused", "GetSystemDateAndTime none",
                                          "GetDiscoveryMode Token"}));
    }

    void serialNumbersAreComparedOrTakenOver_data()
    {
        columns<QString, QString, TroubleReason>({"ofRecord", "ofCamera", "reason"});
        row("the same", "SN-1", "SN-1", TroubleReason::None);
        row("taken over", "", "SN-1", TroubleReason::None);
        row("neither has one", "", "", TroubleReason::None);
        row("another", "SN-2", "SN-1", TroubleReason::SerialNumber);
        row("the camera has none", "SN-1", "", TroubleReason::SerialNumber);
        row("invisible", "", "SN\u200b1", TroubleReason::SignOn);
        row("endless", "", QString(257, 'x'), TroubleReason::SignOn);
    }

    void serialNumbersAreComparedOrTakenOver()
    {
        QFETCH(QString, ofRecord);
        QFETCH(QString, ofCamera);
        QFETCH(TroubleReason, reason);
        ScriptedCamera camera(m_id);
        camera.serial = ofCamera;
        camera.info.serialNumber = ofRecord;
        const bool isOnline = reason == TroubleReason::None, isTaken = isOnline && ofRecord != ofCamera;
        if (!isOnline)
            expectWarning("its serial number is");
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, isOnline ? DevOnline : DevRefused}));
        QCOMPARE(m_troubles[m_id].reason, isOnline ? TroubleReason::None : reason);
        QCOMPARE(m_serials, isTaken ? QStringList(ofCamera) : QStringList());
    }

    void aSerialNumberThatWasTakenOverStays()
    {
        use(20ms);
        ScriptedCamera camera(m_id);
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevOnline}));
        m_transport->setDevices({camera.info}); // somebody who has not heard of it yet
        QTRY_COMPARE(m_serials, QStringList({"SN-1", "SN-1"}));
        DevInfo learned = camera.info;
        learned.serialNumber = "SN-1";
        m_transport->setDevices({learned});
        QCOMPARE(m_states[m_id].size(), 2);

        expectWarning("\"SN-2\", not \"SN-1\"");
        camera.isAway = true;
        QTRY_COMPARE(m_states[m_id].value(2), DevOffline);
        camera.serial = "SN-2"; // another camera at its address
        camera.isAway = false;
        QTRY_COMPARE(m_states[m_id].constLast(), DevRefused);
        m_transport->setDevices({camera.info}); // the operator takes any again
        QTRY_COMPARE(m_states[m_id].constLast(), DevOnline);
        QCOMPARE(m_serials.constLast(), "SN-2");
    }

    void servicesStayOnTheHostOfTheRecord_data()
    {
        columns<QString, QString>({"address", "path"});
        row("another host", "http://127.0.0.1:%1/media?x=1", "/media?x=1");
        row("another scheme", "https://127.0.0.1:%1/a%%20b", "/a%20b");
        row("an account in the address", "http://u:p@127.0.0.1:%1//media", "//media");
        row("no path", "http://127.0.0.1:%1", "");
        row("no address", "nonsense\\", "");
    }

    void servicesStayOnTheHostOfTheRecord()
    {
        QFETCH(QString, address);
        QFETCH(QString, path);
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        for (const bool isOld : {false, true}) { // without GetServices
            const QString id = isOld ? "old" : "new";
            ScriptedCamera camera(id);
            camera.schemes = QStringList("Token");
            camera.open.insert("GetDeviceInformation"); // only the media service asks for the account
            camera.mediaAddress = address.contains("%1") ? address.replace("%%", "%").arg(other.serverPort()) : address;
            if (isOld)
                camera.unknown.insert("GetServices");
            m_transport->setDevices({camera.info});
            QTRY_COMPARE(m_states[id], States({DevConnecting, DevOnline}));
            const QString asked = "@" + path + ' ';
            QCOMPARE(camera.shownFor("GetProfiles"),
                     path.isEmpty()
                         ? QStringList()
                         : QStringList({"GetProfiles" + asked + "none refused", "GetProfiles" + asked + "Token"}));
            QVERIFY(!other.hasPendingConnections());
        }
    }

    void whatAnAccountMayNotDoIsItsCallersBusiness()
    {
        for (const QString scheme : {"MD5", "Token"}) {
            ScriptedCamera camera(scheme);
            camera.schemes = QStringList(scheme);
            camera.forbidden.insert("SetDiscoveryMode");
            m_transport->setDevices({camera.info});
            QTRY_COMPARE(m_states[scheme], States({DevConnecting, DevOnline}));
            camera.log.clear();
            for (const QString &request : {scheme + '1', scheme + '2'}) {
                common_req(request, scheme, writeMode);
                QTRY_COMPARE(m_answers.value(request, 1), -61023);
            }
            QTRY_COMPARE(camera.shownFor("GetDeviceInformation").size(), scheme == "MD5" ? 1 : 1); // looked up once
            QCOMPARE(m_states[scheme].size(), 2);

            expectWarning("no longer accepts");
            use(60s); // a minute has passed
            m_states.clear();
            m_transport->setDevices({camera.info});
            QTRY_COMPARE(m_states[scheme], States({DevConnecting, DevOnline}));
            camera.password = "changed";
            common_req(scheme + '3', scheme, readMode);
            QTRY_COMPARE(m_states[scheme].constLast(), DevRefused);
            QCOMPARE(m_answers.value(scheme + '3', 1), -61023);
            QCOMPARE(m_troubles[scheme].reason, TroubleReason::Password);
        }
    }

    void aCameraIsOfflineAfterThreeMisses()
    {
        use(20ms);
        ScriptedCamera camera(m_id), witness("witness");
        m_transport->setDevices({camera.info, witness.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevOnline}));
        QTRY_VERIFY(camera.log.count("GetSystemDateAndTime none") > 5);
        camera.isAway = true;
        QTRY_VERIFY(m_states[m_id].count(DevOffline) >= 2); // found away, tried again
        QCOMPARE(m_troubles[m_id].reason, TroubleReason::ConnectionLost);
        QVERIFY(m_troubles[m_id].offlineSince > 0);
        camera.isAway = false;
        QTRY_COMPARE(m_states[m_id].constLast(), DevOnline);
        QCOMPARE(m_states["witness"], States({DevConnecting, DevOnline}));
    }

    void aRequestThatFailsIsFollowedByALook()
    {
        ScriptedCamera camera(m_id);
        camera.dropped.insert("GetDiscoveryMode");
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevOnline}));
        camera.log.clear();
        common_req("r", m_id, readMode);
        QTRY_COMPARE(m_answers.value("r", 1), -61024);
        QTRY_COMPARE(camera.log, QStringList("GetSystemDateAndTime none"));
        camera.isAway = true; // three looks, and the rest of the minute is not waited for
        common_req("s", m_id, readMode);
        QTRY_COMPARE(m_states[m_id].value(2), DevOffline);
    }

    void aRecordMayChangeAtAnyMoment_data()
    {
        columns<QString>({"operation"});
        for (const char *operation :
             {"GetSystemDateAndTime", "GetServices", "GetDeviceInformation", "GetDiscoveryMode"})
            row(operation, QString(operation));
    }

    void aRecordMayChangeAtAnyMoment()
    {
        QFETCH(QString, operation);
        ScriptedCamera camera(m_id);
        camera.schemes = QStringList("MD5");
        camera.silent.insert(operation);
        const auto hang = [&](const QString &requestId) {
            camera.log.clear();
            m_transport->setDevices({camera.info});
            if (operation == "GetDiscoveryMode") {
                QTRY_COMPARE(m_states[m_id].value(m_states[m_id].size() - 1), DevOnline);
                common_req(requestId, m_id, readMode);
            }
            QTRY_VERIFY(!camera.shownFor(operation).isEmpty());
        };
        hang("r");
        camera.info.name = "changed";
        hang("s");
        QCOMPARE(m_states[m_id].count(DevOffline), 1);
        m_transport->setDevices({});
        QTRY_COMPARE(m_states[m_id].count(DevOffline), 2);
        camera.info.name.clear();
        hang("t");
        QElapsedTimer clock;
        clock.start();
        ClientSdk::instance().setTransport(nullptr);
        QVERIFY(clock.elapsed() < 1000);
        QVERIFY(m_answers.isEmpty()); // nobody answers for a device that is gone
    }

    void requestsEndBeforeTheWaitingTimeDoes()
    {
        ScriptedCamera camera(m_id);
        camera.silent.insert("GetDiscoveryMode");
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevOnline}));
        ClientSdk::instance().setRequestTimeout(1s);
        QElapsedTimer clock;
        clock.start();
        common_req("r", m_id, readMode);
        QTRY_COMPARE(m_answers.value("r", 1), -61024);
        QVERIFY(clock.elapsed() >= 700 && m_timeouts == 0);

        expectWarning("too many requests");
        for (int i = 0; i < 33; ++i)
            common_req("many", m_id, readMode);
        camera.isAway = true;
        camera.silent.clear();
        QTRY_COMPARE(m_answers.value("many", 1), -61024);
    }

    void bothKindsShareASite()
    {
        auto transport = std::make_unique<SiteTransport>();
        SiteTransport *site = transport.get();
        ClientSdk::instance().setTransport(std::move(transport));
        TestDevice device(m_id);
        ScriptedCamera camera(m_id), other("other");
        site->setDevices({device.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevDefaultPassword}));
        QCOMPARE(threadsCalled("vms_sdk onvif"), 0);
        common_req("r", m_id, readMode);
        QTRY_COMPARE(device.received.size(), 1);

        for (int i = 0; i < 3; ++i) {
            m_states.clear();
            site->setDevices({camera.info, other.info});
            QTRY_COMPARE(m_states[m_id], States({DevOffline, DevConnecting, DevOnline}));
            QCOMPARE(threadsCalled("vms_sdk onvif"), 1);
            const QString request = QString::number(i);
            common_req(request, m_id, readMode);
            QTRY_COMPARE(m_answers.value(request, 1), 0);
            m_states.clear();
            site->setDevices({device.info, other.info});
            QTRY_COMPARE(m_states[m_id], States({DevOffline, DevConnecting, DevDefaultPassword}));
        }
        QCOMPARE(device.received.size(), 1);
        site->setDevices({});
        QTRY_COMPARE(m_states["other"].constLast(), DevOffline);
        QTRY_COMPARE(m_states[m_id].constLast(), DevOffline);
    }

private:
    /// A new transport, as fast as a test likes it.
    void use(std::chrono::milliseconds pollInterval)
    {
        OnvifOptions options;
        options.pollInterval = pollInterval;
        options.pollAgain = 5ms;
        options.firstBackOff = 1ms;
        options.lastBackOff = 20ms;
        options.maxSigningOn = 1;
        auto transport = std::make_unique<OnvifTransport>(nullptr, options);
        m_transport = transport.get();
        ClientSdk::instance().setTransport(std::move(transport));
    }

    const QString m_id = "cam";
    OnvifTransport *m_transport = nullptr;
    QHash<QString, States> m_states;
    QHash<QString, LinkTrouble> m_troubles; ///< the latest
    QStringList m_serials;
    QHash<QString, int> m_answers; ///< error codes by request id
    int m_timeouts = 0;
};

ORDA_TEST_MAIN(OnvifLinkTest)
#include "onvif_link_test.moc"
