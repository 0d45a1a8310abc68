#include "support/OrdaTest.h"
#include "support/TestDevice.h"

#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/Requests.h>
#include <vms_client_sdk/WebSocketTransport.h>

#include <atomic>

using namespace vms_sdk;
using namespace std::chrono_literals;

namespace {

using States = QList<DevStatus>;
using Reasons = QList<TroubleReason>;

QSslConfiguration tlsWith(const QString &certificate)
{
    const QString path = QFINDTESTDATA("support/certificates") + '/' + certificate;
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setPrivateKey(QSslKey(&file, QSsl::Ec));
    tls.setLocalCertificateChain(QSslCertificate::fromPath(path));
    return tls;
}

} // namespace

Q_DECLARE_METATYPE(Fault)

/// The WebSocket transport against devices behind real sockets, seen as the client sees it: through ClientSignals.
class DevicesTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        WebSocketOptions options; // as fast as a test likes it
        options.connectLimit = options.setUpLimit = 300ms;
        options.placeLimit = 50ms;
        options.firstBackOff = 1ms;
        options.lastBackOff = 20ms;
        options.pingInterval = 100ms;
        options.closeLimit = 50ms;
        options.maxSettingUp = 2;
        options.maxWaiting = 3;
        options.devicesPerThread = 1; // what holds for one thread holds for many
        options.maxThreads = 4;
        use(options);
        m_states.clear();
        m_troubles.clear();
        m_answers.clear();
        connect(&ClientSignals::instance(), &ClientSignals::signalDevTroubled, this,
                [this](const QString &id, const LinkTrouble &trouble) { m_troubles[id].append(trouble); });
        connect(&ClientSignals::instance(), &ClientSignals::signalDevStatusChanged, this,
                [this](const QString &id, DevStatus status) {
                    m_states[id].append(status);
                    // Known before the change that it explains, and as seldom.
                    const auto notOnline = std::count_if(m_states[id].cbegin(), m_states[id].cend(),
                                                         [](DevStatus state) { return !isOnlineStatus(state); });
                    if (!isOnlineStatus(status))
                        QCOMPARE(m_troubles[id].size(), int(notOnline));
                });
        connect(&ClientSignals::instance(), &ClientSignals::signalCommonRes, this,
                [this](const QString &id, const QString &text) { m_answers.append(id + '|' + text); });
    }

    void cleanup()
    {
        ClientSdk::instance().setTransport(nullptr);
        ClientSignals::instance().disconnect(this);
        OrdaTest::cleanup();
    }

    void signsOnAndCarriesTextsVerbatim()
    {
        TestDevice device(m_id);
        m_transport->setDevices({device.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevDefaultPassword}));
        common_req("{r}", m_id, "{\n    \"a\": \"\u00fc\"\n}\n");
        QTRY_COMPARE(device.received, QStringList("{r}\n{\n    \"a\": \"\u00fc\"\n}\n"));

        expectWarning("without an id line");
        expectWarning("binary");
        expectWarning("without a known state");
        for (int i = 0; i < 2; ++i) { // warned of once
            device.client->sendTextMessage("no id line");
            device.client->sendBinaryMessage("{r}\nbinary");
            device.client->sendTextMessage("\n{\"state\": 3}");
        }
        device.client->sendTextMessage("\n{\"state\": 6}");
        device.client->sendTextMessage("foreign\n{}"); // never sent to it
        device.client->sendTextMessage("{r}\n[1,\n2]");
        QTRY_COMPARE(m_answers, QStringList("{r}|[1,\n2]"));

        m_transport->setDevices({device.info}); // unchanged: nothing happens
        m_transport->setDevices({});
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevLocked, DevOffline}));
        QCOMPARE(device.dials, 1);
        QTRY_COMPARE(device.client->state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(int(device.client->closeCode()), normalCloseCode);
    }

    void refusalsAreNotRetriedUnasked_data()
    {
        columns<Fault, QString, TroubleReason>({"fault", "warning", "reason"});
        row("the device refuses", Refuses, "password", TroubleReason::Password);
        row("another device", OtherSerial, "\"\\\\u0009\", not \"SN-1\"", TroubleReason::SerialNumber);
        row("short nonce", ShortNonce, "nonce", TroubleReason::SignOn);
        row("our own proof sent back", NoProof, "does not prove", TroubleReason::SignOn);
        row("the welcome of an earlier sign-on", Replays, "does not prove", TroubleReason::SignOn);
    }

    void refusalsAreNotRetriedUnasked()
    {
        QFETCH(QString, warning);
        QFETCH(Fault, fault);
        QFETCH(TroubleReason, reason);
        TestDevice device(m_id), clock("clock");
        device.fault = fault;
        clock.fault = HangsUp; // lost and dialled again all the time
        expectWarning(warning);
        m_transport->setDevices({device.info, clock.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevRefused}));
        const int dials = clock.dials;
        QTRY_VERIFY(clock.dials > dials + 5);
        QCOMPARE(device.dials, 1);

        m_transport->connectAgain();
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevConnecting, DevRefused}));
        QCOMPARE(reasons(m_id), Reasons({reason, reason}));
        QCOMPARE(reasons("clock").count(TroubleReason::ConnectionLost), reasons("clock").size());
        device.fault = NoFault;
        device.info.name = "changed";
        m_transport->setDevices({device.info, clock.info});
        QTRY_COMPARE(m_states[m_id].mid(4), States({DevOffline, DevConnecting, DevDefaultPassword}));
        QCOMPARE(m_troubles[m_id].mid(4), QList<LinkTrouble>({{}, {}})); // nothing is left of the former record
        QCOMPARE(device.dials, 3);
    }

    /// For the devices that are meant, and for no others.
    void pausesAreCutShort()
    {
        WebSocketOptions options;
        options.firstBackOff = options.lastBackOff = 1min;
        use(options);
        TestDevice refused(m_id), lost("lost"), other("other");
        refused.fault = Refuses;
        lost.fault = other.fault = HangsUp;
        expectWarning("password");
        m_transport->setDevices({refused.info, lost.info, other.info});
        QTRY_COMPARE(m_states[m_id], States({DevConnecting, DevRefused}));
        QTRY_COMPARE(m_states["lost"], States({DevConnecting, DevOffline}));
        QTRY_COMPARE(m_states["other"], States({DevConnecting, DevOffline}));
        refused.fault = lost.fault = other.fault = NoFault;
        m_transport->connectDevicesAgain({m_id, "lost", "strange"});
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevConnecting, DevDefaultPassword}));
        QTRY_COMPARE(m_states["lost"].mid(2), States({DevConnecting, DevDefaultPassword}));
        m_transport->connectDevicesAgain({m_id}); // whose connection is left alone
        common_req("now", m_id, QString());
        QTRY_COMPARE(refused.received, QStringList("now\n"));
        QCOMPARE(QVector<int>({refused.dials, lost.dials, other.dials}), QVector<int>({2, 2, 1}));
    }

    void aLostDeviceReturnsAndGetsNothingLate()
    {
        TestDevice device(m_id);
        m_transport->setDevices({device.info});
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        device.fault = Refuses; // keeps it away until the request has been sent
        device.client->close();
        expectWarning("password");
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevOffline, DevConnecting, DevRefused}));
        QCOMPARE(reasons(m_id), Reasons({TroubleReason::ConnectionLost, TroubleReason::Password}));
        const qint64 since = m_troubles[m_id].at(1).offlineSince;
        QVERIFY(since >= before && since <= QDateTime::currentMSecsSinceEpoch());
        QCOMPARE(m_troubles[m_id].constLast().offlineSince, since); // further attempts do not change it
        common_req("late", m_id, QString());
        device.fault = NoFault;
        m_transport->connectAgain();
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        common_req("now", m_id, QString());
        QTRY_COMPARE(device.received, QStringList("now\n"));
    }

    void trafficAfterTheWelcomeEndsTheBackOff()
    {
        WebSocketOptions options;
        options.firstBackOff = 1ms;
        options.lastBackOff = 1min;
        use(options);
        TestDevice device(m_id);
        m_transport->setDevices({device.info});
        for (int losses = 0; losses < 18; ++losses) { // a back-off that grew each time would be minutes long in the end
            QTRY_VERIFY_WITH_TIMEOUT((common_req("r", m_id, QString()), device.received.size() > losses), 3000);
            while (device.received.size() > losses + 1)
                device.received.removeLast();
            device.client->sendTextMessage("\n{\"state\": 5}");
            device.client->close();
        }
    }

    void oversizeAndUnansweredPingsEndTheConnection()
    {
        TestDevice device(m_id), idle("idle"); // which answers the pings
        m_transport->setDevices({device.info, idle.info});
        QTRY_VERIFY(m_states[idle.info.id].endsWith(DevDefaultPassword));
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        expectWarning("too large");
        common_req("big", m_id, QString(maxFrameBytes, 'x'));
        common_req("small", m_id, QString());
        QTRY_COMPARE(device.received, QStringList("small\n"));

        expectWarning("SN-1 .*message over 1024 KiB");
        device.client->sendTextMessage("id\n" + QString(maxFrameBytes, 'x'));
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevOffline, DevConnecting, DevDefaultPassword}));
        QCOMPARE(m_answers, QStringList());

        device.stopReading();
        QTRY_COMPARE(m_states[m_id].mid(5), States({DevOffline, DevConnecting, DevDefaultPassword}));
        QCOMPARE(reasons(m_id), Reasons({TroubleReason::Limits, TroubleReason::ConnectionLost}));
        QCOMPARE(m_states[idle.info.id].size(), 2);
    }

    void silentDevicesAreGivenUpAndKeepNobodyWaiting()
    {
        const SilentDevices silent(4);
        QSet<QString> dialled;
        connect(&ClientSignals::instance(), &ClientSignals::signalDevStatusChanged, &silent.server,
                [&dialled](const QString &id, DevStatus status) {
                    status == DevConnecting ? void(dialled.insert(id)) : void(dialled.remove(id));
                    QVERIFY(dialled.size() <= 5); // two that are dialled, three that wait
                });
        TestDevice healthy(m_id);
        m_transport->setDevices(silent.infos + QList<DevInfo>{healthy.info});
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        for (const DevInfo &device : silent.infos) // given up, and dialled again
            QTRY_VERIFY(m_states[device.id].startsWith(DevConnecting) && m_states[device.id].count(DevConnecting) > 1);
        for (const DevInfo &device : silent.infos)
            QCOMPARE(reasons(device.id).constFirst(), TroubleReason::NoAnswer);
        QCOMPARE(m_states[m_id].size(), 2);
    }

    void aDeviceThatWasOnlineIsDialledBeforeThoseThatFailed()
    {
        WebSocketOptions options;
        options.setUpLimit = 100ms;
        options.placeLimit = 20ms;
        options.firstBackOff = 1ms;
        options.lastBackOff = 2ms;
        options.maxSettingUp = 1;
        options.maxWaiting = 0;
        use(options);
        const SilentDevices silent(20);
        TestDevice healthy(m_id);
        m_transport->setDevices(QList<DevInfo>{healthy.info} + silent.infos);
        const auto othersDialled = [&] {
            return std::accumulate(silent.infos.begin(), silent.infos.end(), 0, [this](int sum, const DevInfo &device) {
                return sum + m_states[device.id].count(DevConnecting);
            });
        };
        QTRY_VERIFY(othersDialled() > 20); // all have failed once
        const int before = othersDialled();
        healthy.client->close();
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevOffline, DevConnecting, DevDefaultPassword}));
        // Every fourth turn is theirs; behind them all it would wait for 20.
        QVERIFY2(othersDialled() - before <= 10, qPrintable(QString::number(othersDialled() - before)));
    }

    void networkWaitsForASlowWindowAndCutsNobody()
    {
        use({}); // nobody is cut for being slow in a second
        constexpr int devices = 40, answersEach = 5, characters = 390'000; // 156 MB as texts
        constexpr int allowed = (64 << 20) / (2 * characters); // what may wait for the window
        // Static, as the network thread may count on when the test has failed.
        static std::atomic<int> raised{0}, heard{0}, mostWaiting{0};
        connect(
            m_transport, &DeviceTransport::answered, m_transport,
            [] { mostWaiting = std::max(mostWaiting.load(), ++raised - heard); }, Qt::DirectConnection);
        std::vector<std::unique_ptr<TestDevice>> site;
        QList<DevInfo> infos;
        for (int i = 0; i < devices; ++i) {
            site.push_back(std::make_unique<TestDevice>(QStringLiteral("slow %1").arg(i)));
            infos.append(site.back()->info);
        }
        m_transport->setDevices(infos);
        for (const auto &device : site) {
            QTRY_VERIFY(m_states[device->info.id].endsWith(DevDefaultPassword));
            common_req(device->info.id, device->info.id, QString());
            QTRY_COMPARE(device->received.size(), 1);
        }
        connect(&ClientSignals::instance(), &ClientSignals::signalCommonRes, m_transport, [&site] {
            // The window hangs until the network has taken all that it takes, while the devices go on sending.
            const QDeadlineTimer patience(10s);
            for (int before = -1; heard == 0 && (raised != before || (raised <= allowed / 2 && !patience.hasExpired()));
                 QThread::msleep(300)) {
                before = raised;
                for (const auto &device : site)
                    device->client->flush();
            }
            ++heard;
        });
        const QString text = QStringLiteral("\n[\"%1\"]").arg(QString(characters, 'x'));
        for (const auto &device : site)
            for (int i = 0; i < answersEach; ++i)
                device->client->sendTextMessage(device->info.id + text);
        QTRY_COMPARE_WITH_TIMEOUT(heard.load(), devices * answersEach, 20'000);
        const int most = mostWaiting;
        QVERIFY2(most > allowed / 2 && most <= allowed + 2, qPrintable(QString::number(most)));
        for (const auto &device : site)
            QCOMPARE(m_states[device->info.id].size(), 2); // nobody was cut
    }

    void devicesThatAreTakenAwayAreNotDialledInTheGoing()
    {
        WebSocketOptions options; // which wait for seconds
        options.maxSettingUp = 2;
        options.devicesPerThread = 5;
        options.maxThreads = 4;
        use(options);
        const SilentDevices silent(40); // two are being set up, the others wait
        m_transport->setDevices(silent.infos);
        const auto areAll = [this](const States &states) {
            return m_states.size() == 2
                && std::all_of(m_states.cbegin(), m_states.cend(), [&](const States &own) { return own == states; });
        };
        QTRY_VERIFY(areAll({DevConnecting}));
        m_transport->setDevices({});
        QTRY_VERIFY(areAll({DevConnecting, DevOffline}));
        QTest::qWait(20); // nothing more comes
        QCOMPARE(m_states.size(), 2);
    }

    void certificatesAreTakenWhenPinnedOrTrusted_data()
    {
        columns<QString, QString, QString, QString>({"certificate", "pin", "trusted", "state"});
        rowsFrom("certificates.txt");
    }

    void certificatesAreTakenWhenPinnedOrTrusted()
    {
        QFETCH(QString, certificate);
        QFETCH(QString, pin);
        QFETCH(QString, trusted);
        QFETCH(QString, state);
        const bool isTrusted = !trusted.isEmpty(), isTaken = state == "taken";
        const bool isOld = QTest::currentDataTag() == QByteArray("TLS 1.1");
        QSslConfiguration tls = tlsWith(certificate + ".pem");
        tls.setProtocol(isOld ? QSsl::TlsV1_1 : QSsl::SecureProtocols);
        const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
        QSslConfiguration trusting = before;
        if (isTrusted)
            trusting.setCaCertificates({tls.localCertificate()});
        QSslConfiguration::setDefaultConfiguration(trusting);
        const QByteArray own = tls.localCertificate().digest(QCryptographicHash::Sha256).toHex(':');
        TestDevice device(m_id, &tls);
        device.info.fingerprint = pin == "own" ? QString::fromLatin1(own) : pin;
        if (!isTaken && !isOld)
            expectWarning("certificate");
        m_transport->setDevices({device.info});
        QTRY_COMPARE(m_states[m_id].mid(0, 2), States({DevConnecting, isTaken ? DevDefaultPassword : DevOffline}));
        if (!isTrusted) // else the handshake is over before the pin is compared
            QCOMPARE(device.dials, int(isTaken));
        QSslConfiguration::setDefaultConfiguration(before);
        if (!isTaken) {
            QCOMPARE(reasons(m_id).constFirst(), isOld ? TroubleReason::Tls : TroubleReason::Certificate);
            return;
        }
        common_req("id", m_id, QString(500'000, 'q')); // large texts in both directions
        QTRY_COMPARE(device.received.size(), 1);
        const QString answer = '"' + QString(800'000, 'x') + '"';
        device.client->sendTextMessage("id\n[" + answer + ']');
        QTRY_COMPARE(m_answers, QStringList("id|[" + answer + ']'));
    }

    void whatCannotBeReachedSaysWhy_data()
    {
        columns<QString, QByteArray, TroubleReason, QString>({"url", "answer", "reason", "detail"});
        const QByteArray none;
        row("nobody listens", "", none, TroubleReason::ConnectionRefused, "refused");
        row("a name that nobody knows", "ws://" + QString("much.too.long.").repeated(20), none,
            TroubleReason::NoAddress, "not found");
        row("no address", "nowhere", none, TroubleReason::NoAddress, "no address");
        row("no WebSocket", "", QByteArray("HTTP/1.1 404 Not Found\r\n\r\n"), TroubleReason::SignOn, "HTTP 404");
        row("no TLS", "wss", QByteArray("HTTP/1.1 400 Bad Request\r\n\r\n"), TroubleReason::Tls, "SSL");
        row("gone", "", QByteArray("x"), TroubleReason::ConnectionLost, "closed");
    }

    void whatCannotBeReachedSaysWhy()
    {
        QFETCH(QString, url);
        QFETCH(QByteArray, answer);
        QFETCH(TroubleReason, reason);
        QFETCH(QString, detail);
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        connect(&server, &QTcpServer::newConnection, &server, [&] {
            server.nextPendingConnection()->write(answer);
            server.findChild<QTcpSocket *>()->disconnectFromHost();
        });
        DevInfo device = SilentDevices(1).infos.constFirst();
        device.port = server.serverPort();
        device.tls = url == "wss";
        device.url = device.tls ? QString() : url;
        if (answer.isEmpty())
            server.close();
        if (detail == "no address")
            expectWarning(detail);
        m_transport->setDevices({device});
        QTRY_VERIFY(m_states[device.id].contains(DevOffline));
        QCOMPARE(reasons(device.id).constFirst(), reason);
        const LinkTrouble &trouble = m_troubles[device.id].constLast();
        QVERIFY2(trouble.detail.contains(detail), qPrintable(trouble.detail));
        QCOMPARE(trouble.offlineSince, 0);
    }

    /// Its numbers can be so large that one exchange of keys holds up the thread of all devices for a second.
    void plainDiffieHellmanIsNotOffered()
    {
        SilentDevices silent(1);
        silent.infos[0].tls = true;
        silent.infos[0].fingerprint = QString(64, '0');
        m_transport->setDevices(silent.infos);
        QTRY_VERIFY(silent.server.hasPendingConnections());
        QTcpSocket *client = silent.server.nextPendingConnection();
        QTRY_VERIFY(client->bytesAvailable() > 100);
        const QByteArray hello = client->readAll();
        const int ciphers = 44 + hello.at(43); // behind heads, version, random number and session
        const QByteArray offered =
            hello.mid(ciphers + 2, uchar(hello.at(ciphers)) * 256 + uchar(hello.at(ciphers + 1)));
        QVERIFY(offered.toHex().contains("c02f")); // ECDHE-RSA-AES128-GCM-SHA256
        for (int i = 0; i < offered.size(); i += 2)
            for (const char *plain : {"0033", "0039", "0067", "006b", "009e", "009f", "ccaa", "c09e", "c09f"})
                QVERIFY2(offered.mid(i, 2).toHex() != plain, plain);
    }

private:
    void use(const WebSocketOptions &options)
    {
        auto transport = std::make_unique<WebSocketTransport>(nullptr, options);
        m_transport = transport.get();
        ClientSdk::instance().setTransport(std::move(transport));
    }

    /// Of the attempts that have failed: what is told beside the states offline and refused.
    Reasons reasons(const QString &id) const
    {
        Reasons list;
        for (int i = 0, told = 0; i < m_states[id].size(); ++i) {
            if (isOnlineStatus(m_states[id].at(i)))
                continue;
            if (m_states[id].at(i) != DevConnecting)
                list.append(m_troubles[id].at(told).reason);
            ++told;
        }
        return list;
    }

    const QString m_id = "SN-1";
    WebSocketTransport *m_transport = nullptr;
    QHash<QString, States> m_states;
    QHash<QString, QList<LinkTrouble>> m_troubles;
    QStringList m_answers;
};

ORDA_TEST_MAIN(DevicesTest)
#include "devices_test.moc"
