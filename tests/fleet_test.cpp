#include "support/FleetOf.h"
#include "support/OrdaTest.h"

#include "fleet/EmbeddedFleet.h"
#include "fleet/SimulatedDevice.h"
#include "fleet/Site.h"

#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/OpenFiles.h>
#include <vms_client_sdk/websocket/ClientSignOn.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <QtNetwork>

#include <csignal>
#include <memory>

using namespace device_fleet;

namespace {

QJsonObject json(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

/// The first that comes back over a plain connection; empty when the other side ends it without a word.
QByteArray answerTo(const QHostAddress &address, quint16 port, const QByteArray &text)
{
    QTcpSocket socket;
    socket.connectToHost(address, port);
    socket.write(text);
    const bool isAnswered = socket.waitForReadyRead(3000);
    return isAnswered || socket.state() == QAbstractSocket::UnconnectedState ? socket.readAll() : QByteArray("silence");
}

QByteArray upgradeRequest(const QString &path)
{
    return "GET " + path.toUtf8()
         + " HTTP/1.1\r\nHost: fleet\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
           "Sec-WebSocket-Key: MDEyMzQ1Njc4OWFiY2RlZg==\r\nSec-WebSocket-Version: 13\r\n\r\n";
}

QByteArray answerTo(const vms_sdk::DevInfo &device)
{
    return answerTo(QHostAddress(device.ip), device.port, upgradeRequest(device.path));
}

/// Twelve devices, so few for each thread that there are several.
FleetOptions inShards(int perThread, bool isSecure)
{
    FleetOptions options = fleetOf(12);
    options.devicesPerThread = perThread;
    options.certificateFile = options.keyFile = isSecure ? QFINDTESTDATA("support/certificates/valid.pem") : "";
    return options;
}

/// Dials a device, signs on and asks.
struct Client : QObject
{
    explicit Client(const vms_sdk::DevInfo &device)
        : signOn(device)
    {
        connect(&line, &vms_sdk::WebSocketConnection::sslErrors, this, [this] { line.tlsSocket()->ignoreSslErrors(); });
        connect(&line, &vms_sdk::WebSocketConnection::textReceived, this, [this](const QByteArray &text) {
            if (signOn.state())
                return answers.append(text);
            if (const auto reply = signOn.take(QString::fromUtf8(text)).text; !reply.isEmpty())
                line.sendText(reply.toUtf8());
        });
        line.open(vms_sdk::deviceUrl(device), QSslConfiguration::defaultConfiguration());
    }
    vms_sdk::WebSocketConnection line{{}};
    vms_sdk::ClientSignOn signOn;
    QList<QByteArray> answers;
};

void startFleet(QProcess &process, const QString &arguments)
{
    process.start(QCoreApplication::applicationDirPath() + "/orda_fleet", arguments.split(' '));
}

} // namespace

class FleetTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void badRequestChangesNothing_data()
    {
        columns<QString, QString>({"text", "code"});
        rowsFrom("bad_requests.txt");
    }

    void badRequestChangesNothing()
    {
        QFETCH(QString, text);
        SimulatedDevice device("d", makeSiteDevice(1, 0).parameters);
        const QJsonObject before = device.parameters();
        QTEST(QString::number(device.answer(json(text.toUtf8())).value("error")["errorcode"].toInt(1)), "code");
        QCOMPARE(device.parameters(), before);
    }

