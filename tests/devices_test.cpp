#include "support/OrdaTest.h"

#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/Requests.h>
#include <vms_client_sdk/SignOn.h>
#include <vms_client_sdk/WebSocketTransport.h>

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWebSocket>
#include <QWebSocketServer>

#include <atomic>

using namespace vms_sdk;
using namespace std::chrono_literals;

namespace {

using States = QList<DevStatus>;

enum Fault
{
    NoFault,
    HangsUp,
    Refuses,
    OtherSerial,
    ShortNonce,
    NoProof,
    Replays
};

QSslConfiguration tlsWith(const QString &certificate)
{
    const QString path = QFINDTESTDATA("support/certificates") + QLatin1Char('/') + certificate;
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setPrivateKey(QSslKey(&file, QSsl::Ec));
    tls.setLocalCertificateChain(QSslCertificate::fromPath(path));
    return tls;
}

/// A device that can be told to behave badly at sign-on. What it says later is the test's business.
class TestDevice : public QObject
{
public:
    Fault fault = NoFault;
    int dials = 0;
    QStringList received;
    QWebSocket *client = nullptr;
    DevInfo info;

    explicit TestDevice(const QString &id, const QSslConfiguration *tls = nullptr)
        : m_server(QString(), tls ? QWebSocketServer::SecureMode : QWebSocketServer::NonSecureMode)
    {
        if (tls)
            m_server.setSslConfiguration(*tls);
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QWebSocketServer::newConnection, this, &TestDevice::greet);
        info.id = id;
        info.serialNumber = info.userName = info.password = id;
        info.ip = QStringLiteral("127.0.0.1");
        info.port = m_server.serverPort();
        info.tls = tls;
    }

    /// On the present connection: pings lie unread.
    void stopReading()
    {
        const auto sockets = m_server.findChildren<QTcpSocket *>();
        for (QTcpSocket *socket : sockets)
            socket->blockSignals(true);
    }

private:
    void greet()
    {
        ++dials;
        client = m_server.nextPendingConnection();
        client->setParent(this);
        m_nonce = fault == ShortNonce ? QByteArray("c2hvcnQ=") : makeNonce();
        connect(client, &QWebSocket::textMessageReceived, this, &TestDevice::take);
        if (fault == HangsUp)
            client->close();
        else
            client->sendTextMessage(
                QStringLiteral("{\"hello\":{\"serial\":\"%1\",\"nonce\":\"%2\"}}")
                    .arg(fault == OtherSerial ? QStringLiteral("\\t") : info.id, QString::fromLatin1(m_nonce)));
    }

    void take(const QString &message)
    {
        const QJsonObject auth =
            QJsonDocument::fromJson(message.toUtf8()).object().value(QLatin1String("auth")).toObject();
        if (auth.isEmpty())
            return received.append(message);
        const auto text = [&auth](const char *key) { return auth.value(QLatin1String(key)).toString().toLatin1(); };
        if (fault == Refuses || text("user") != "SN-1"
            || text("proof") != signOnProof(SignOnSide::Client, info.password, m_nonce, text("nonce")))
            return client->close(QWebSocketProtocol::CloseCode(4401));
        const QByteArray nonce = fault == Replays ? QByteArray("b2YgYW4gZWFybGllciBkaWFsbGluZw==") : text("nonce");
        const QByteArray proof = signOnProof(SignOnSide::Device, info.password, m_nonce, nonce);
        client->sendTextMessage(QStringLiteral("{\"welcome\":{\"state\":5,\"proof\":\"%1\"}}")
                                    .arg(QString::fromLatin1(fault == NoProof ? text("proof") : proof)));
    }

