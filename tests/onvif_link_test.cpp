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
using States = QList<DevStatus>;

/// ONVIF cameras behind real sockets, seen as the client sees them: through ClientSignals.
class OnvifLinkTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        m_states.clear(), m_serials.clear(), m_answers.clear(), m_trouble = {};
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
        columns<QString, QString, QString, QString>({"schemes", "wrong", "shown", "refusal"});
        rowsFrom("onvif_sign_ons.txt");
        row("invisible serial number", "", "serial SN-1\u200b", "none", "SignOn");
        row("user name that cannot be shown", "MD5 Token", "user operator\x01", "none refused", "Password");
        row("endless serial number", "", "serial " + QString(257, 'x'), "none", "SignOn");
    }

    void eachWayOfShowingTheAccountIsTriedOnce()
    {
        QFETCH(QString, schemes);
        QFETCH(QString, wrong);
        QFETCH(QString, shown);
        QFETCH(QString, refusal);
        ScriptedCamera camera(m_id);
        camera.schemes = schemes;
        camera.broken = wrong;
        camera.password += wrong.startsWith("password") ? "x" : "";
        camera.refusal = wrong.contains(' ') ? wrong.section(' ', 1) : camera.refusal;
        camera.stales = wrong.section("stale ", 1).toInt();
        camera.isNonceTakenOnce = wrong == "once";
        if (wrong == "once")
            camera.open.remove("GetServices"); // so that the sign-on itself uses a nonce twice
        camera.serial = wrong.startsWith("serial") ? wrong.mid(7) : "SN-1";
        camera.info.serialNumber = "SN-1";
        camera.info.userName = wrong.startsWith("user") ? wrong.mid(5) : "operator";
        const bool isGood = refusal.isEmpty();
        const int reason = QStringList({"", "Password", "SerialNumber", "SignOn"}).indexOf(refusal);
        if (!isGood)
            expectWarning("sign-on refused");
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[m_id], isGood ? m_online : m_refused);
        QCOMPARE(int(m_trouble.reason), reason);
        QCOMPARE(camera.shownFor("GetDeviceInformation"), shown);
        if (isGood)
            return ask("r", 0);
        m_transport->setDevices({camera.info}); // unchanged: nothing happens
        m_transport->connectAgain();
        QTRY_COMPARE(m_states[m_id], m_refused + m_refused);
        QCOMPARE(camera.shownFor("GetDeviceInformation"), shown + ',' + shown);
        QVERIFY(schemes != "Basic" || m_trouble.detail.contains("only HTTP Basic"));
    }

    void tokensFollowTheCamerasClockUntilTheyAreRefused()
    {
        ScriptedCamera camera(m_id);
        camera.schemes = "Token";
        camera.clockOffset = 3 * 3600;
        signOn(camera);
        camera.clockOffset = -3600; // somebody sets it
        ask("r", 0);
        QCOMPARE(camera.log.join(','),
                 "GetDiscoveryMode Token refused,GetSystemDateAndTime none,GetDiscoveryMode Token");
        camera.password = "changed";
        expectWarning("no longer accepts");
        ask("s", -61023);
        QTRY_COMPARE(m_states[m_id].constLast(), DevRefused);
        QCOMPARE(m_trouble.reason, TroubleReason::Password);
    }

    void aSerialNumberThatWasTakenOverStays()
    {
        use(20ms);
        ScriptedCamera camera(m_id);
        signOn(camera);
        QCOMPARE(m_serials.value(1), "SN-1"); // before it is online
        m_transport->setDevices({camera.info}); // somebody who has not heard of it yet
        QTRY_COMPARE(m_serials.value(2), "SN-1");
        DevInfo learned = camera.info;
        learned.serialNumber = "SN-1";
        m_transport->setDevices({learned});
        expectWarning("\"SN-2\", not \"SN-1\"");
        camera.dropped = "all";
        QTRY_VERIFY(m_states[m_id].contains(DevOffline));
        QCOMPARE(m_states[m_id].mid(0, 3), m_online + States{DevOffline}); // nothing had changed
        camera.serial = "SN-2"; // another camera at its address
        camera.dropped.clear();
        QTRY_COMPARE(m_states[m_id].constLast(), DevRefused);
        m_transport->setDevices({camera.info}); // the operator takes any again
        QTRY_COMPARE(m_states[m_id].constLast(), DevOnline);
    }

    void servicesStayOnTheHostOfTheRecord()
    {
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        const QString host = "127.0.0.1:" + QString::number(other.serverPort());
        for (const QString &path : {QString("/media?x=1"), QString("//a%20b"), QString(), QString(" ")}) {
            ScriptedCamera camera('a' + path);
            camera.schemes = "Token";
            camera.open.insert("GetDeviceInformation"); // only the media service asks for the account
            camera.mediaAddress = "https://u:p@" + host + path;
            if (path.startsWith("//"))
                camera.texts.remove("GetServices"); // an old camera
            m_transport->setDevices({camera.info});
            QTRY_COMPARE(m_states[camera.info.id], m_online);
            const QString asked = "GetProfiles@" + path;
            QCOMPARE(camera.shownFor("GetProfiles"),
                     path.startsWith('/') ? asked + " none refused," + asked + " Token" : "");
        }
        QVERIFY(!other.hasPendingConnections());
    }

    void aDoubtedAccountIsTriedByOneAtATime_data()
    {
        columns<bool, int>({"isNonceTakenOnce", "code"});
        row("nonces taken once", true, 0);
        row("another password", false, -61023);
    }

    void aDoubtedAccountIsTriedByOneAtATime()
    {
        QFETCH(bool, isNonceTakenOnce);
        QFETCH(int, code);
        ScriptedCamera camera(m_id);
        camera.schemes = "MD5";
        camera.isNonceTakenOnce = isNonceTakenOnce;
        signOn(camera);
        ask("before", 0); // with a nonce that is used from now on
        camera.log.clear();
        camera.password += code ? "x" : "";
        if (code)
            expectWarning("no longer accepts");
        for (const char *request : {"a", "b", "c", "d"})
            common_req(request, m_id, m_read); // all have left before the first is refused
        for (const char *request : {"a", "b", "c", "d"})
            QTRY_VERIFY(m_answers.value(request, 1) == code || (code && m_answers.value(request) == -61024));
        QTRY_COMPARE(m_states[m_id].constLast(), code ? DevRefused : DevOnline);
        if (code)
            QCOMPARE(camera.log.filter("refused").size(), 4 + 1 + 1); // one trial, and a look at the account itself
    }

    void theDeviceServiceHasNotMuchToTell()
    {
        ScriptedCamera camera(m_id);
        signOn(camera);
        ask("r", 0);
        camera.texts["GetDiscoveryMode"] += QString(300'000, ' ');
        ask("s", -61024);
    }

    void whatRequestsHoldTogetherIsLimited()
    {
        std::vector<std::unique_ptr<ScriptedCamera>> cameras;
        QList<DevInfo> devices;
        for (int i = 0; i < 12; ++i) {
            cameras.push_back(std::make_unique<ScriptedCamera>("cam" + QString::number(i)));
            cameras.back()->silent = "GetVideoEncoderConfigurations";
            cameras.back()->texts[cameras.back()->silent] = "any";
            const QString own = i % 2 ? QString(3'200'000, ' ') : QString("<a/>").repeated(49'000);
            cameras.back()->texts["GetProfiles"] = "<trt:GetProfilesResponse>" + own + "</trt:GetProfilesResponse>";
            devices.append(cameras.back()->info);
        }
        m_transport->setDevices(devices);
        for (const DevInfo &device : qAsConst(devices))
            QTRY_COMPARE(m_states[device.id], m_online);
        for (const DevInfo &device : qAsConst(devices))
            common_req(device.id, device.id, R"({"method":"stream_get_params"})");
        QTRY_COMPARE(m_answers.size(), 2); // 24 MiB: an element, however short, takes as much memory as a few words
        QCOMPARE(std::count(m_answers.cbegin(), m_answers.cend(), -61024), 2);
    }

    void anAccountThatMayNotDoSomethingIsLookedIntoOnce()
    {
        ScriptedCamera camera(m_id);
        camera.schemes = "MD5";
        camera.forbidden = "SetDiscoveryMode";
        signOn(camera);
        for (const char *request : {"r", "s"})
            ask(request, -61023, R"({"method":"netservice_onvif_set_discoveryinfo","param":{"discoveryflag":0}})");
        ask("t", 0);
        QCOMPARE(camera.shownFor("GetDeviceInformation"), "MD5");
        QCOMPARE(m_states[m_id], m_online);
    }

    void aCameraThatIsAwayIsMissed()
    {
        ScriptedCamera camera(m_id);
        camera.dropped = "GetDiscoveryMode";
        signOn(camera);
        ask("r", -61024);
        QTRY_COMPARE(camera.log.join(','), "GetSystemDateAndTime none"); // it is there
        camera.dropped = "all";
        ask("s", -61024); // after which it is looked for again and again
        QTRY_VERIFY(m_states[m_id].count(DevOffline) >= 2);
        QVERIFY(m_trouble.reason == TroubleReason::ConnectionLost && m_trouble.offlineSince > 0);
        camera.dropped.clear();
        QTRY_COMPARE(m_states[m_id].constLast(), DevOnline);
    }

    void anythingMayHappenAtAnyMoment()
    {
        for (const char *silent : {"GetSystemDateAndTime", "GetServices", "GetDeviceInformation", "GetDiscoveryMode"}) {
            ScriptedCamera camera(m_id);
            camera.schemes = "MD5";
            camera.silent = silent;
            use(60s);
            for (const char *name : {"first", "changed", "added again"}) {
                camera.log.clear(), m_states.clear();
                camera.info.name = name;
                m_transport->setDevices({camera.info});
                if (silent == QString("GetDiscoveryMode")) {
                    QTRY_VERIFY(m_states[m_id].contains(DevOnline));
                    common_req(name, m_id, m_read);
                }
                QTRY_VERIFY(!camera.shownFor(silent).isEmpty());
                if (name == QString("changed"))
                    m_transport->setDevices({});
            }
            const QDeadlineTimer soon(1s);
            ClientSdk::instance().setTransport(nullptr);
            QVERIFY(!soon.hasExpired() && m_answers.isEmpty()); // nobody answers for a device that is gone
        }
    }

    void requestsEndBeforeTheWaitingTimeDoes()
    {
        ScriptedCamera camera(m_id);
        camera.silent = "GetDiscoveryMode";
        signOn(camera);
        ClientSdk::instance().setRequestTimeout(1s);
        const QSignalSpy timeouts(&ClientSignals::instance(), &ClientSignals::signalRequestTimeout);
        expectWarning("too many requests");
        const QDeadlineTimer early(700ms);
        for (int i = 0; i < 33; ++i)
            common_req("many", m_id, m_read);
        ask("many", -61024);
        QVERIFY(early.hasExpired() && timeouts.isEmpty());
    }

    void bothKindsShareASite()
    {
        const auto threads = [] { return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); };
        auto *site = new SiteTransport;
        ClientSdk::instance().setTransport(std::unique_ptr<DeviceTransport>(site));
        TestDevice device(m_id);
        ScriptedCamera camera(m_id);
        site->setDevices({device.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevDefaultPassword}));
        const int withoutOnvif = threads();
        for (const char *request : {"r", "s"}) {
            m_states.clear();
            site->setDevices({camera.info});
            QTRY_COMPARE(m_states[m_id], States{DevOffline} + m_online);
            ask(request, 0);
            m_states.clear();
            site->setDevices({device.info});
            QTRY_COMPARE(m_states[m_id], States({DevOffline, DevConnecting, DevDefaultPassword}));
        }
        QVERIFY(device.received.isEmpty() && threads() == withoutOnvif + 1);
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
        m_transport = new OnvifTransport(nullptr, options);
        ClientSdk::instance().setTransport(std::unique_ptr<DeviceTransport>(m_transport));
    }

    /// The log is of what follows.
    void signOn(ScriptedCamera &camera)
    {
        m_transport->setDevices({camera.info});
        QTRY_COMPARE(m_states[camera.info.id], m_online);
        camera.log.clear();
    }

    void ask(const QString &requestId, int errorCode, const char *text = nullptr)
    {
        common_req(requestId, m_id, text ? text : m_read);
        QTRY_COMPARE(m_answers.value(requestId, 1), errorCode);
    }

    const QString m_id = "cam", m_read = R"({"method":"netservice_onvif_get_discoveryinfo"})";
    const States m_online{DevConnecting, DevOnline}, m_refused{DevConnecting, DevRefused};
    OnvifTransport *m_transport = nullptr;
    QHash<QString, States> m_states;
    LinkTrouble m_trouble; ///< the latest
    QMap<int, QString> m_serials; ///< by the number of states before them
    QHash<QString, int> m_answers; ///< error codes by request id
};

ORDA_TEST_MAIN(OnvifLinkTest)
#include "onvif_link_test.moc"