    void siteHasSomethingOfEverything()
    {
        QSet<QString> found, unique;
        int usable = 0;
        for (int i = 0; i < 200; ++i) {
            const SiteDevice device = makeSiteDevice(FleetOptions().seed, i);
            const vms_sdk::DevInfo &info = device.info;
            const QJsonObject &params = device.parameters;
            const QJsonValue eth = params["inet"]["eth"];
            const bool hasIp = !info.ip.isEmpty(), isCamera = info.kindCode == 1, isRecorder = info.kindCode == 6;
            const bool isWeak = device.state == vms_sdk::DevOnline && info.password.size() < 8;
            const QString facts = QString::asprintf(
                "kind %d,access %d,state %d,online %d,IP %d,weak %d,streams %d,nameless %d,long name %d,ASCII %d,"
                "eth and speed %d,large font %d,group %s",
                info.kindCode, info.accessCode, device.state, device.online, hasIp, isWeak,
                params["video"]["streams"].toArray().size(), info.name.isEmpty(), info.name.size() > 60,
                info.name.toUtf8().size() == info.name.size(), eth.isObject() + !eth["speed"].isUndefined(),
                !params["osd"]["bLargeOSD"].isUndefined(), qPrintable(info.group));
            const QStringList parts = facts.split(',');
            found += QSet<QString>(parts.begin(), parts.end());
            usable += device.online && info.accessCode == 1 && (isCamera || isRecorder) && hasIp;
            unique << info.id << info.serialNumber << (hasIp ? info.ip : info.id + "/cloud");
            QCOMPARE(params.size(), SimulatedDevice::methods().size() / 2);
        }
        QStringList all = found.values();
        all.sort();
        QCOMPARE(all.join(", "),
                 "ASCII 0, ASCII 1, IP 0, IP 1, access 1, access 2, eth and speed 0, eth and speed 1, eth and speed 2, "
                 "group gate, group north, group south, kind 1, kind 3, kind 6, large font 0, large font 1, long name "
                 "0, long name 1, nameless 0, nameless 1, "
                 "online 0, online 1, state 1, state 5, state 6, streams 1, streams 2, streams 3, weak 0, weak 1");
        QVERIFY2(usable >= 170, qPrintable(QString::number(usable)));
        QCOMPARE(unique.size(), 600);
        QCOMPARE(makeSiteDevice(1, 3).parameters, makeSiteDevice(1, 3).parameters);
        QVERIFY(makeSiteDevice(2, 3).parameters != makeSiteDevice(1, 3).parameters);
    }

    void faultFileIsCheckedAndExplained_data()
    {
        columns<QString, QString>({"entry", "complaint"});
        rowsFrom("fault_files.txt");
    }

