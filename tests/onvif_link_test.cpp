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
const States online{DevConnecting, DevOnline}, refused{DevConnecting, DevRefused};

constexpr char readMode[] = R"({"method":"netservice_onvif_get_discoveryinfo"})";
constexpr char writeMode[] = R"({"method":"netservice_onvif_set_discoveryinfo","param":{"discoveryflag":0}})";

} // namespace

/// ONVIF cameras behind real sockets, seen as the client sees them: through ClientSignals.
class OnvifLinkTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        m_states.clear(), m_serials.clear(), m_answers.clear();
        ClientSdk::instance().setRequestTimeout(15s);
        use(60s);
        const ClientSignals &sdk = ClientSignals::instance();
        connect(&sdk, &ClientSignals::signalDevStatusChanged, this,
                [this](const QString &id, DevStatus status) { m_states[id].append(status); });
        connect(&sdk, &ClientSignals::signalDevTroubled, this,
                [this](const QString &, const LinkTrouble &trouble) { m_trouble = trouble; });
        connect(&sdk, &ClientSignals::signalDevIdentified, this,
                [this](const QString &id, const QString &serial) { m_serials[m_states[id].size()] = serial; });
        connect(&sdk, &ClientSignals::signalCommonRes, this, [this](const QString &id, const QString &text) {
            m_answers[id] = QJsonDocument::fromJson(text.toUtf8())["error"]["errorcode"].toInt(1);
        });
    }

    void cleanup()
    {
        ClientSdk::instance().setTransport(nullptr);
        ClientSignals::instance().disconnect(this);
        OrdaTest::cleanup();
    }

    void eachWayOfShowingTheAccountIsTriedOnce_data()
    {
        columns<QString, QString, QString, QString>({"schemes", "wrong", "shown", "warning"});
        row("MD5", "MD5", "", "none refused,MD5", "");
        row("the stronger", "MD5 SHA-256", "", "none refused,SHA-256", "");
        row("token", "Token", "", "none refused,Token", "");
        row("no account", "", "", "none", "");
        row("Digest first", "Basic Token MD5", "", "none refused,MD5", "");
        row("token after Digest", "MD5 Token", "MD5", "none refused,MD5 refused,Token", "");
        row("Digest, wrong", "SHA-256", "password", "none refused,SHA-256 refused", "does not accept");
        row("token, wrong", "Token", "password", "none refused,Token refused", "does not accept");
        row("both, wrong", "Token MD5", "password", "none refused,MD5 refused,Token refused", "does not accept");
        row("Basic only", "Basic", "", "none refused", "only HTTP Basic");
        row("no user name", "MD5 Token", "user", "none refused", "no user name");
    }

    void eachWayOfShowingTheAccountIsTriedOnce()
    {
        QFETCH(QString, schemes);
        QFETCH(QString, wrong);
        QFETCH(QString, shown);
        QFETCH(QString, warning);
        ScriptedCamera camera(m_id);
        camera.schemes = schemes.split(' ', Qt::SkipEmptyParts);
        camera.broken = wrong;
        camera.password += wrong == "password" ? "x" : "";
        camera.info.userName = wrong == "user" ? "" : "operator";
        if (!warning.isEmpty())
            expectWarning(warning);
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], warning.isEmpty() ? online : refused);
        QCOMPARE(camera.shownFor("GetDeviceInformation").join(','), shown);
        QCOMPARE(camera.log.first(), "GetSystemDateAndTime none");
        if (warning.isEmpty())
            return ask("r", 0);
        QCOMPARE(m_trouble.reason, warning.contains("Basic") ? TroubleReason::SignOn : TroubleReason::Password);
        m_transport->setDevices({camera.info}); // unchanged: nothing happens
        m_transport->connectAgain();
        QTRY_COMPARE(m_states[m_id], refused + refused);
        QCOMPARE(camera.shownFor("GetDeviceInformation").join(','), shown + ',' + shown);
    }

    void anOldNonceIsNoRefusal()
    {
        for (const int stales : {0, 2, 3}) {
            const QString id = QString::number(stales);
            ScriptedCamera camera(id);
            camera.schemes = QStringList("MD5");
            camera.open.remove("GetServices"); // so that the sign-on itself uses a nonce twice
            camera.isNonceTakenOnce = stales == 0;
            camera.stales = stales;
            if (stales > 2)
                expectWarning("does not accept");
            m_transport->setDevices({camera.info});
            QTRY_COMPARE(m_states[id], stales > 2 ? refused : online);
        }
    }

    void tokensFollowTheCamerasClock()
    {
        ScriptedCamera camera(m_id);
        camera.schemes = QStringList("Token");
        camera.clockOffset = 3 * 3600;
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], online);
        camera.clockOffset = -3600; // somebody sets it
        camera.log.clear();
        ask("r", 0);
        QCOMPARE(camera.log.join(','),
                 "GetDiscoveryMode Token refused,GetSystemDateAndTime none,GetDiscoveryMode Token");
    }

    void serialNumbersAreComparedOrTakenOver_data()
    {
        columns<QString, QString, TroubleReason>({"ofRecord", "ofCamera", "reason"});
        row("the same", "SN-1", "SN-1", TroubleReason::None);
        row("neither has one", "", "", TroubleReason::None);
        row("another", "SN-2", "SN-1", TroubleReason::SerialNumber);
        row("the camera has none", "SN-1", "", TroubleReason::SerialNumber);
        row("invisible", "", "SN\u200b1", TroubleReason::SignOn);
        row("endless", "", QString(257, 'x'), TroubleReason::SignOn);
    }

    void serialNumbersAreComparedOrTakenOver()
    {
        QFETCH(TroubleReason, reason);
        ScriptedCamera camera(m_id);
        camera.serial = *static_cast<QString *>(QTest::qData("ofCamera", qMetaTypeId<QString>()));
        camera.info.serialNumber = *static_cast<QString *>(QTest::qData("ofRecord", qMetaTypeId<QString>()));
        if (reason != TroubleReason::None)
            expectWarning("its serial number is");
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], reason == TroubleReason::None ? online : refused);
        QVERIFY(m_trouble.reason == reason && m_serials.isEmpty());
    }

    void aSerialNumberThatWasTakenOverStays()
    {
        use(20ms);
        ScriptedCamera camera(m_id);
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], online);
        QCOMPARE(m_serials.value(1), "SN-1"); // before it is online
        m_transport->setDevices({camera.info}); // somebody who has not heard of it yet
        QTRY_COMPARE(m_serials.value(2), "SN-1");
        DevInfo learned = camera.info;
        learned.serialNumber = "SN-1";
        m_transport->setDevices({learned});
        expectWarning("\"SN-2\", not \"SN-1\"");
        camera.isAway = true;
        QTRY_VERIFY(m_states[m_id].contains(DevOffline));
        QCOMPARE(m_states[m_id].mid(0, 3), online + States{DevOffline}); // by then it was unchanged
        camera.serial = "SN-2"; // another camera at its address
        camera.isAway = false;
        QTRY_COMPARE(m_states[m_id].constLast(), DevRefused);
        m_transport->setDevices({camera.info}); // the operator takes any again
        QTRY_COMPARE(m_states[m_id].constLast(), DevOnline);
    }

    void servicesStayOnTheHostOfTheRecord_data()
    {
        columns<QString, QString>({"address", "path"});
        row("another host", "http://127.0.0.1:%1/media?x=1", "/media?x=1");
        row("an account and a blank", "https://u:p@127.0.0.1:%1//a%20b", "//a%20b");
        row("no path", "http://127.0.0.1:%1", "");
        row("no address", "nonsense\\%1", "");
    }

    void servicesStayOnTheHostOfTheRecord()
    {
        QFETCH(QString, address);
        QFETCH(QString, path);
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        for (const bool isOld : {false, true}) { // without GetServices
            ScriptedCamera camera(isOld ? "old" : "new");
            camera.schemes = QStringList("Token");
            camera.open.insert("GetDeviceInformation"); // only the media service asks for the account
            camera.mediaAddress = address.replace("%1", QString::number(other.serverPort()));
            if (isOld)
                camera.unknown.insert("GetServices");
            m_transport->setDevices({camera.info});
            QTRY_COMPARE(m_states[camera.info.id], online);
            const QString asked = QString("GetProfiles@%1 none refused,GetProfiles@%1 Token").arg(path);
            QCOMPARE(camera.shownFor("GetProfiles").join(','), path.isEmpty() ? "" : asked);
            QVERIFY(!other.hasPendingConnections());
        }
    }

    void rightsThatAnAccountLacksAreLookedIntoOnce()
    {
        for (const QString &scheme : {QString("MD5"), QString("Token")}) {
            ScriptedCamera camera(m_id);
            camera.schemes = QStringList(scheme);
            camera.forbidden.insert("SetDiscoveryMode");
            use(60s);
            m_states.clear();
            m_transport->setDevices({camera.info});
            QTRY_COMPARE(m_states[m_id], online);
            camera.log.clear();
            ask(scheme + '1', -61023, writeMode);
            ask(scheme + '2', -61023, writeMode);
            ask(scheme + '3', 0);
            QCOMPARE(camera.shownFor("GetDeviceInformation").join(','), scheme);
            QCOMPARE(m_states[m_id], online);
        }
    }

    void anAccountThatIsRevokedIsRefused()
    {
        ScriptedCamera camera(m_id);
        camera.schemes = QStringList("MD5");
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], online);
        camera.password = "changed";
        expectWarning("no longer accepts");
        ask("r", -61023);
        QTRY_COMPARE(m_states[m_id].constLast(), DevRefused);
        QCOMPARE(m_trouble.reason, TroubleReason::Password);
    }

    void aCameraThatIsAwayIsMissed()
    {
        ScriptedCamera camera(m_id), witness("witness");
        camera.dropped.insert("GetDiscoveryMode");
        m_transport->setDevices({camera.info, witness.info});
        QTRY_COMPARE(m_states[m_id], online);
        camera.log.clear();
        ask("r", -61024);
        QTRY_COMPARE(camera.log.join(','), "GetSystemDateAndTime none"); // it is there
        camera.isAway = true;
        ask("s", -61024); // after which it is looked for again and again
        QTRY_VERIFY(m_states[m_id].count(DevOffline) >= 2);
        QVERIFY(m_trouble.reason == TroubleReason::ConnectionLost && m_trouble.offlineSince > 0);
        camera.isAway = false;
        QTRY_COMPARE(m_states[m_id].constLast(), DevOnline);
        QCOMPARE(m_states["witness"], online);
    }

    void anythingMayHappenAtAnyMoment_data()
    {
        columns<QString>({"silent"});
        for (const char *silent : {"GetSystemDateAndTime", "GetServices", "GetDeviceInformation", "GetDiscoveryMode"})
            row(silent, QString(silent));
    }

    void anythingMayHappenAtAnyMoment()
    {
        QFETCH(QString, silent);
        ScriptedCamera camera(m_id);
        camera.schemes = QStringList("MD5");
        camera.silent.insert(silent);
        for (const QString &name : {"first", "changed", "added again"}) {
            camera.log.clear(), m_states.clear();
            camera.info.name = name;
            m_transport->setDevices({camera.info});
            if (silent == "GetDiscoveryMode") {
                QTRY_VERIFY(m_states[m_id].contains(DevOnline));
                common_req(name, m_id, readMode);
            }
            QTRY_VERIFY(!camera.shownFor(silent).isEmpty());
            if (name == "changed")
                m_transport->setDevices({});
        }
        QElapsedTimer clock;
        clock.start();
        ClientSdk::instance().setTransport(nullptr);
        QVERIFY(clock.elapsed() < 1000 && m_answers.isEmpty()); // nobody answers for a device that is gone
    }

    void requestsEndBeforeTheWaitingTimeDoes()
    {
        ScriptedCamera camera(m_id);
        camera.silent.insert("GetDiscoveryMode");
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], online);
        ClientSdk::instance().setRequestTimeout(1s);
        const QSignalSpy timeouts(&ClientSignals::instance(), &ClientSignals::signalRequestTimeout);
        expectWarning("too many requests");
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 33; ++i)
            common_req("many", m_id, readMode);
        ask("r", 1, "{}");
        QTRY_COMPARE(m_answers.value("many"), -61024);
        QVERIFY(clock.elapsed() >= 700 && timeouts.isEmpty());
    }

    void bothKindsShareASite()
    {
        const auto threads = [] { return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); };
        ClientSdk::instance().setTransport(nullptr);
        const int before = threads();
        auto *site = new SiteTransport;
        ClientSdk::instance().setTransport(std::unique_ptr<DeviceTransport>(site));
        TestDevice device(m_id);
        ScriptedCamera camera(m_id), other("other");
        site->setDevices({device.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevDefaultPassword}));
        QCOMPARE(threads(), before + 1); // none for ONVIF yet
        for (const QString &request : {"r", "s", "t"}) {
            m_states.clear();
            site->setDevices({camera.info, other.info});
            QTRY_COMPARE(m_states[m_id], States{DevOffline} + online);
            ask(request, 0);
            m_states.clear();
            site->setDevices({device.info});
            QTRY_COMPARE(m_states[m_id], States({DevOffline, DevConnecting, DevDefaultPassword}));
        }
        QVERIFY(device.received.isEmpty() && threads() == before + 2);
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
        m_transport = new OnvifTransport(nullptr, options);
        ClientSdk::instance().setTransport(std::unique_ptr<DeviceTransport>(m_transport));
    }

    void ask(const QString &requestId, int errorCode, const char *text = readMode)
    {
        common_req(requestId, m_id, text);
        QTRY_COMPARE(m_answers.value(requestId, 1), errorCode);
    }

    const QString m_id = "cam";
    OnvifTransport *m_transport = nullptr;
    QHash<QString, States> m_states;
    LinkTrouble m_trouble; ///< the latest
    QMap<int, QString> m_serials; ///< by the number of states before them
    QHash<QString, int> m_answers; ///< error codes by request id
};

ORDA_TEST_MAIN(OnvifLinkTest)
#include "onvif_link_test.moc"