    QByteArray m_nonce;
    QWebSocketServer m_server;
};

} // namespace

Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(QSsl::SslProtocol)

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
        use(options);
        m_states.clear();
        m_answers.clear();
        connect(&ClientSignals::instance(), &ClientSignals::signalDevStatusChanged, this,
                [this](const QString &id, DevStatus status) { m_states[id].append(status); });
        connect(&ClientSignals::instance(), &ClientSignals::signalCommonRes, this,
                [this](const QString &id, const QString &text) { m_answers.append(id + QLatin1Char('|') + text); });
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
        common_req(QStringLiteral("{r}"), m_id, QStringLiteral("{\n    \"a\": \"\u00fc\"\n}\n"));
        QTRY_COMPARE(device.received, QStringList(QStringLiteral("{r}\n{\n    \"a\": \"\u00fc\"\n}\n")));

        expectWarning(QStringLiteral("without an id line"));
        expectWarning(QStringLiteral("binary"));
        expectWarning(QStringLiteral("without a known state"));
        for (int i = 0; i < 2; ++i) { // warned of once
            device.client->sendTextMessage(QStringLiteral("no id line"));
            device.client->sendBinaryMessage("{r}\nbinary");
            device.client->sendTextMessage(QStringLiteral("\n{\"state\": 3}"));
        }
        device.client->sendTextMessage(QStringLiteral("\n{\"state\": 6}"));
        device.client->sendTextMessage(QStringLiteral("foreign\n{}")); // never sent to it
        device.client->sendTextMessage(QStringLiteral("{r}\n[1,\n2]"));
        QTRY_COMPARE(m_answers, QStringList(QStringLiteral("{r}|[1,\n2]")));

        m_transport->setDevices({device.info}); // unchanged: nothing happens
        m_transport->setDevices({});
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevLocked, DevOffline}));
        QCOMPARE(device.dials, 1);
    }

    void refusalsAreNotRetriedUnasked_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<QString>("warning");
        QTest::newRow("the device refuses") << Refuses << QStringLiteral("password");
        QTest::newRow("another device") << OtherSerial << QStringLiteral("\"\\\\u0009\", not \"SN-1\"");
        QTest::newRow("short nonce") << ShortNonce << QStringLiteral("nonce");
        QTest::newRow("our own proof sent back") << NoProof << QStringLiteral("does not prove");
        QTest::newRow("the welcome of an earlier sign-on") << Replays << QStringLiteral("does not prove");
    }

    void refusalsAreNotRetriedUnasked()
    {
        QFETCH(QString, warning);
        QFETCH(Fault, fault);
        TestDevice device(m_id), clock(QStringLiteral("clock"));
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
        device.fault = NoFault;
        device.info.name = QStringLiteral("changed");
        m_transport->setDevices({device.info, clock.info});
        QTRY_COMPARE(m_states[m_id].mid(4), States({DevOffline, DevConnecting, DevDefaultPassword}));
        QCOMPARE(device.dials, 3);
    }

    void aLostDeviceReturnsAndGetsNothingLate()
    {
        TestDevice device(m_id);
        m_transport->setDevices({device.info});
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        device.fault = Refuses; // keeps it away until the request has been sent
        device.client->close();
        expectWarning(QStringLiteral("password"));
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevOffline, DevConnecting, DevRefused}));
        common_req(QStringLiteral("late"), m_id, QString());
        device.fault = NoFault;
        m_transport->connectAgain();
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        common_req(QStringLiteral("now"), m_id, QString());
        QTRY_COMPARE(device.received, QStringList(QStringLiteral("now\n")));
    }

    void oversizeAndUnansweredPingsEndTheConnection()
    {
        TestDevice device(m_id);
        m_transport->setDevices({device.info});
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        expectWarning(QStringLiteral("too large"));
        common_req(QStringLiteral("big"), m_id, QString(maxFrameBytes, QLatin1Char('x')));
        common_req(QStringLiteral("small"), m_id, QString());
        QTRY_COMPARE(device.received, QStringList(QStringLiteral("small\n")));

        expectWarning(QStringLiteral("message over 1024 KiB"));
        device.client->sendTextMessage(QStringLiteral("id\n") + QString(maxFrameBytes, QLatin1Char('x')));
        QTRY_COMPARE(m_states[m_id].mid(2), States({DevOffline, DevConnecting, DevDefaultPassword}));
        QCOMPARE(m_answers, QStringList());

        device.stopReading();
        QTRY_COMPARE(m_states[m_id].mid(5), States({DevOffline, DevConnecting, DevDefaultPassword}));
    }

    void floodEndsTheConnectionAndNobodyElseNotices()
    {
        TestDevice device(m_id);
        TestDevice other(QStringLiteral("SN-2"));
        other.info.userName = m_id;
        m_transport->setDevices({device.info, other.info});
        QTRY_VERIFY(device.client && other.client && m_states.size() == 2 && m_states[m_id].endsWith(DevDefaultPassword)
                    && m_states[other.info.id].endsWith(DevDefaultPassword));
        expectWarning(QStringLiteral("SN-1 .*faster than"));
        for (int i = 0; i < 100'000; ++i)
            device.client->sendTextMessage(QStringLiteral("x\n"));
        QTRY_VERIFY(m_states[m_id].size() > 2);
        QCOMPARE(m_states[m_id].at(2), DevOffline);
        common_req(QStringLiteral("id"), other.info.id, QString());
        QTRY_COMPARE(other.received, QStringList(QStringLiteral("id\n")));
        other.client->sendTextMessage(QStringLiteral("id\n{}"));
        QTRY_COMPARE(m_answers, QStringList(QStringLiteral("id|{}")));
        QCOMPARE(m_states[other.info.id].size(), 2);
    }

    void silentDevicesAreGivenUpAndKeepNobodyWaiting()
    {
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        QSet<QString> dialled;
        connect(&ClientSignals::instance(), &ClientSignals::signalDevStatusChanged, &silent,
                [&dialled](const QString &id, DevStatus status) {
                    status == DevConnecting ? void(dialled.insert(id)) : void(dialled.remove(id));
                    QVERIFY(dialled.size() <= 5); // two that are dialled, three that wait
                });
        QList<DevInfo> devices;
        for (int i = 0; i < 4; ++i) {
            devices.append(TestDevice(QString::number(i)).info);
            devices.last().port = silent.serverPort();
        }
        TestDevice healthy(m_id);
        m_transport->setDevices(devices + QList<DevInfo>{healthy.info});
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        for (const DevInfo &device : qAsConst(devices)) // given up, and dialled again
            QTRY_VERIFY(m_states[device.id].startsWith(DevConnecting) && m_states[device.id].count(DevConnecting) > 1);
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
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        TestDevice healthy(m_id);
        QList<DevInfo> devices{healthy.info};
        for (int i = 0; i < 20; ++i) {
            devices.append(TestDevice(QString::number(i)).info);
            devices.last().port = silent.serverPort();
        }
        m_transport->setDevices(devices);
        const auto othersDialled = [this] {
            int count = 0;
            for (auto it = m_states.cbegin(); it != m_states.cend(); ++it)
                count += it.key() == m_id ? 0 : it->count(DevConnecting);
            return count;
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
        struct Count
        {
            std::atomic<int> raised{0}, heard{0}, mostWaiting{0};
        };
        const auto count = std::make_shared<Count>(); // the network thread may count on when the test has failed
        connect(
            m_transport, &DeviceTransport::answered, m_transport,
            [count] { count->mostWaiting = std::max(count->mostWaiting.load(), ++count->raised - count->heard); },
            Qt::DirectConnection);
        std::vector<std::unique_ptr<TestDevice>> site;
        QList<DevInfo> infos;
        for (int i = 0; i < devices; ++i) {
            site.push_back(std::make_unique<TestDevice>(QStringLiteral("slow %1").arg(i)));
            site.back()->info.userName = m_id;
            infos.append(site.back()->info);
        }
        m_transport->setDevices(infos);
        for (const auto &device : site) {
            QTRY_VERIFY(m_states[device->info.id].endsWith(DevDefaultPassword));
            common_req(device->info.id, device->info.id, QString());
            QTRY_COMPARE(device->received.size(), 1);
        }
        connect(&ClientSignals::instance(), &ClientSignals::signalCommonRes, m_transport, [count] {
            // The window hangs until the network has taken all that it takes.
            for (int before = -1; count->heard == 0 && count->raised != before; QThread::msleep(300))
                before = count->raised;
            ++count->heard;
        });
        const QString text = QStringLiteral("\n[\"%1\"]").arg(QString(characters, QLatin1Char('x')));
        for (const auto &device : site)
            for (int i = 0; i < answersEach; ++i)
                device->client->sendTextMessage(device->info.id + text);
        QTRY_COMPARE_WITH_TIMEOUT(count->heard.load(), devices * answersEach, 20'000);
        constexpr int allowed = (64 << 20) / (2 * characters); // what may wait for the window
        const int most = count->mostWaiting;
        QVERIFY2(most > allowed / 2 && most <= allowed + 2, qPrintable(QString::number(most)));
        for (const auto &device : site)
            QCOMPARE(m_states[device->info.id].size(), 2); // nobody was cut
    }

    void largeAnswersComeOverTls()
    {
        const QSslConfiguration tls = tlsWith(QStringLiteral("valid.pem"));
        TestDevice device(m_id, &tls);
        device.info.fingerprint =
            QString::fromLatin1(tls.localCertificate().digest(QCryptographicHash::Sha256).toHex());
        m_transport->setDevices({device.info});
        QTRY_VERIFY(m_states[m_id].endsWith(DevDefaultPassword));
        common_req(QStringLiteral("id"), m_id, QString(500'000, QLatin1Char('q')));
        QTRY_COMPARE(device.received.size(), 1);
        const QString answer = QStringLiteral("[\"%1\"]").arg(QString(800'000, QLatin1Char('x')));
        device.client->sendTextMessage(QStringLiteral("id\n") + answer);
        QTRY_COMPARE(m_answers, QStringList(QStringLiteral("id|") + answer));
    }

    void devicesThatAreTakenAwayAreNotDialledInTheGoing()
    {
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        QList<DevInfo> devices;
        for (int i = 0; i < 40; ++i) { // two are being set up, the others wait
            devices.append(TestDevice(QString::number(i)).info);
            devices.last().port = silent.serverPort();
        }
        m_transport->setDevices(devices);
        m_transport->setDevices({});
        for (int i = 0; i < 2; ++i)
            QTRY_COMPARE(m_states[devices.at(i).id], States({DevConnecting, DevOffline}));
        QTest::qWait(20); // nothing more comes
        QCOMPARE(m_states.size(), 2);
    }

    void certificatesAreTakenWhenPinnedOrTrusted_data()
    {
        QTest::addColumn<QString>("certificate");
        QTest::addColumn<QString>("pin");
        QTest::addColumn<bool>("isTrusted"); // its signer is one of the system's CAs
        QTest::addColumn<QSsl::SslProtocol>("protocol");
        QTest::addColumn<DevStatus>("state");
        const QString valid = QStringLiteral("valid.pem"), expired = QStringLiteral("expired.pem"),
                      local = QStringLiteral("local-ca.pem"), own = QStringLiteral("own"), other(64, QLatin1Char('0'));
        const auto row = [](const char *name, const QString &certificate, const QString &pin, bool isTrusted,
                            DevStatus state, QSsl::SslProtocol protocol = QSsl::SecureProtocols) {
            QTest::newRow(name) << certificate << pin << isTrusted << protocol << state;
        };
        row("pinned", valid, own, false, DevDefaultPassword);
        row("another one is pinned", valid, other, false, DevOffline);
        row("trusted, but another one is pinned", local, other, true, DevOffline);
        row("self-signed, not pinned", valid, {}, false, DevOffline);
        row("pinned, but expired", expired, own, false, DevOffline);
        for (const char *chain : {"chain", "chain-expired-intermediate", "chain-odd-intermediate"})
            row(chain, QLatin1String(chain) + QStringLiteral(".pem"), own, false, DevDefaultPassword);
        row("a chain with an expired leaf", QStringLiteral("chain-expired-leaf.pem"), own, false, DevOffline);
        row("a chain of which another one is pinned", QStringLiteral("chain.pem"), other, false, DevOffline);
        row("a chain, not pinned", QStringLiteral("chain.pem"), {}, false, DevOffline);
        row("a pin without a digit", valid, QStringLiteral(":::"), false, DevOffline);
        row("trusted, a pin without a digit", local, QStringLiteral(":::"), true, DevOffline);
        row("signed by one of the system's CAs", local, {}, true, DevDefaultPassword);
        row("trusted, for another host", valid, {}, true, DevOffline);
        row("pinned, TLS 1.1", valid, own, false, DevOffline, QSsl::TlsV1_1);
    }

    void certificatesAreTakenWhenPinnedOrTrusted()
    {
        QFETCH(QString, certificate);
        QFETCH(QString, pin);
        QFETCH(bool, isTrusted);
        QFETCH(QSsl::SslProtocol, protocol);
        QFETCH(DevStatus, state);
        QSslConfiguration tls = tlsWith(certificate);
        tls.setProtocol(protocol);
        const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
        QSslConfiguration trusting = before;
        if (isTrusted)
            trusting.setCaCertificates({tls.localCertificate()});
        QSslConfiguration::setDefaultConfiguration(trusting);
        const QByteArray own = tls.localCertificate().digest(QCryptographicHash::Sha256).toHex(':');
        TestDevice device(m_id, &tls);
        device.info.fingerprint = pin == QLatin1String("own") ? QString::fromLatin1(own) : pin;
        if (state == DevOffline && protocol == QSsl::SecureProtocols)
            expectWarning(QStringLiteral("certificate"));
        m_transport->setDevices({device.info});
        QTRY_COMPARE(m_states[m_id].mid(0, 2), States({DevConnecting, state}));
        if (!isTrusted) // else the handshake is over before the pin is compared
            QCOMPARE(device.dials, state == DevOffline ? 0 : 1);
        QSslConfiguration::setDefaultConfiguration(before);
    }

    /// Its numbers can be so large that one exchange of keys holds up the thread of all devices for a second.
    void plainDiffieHellmanIsNotOffered()
    {
        const QString certificate = QFINDTESTDATA("support/certificates/rsa.pem");
        QProcess server; // Qt's own cannot do it
        server.setProcessChannelMode(QProcess::MergedChannels);
        server.start(QStringLiteral("openssl"),
                     {QStringLiteral("s_server"), QStringLiteral("-accept"), QStringLiteral("127.0.0.1:0"),
                      QStringLiteral("-cert"), certificate, QStringLiteral("-key"), certificate,
                      QStringLiteral("-tls1_2"), QStringLiteral("-cipher"),
                      QStringLiteral("DHE-RSA-AES256-GCM-SHA384")});
        QByteArray said;
        const auto says = [&](const QByteArray &text) {
            said += server.readAll();
            return said.contains(text);
        };
        QTRY_VERIFY2(says("ACCEPT 127.0.0.1:"), said);
        DevInfo device = TestDevice(m_id).info;
        device.tls = true;
        device.fingerprint = QString(64, QLatin1Char('0'));
        device.port = said.mid(said.indexOf("ACCEPT 127.0.0.1:") + 17).trimmed().toUShort();
        m_transport->setDevices({device});
        QTRY_VERIFY2(says("no shared cipher"), said);
        server.kill();
        server.waitForFinished();
    }

private:
    void use(const WebSocketOptions &options)
    {
        auto transport = std::make_unique<WebSocketTransport>(nullptr, options);
        m_transport = transport.get();
        ClientSdk::instance().setTransport(std::move(transport));
    }

    const QString m_id = QStringLiteral("SN-1");
    WebSocketTransport *m_transport = nullptr;
    QHash<QString, States> m_states;
    QStringList m_answers;
};

ORDA_TEST_MAIN(DevicesTest)
#include "devices_test.moc"