    void faultFileIsCheckedAndExplained()
    {
        QFETCH(QString, entry);
        QFETCH(QString, complaint);
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(R"({"faults": [{"fault": "no-answer"}, )" + entry.toUtf8() + "]}") > 0
                && file.flush());
        QString error;
        QStringList warnings;
        const FaultPlan plan = FaultPlan::read(file.fileName(), &error, &warnings);
        const bool isWarning = complaint.contains("unknown key");
        const QString said = isWarning ? warnings.join(QString()) : error;
        QVERIFY2(said.startsWith(file.fileName()) && said.contains(complaint), qPrintable(said));
        QCOMPARE(plan.find("d", "ai_get_param").has_value(), isWarning);
    }

    void narrowerFaultGoesFirst()
    {
        FaultPlan plan;
        plan.set("*", "*", {Fault::Garbage});
        plan.set("*", "m", {Fault::NoAnswer});
        plan.set("d", "*", {Fault::NoResult});
        plan.set("d", "m", {Fault::ForeignId});
        QCOMPARE(plan.find("d", "m")->fault, Fault::ForeignId);
        QCOMPARE(plan.find("d", "x")->fault, Fault::NoResult);
        QCOMPARE(plan.find("x", "m")->fault, Fault::NoAnswer);
        QCOMPARE(plan.find("x", "x")->fault, Fault::Garbage);
    }

    void strangersAreTurnedAway()
    {
        FleetOptions options = fleetOf(1);
        auto fleet = std::make_unique<EmbeddedFleet>(options);
        QCOMPARE(fleet->start(), QString());
        vms_sdk::DevInfo device = fleet->inventory().at(0);
        device.path = "/dev-9999";
        QVERIFY(answerTo(device).startsWith("HTTP/1.1 404 "));
        QVERIFY(answerTo(QHostAddress::LocalHost, device.port, QByteArray(100000, 'x')).isEmpty());

        const auto addresses = QNetworkInterface::allAddresses();
        const auto outside = std::find_if(addresses.begin(), addresses.end(), [](const QHostAddress &address) {
            return address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback();
        });
        if (outside == addresses.end())
            QSKIP("this machine has no address but its own loopback");
        QVERIFY(answerTo(*outside, device.port, upgradeRequest("/dev-0001")).isEmpty());
        options.listenAddress = *outside;
        fleet = std::make_unique<EmbeddedFleet>(options);
        QCOMPARE(fleet->start(), QString());
        QVERIFY(answerTo(fleet->inventory().at(0)).startsWith("HTTP/1.1 101 "));
    }

    void tooManyDevicesForOneProcess()
    {
        EmbeddedFleet fleet(fleetOf(int(vms_sdk::raiseOpenFileLimit() / 2)));
        QVERIFY(fleet.start().contains("orda_fleet --devices"));
    }

    void shardsAreAsOneThread()
    {
        std::array<QByteArray, 3> told;
        for (const std::size_t run : {0, 1, 2}) {
            EmbeddedFleet fleet(inShards(run == 0 ? 12 : 3, run == 2));
            QCOMPARE(fleet.start(), QString());
            const auto devices = fleet.inventory();
            std::vector<std::unique_ptr<Client>> clients;
            for (const vms_sdk::DevInfo &device : devices) {
                fleet.setOnline(device.id, true);
                clients.push_back(std::make_unique<Client>(device));
            }
            QTRY_COMPARE(fleet.connectedDevices(), 12);
            const QStringList methods = SimulatedDevice::methods();
            fleet.setFault("*", methods[0], {Fault::ErrorCode, -77});
            for (const int round : {1, 2}) {
                for (const auto &client : clients)
                    for (const QString &method : methods)
                        client->line.sendText("1\n{\"method\": \"" + method.toUtf8() + "\", \"param\": {\"a\": 2}}");
                for (const auto &client : clients)
                    QTRY_COMPARE(client->answers.size(), round * methods.size());
                fleet.clearFaults();
            }
            for (const auto &client : clients)
                told.at(run) += client->answers.join();
            QCOMPARE(told.at(run).count("-77"), 12);
            told.at(run) += QJsonDocument(fleet.dump()).toJson();
            for (const vms_sdk::DevInfo &device : devices)
                fleet.setOnline(device.id, false);
            QCOMPARE(fleet.connectedDevices(), 0);
        }
        QVERIFY(told[0] == told[1] && told[0] == told[2]);
    }

    void nothingIsLostOnTheWayToAShard_data() { seeds(30); }

    void nothingIsLostOnTheWayToAShard()
    {
        QFETCH(int, seed);
        const bool isSecure = seed % 3 == 0, isStopped = seed % 2 == 0;
        EmbeddedFleet fleet(inShards(3, isSecure));
        QCOMPARE(fleet.start(), QString());
        const auto devices = fleet.inventory();
        QRandomGenerator random{quint32(seed)};
        std::array<QSslSocket, 48> sockets;
        for (int i = 0; i < 48; ++i) {
            QSslSocket &socket = sockets.at(std::size_t(i));
            socket.setPeerVerifyMode(QSslSocket::VerifyNone);
            isSecure ? socket.connectToHostEncrypted("127.0.0.1", devices[0].port)
                     : socket.connectToHost("127.0.0.1", devices[0].port);
            // A sign-on without anything in it, together with the end of the head or after it.
            const QByteArray text = upgradeRequest(devices[i % 12].path) + QByteArray("\x81\x82\0\0\0\0{}", 8);
            const int first = text.size() - random.bounded(12);
            socket.write(text.left(first));
            QTimer::singleShot(random.bounded(20), &socket, [&, rest = text.mid(first)] { socket.write(rest); });
        }
        const auto isGreeted = [](const QSslSocket &socket) { return socket.bytesAvailable() > 0; };
        while (isStopped && std::count_if(sockets.begin(), sockets.end(), isGreeted) < seed)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (isStopped)
            fleet.stop();
        for (int i = 0; i < 48; ++i) {
            QSslSocket &socket = sockets.at(std::size_t(i));
            QTRY_COMPARE(socket.state(), QAbstractSocket::UnconnectedState);
            QVERIFY(isStopped || socket.readAll().contains("nonce too short") == makeSiteDevice(1, i % 12).online);
        }
    }

    void programWritesInventoryAndDump()
    {
        const QTemporaryDir dir;
        const QString inventoryFile = dir.filePath("inventory.json");
        const QString dumpFile = dir.filePath("dump.json");
        QProcess program;
        startFleet(program, "--devices 5 --inventory " + inventoryFile + " --dump " + dumpFile);
        QVERIFY(program.waitForReadyRead());
        QVERIFY(program.readAll().contains("5 devices"));
        const vms_sdk::Inventory inventory = vms_sdk::readInventory(inventoryFile);
        QCOMPARE(inventory.error + inventory.warnings.join(QString()), QString());
        QCOMPARE(inventory.devices.size(), 5);

        QVERIFY(!QFile::exists(dumpFile));
        ::kill(pid_t(program.processId()), SIGUSR1);
        QTRY_VERIFY(QFile::exists(dumpFile));
        QCOMPARE(QFile::permissions(dumpFile) & (QFile::ReadGroup | QFile::ReadOther), 0);
        QVERIFY(QFile::remove(dumpFile));
        program.terminate();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 0);
        QFile dump(dumpFile);
        QVERIFY(dump.open(QIODevice::ReadOnly));
        QCOMPARE(json(dump.readAll())["devices"].toObject().size(), 5);
    }
};

ORDA_TEST_MAIN(FleetTest)
#include "fleet_test.moc"
