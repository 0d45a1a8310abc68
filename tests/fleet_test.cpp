#include "support/OrdaTest.h"
#include "support/RawClient.h"

#include <EmbeddedFleet.h>
#include <SimulatedDevice.h>
#include <Site.h>

#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/OpenFiles.h>

#include <QApplication>
#include <QJsonArray>
#include <QNetworkInterface>
#include <QProcess>
#include <QSet>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <csignal>
#include <memory>

using namespace device_fleet;
using L1 = QLatin1String;
using Spoil = std::function<void(RawClient &)>;
Q_DECLARE_METATYPE(Spoil)
Q_DECLARE_METATYPE(device_fleet::FaultSpec)

namespace {

QJsonValue json(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

QByteArray request(const QByteArray &method, const QByteArray &param = "{}")
{
    return R"({"method": ")" + method + R"(", "level": "Operator", "param": )" + param + "}";
}

int errorCode(const QJsonObject &answer)
{
    return answer[L1("error")][L1("errorcode")].toInt(1);
}

FleetOptions site(int devices)
{
    FleetOptions options;
    options.devices = devices;
    return options;
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

QString programFile()
{
    return QCoreApplication::applicationDirPath() + L1("/orda_fleet");
}

} // namespace

class FleetTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void writeChangesWhatItNames_data()
    {
        QTest::addColumn<QByteArray>("writeMethod");
        QTest::addColumn<QByteArray>("param");
        QTest::addColumn<QByteArray>("readMethod");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *write, const char *param, const char *read, const char *expected) {
            QTest::newRow(write) << QByteArray(write) << QByteArray(param) << QByteArray(read) << QByteArray(expected);
        };
        row("ai_set_param", R"({"channelid": 0, "audioAttr": {"aiGain": 7}})", //
            "ai_get_param", R"({"aiGain": 7, "bEnable": true})");
        row("ao_set_param", R"({"channelid": 0, "audioAttr": {"aoGain": 7}})", //
            "ao_get_param", R"({"aoGain": 7, "bEnable": true})");
        row("stream_set_params", R"({"streams": [{"streamid": 1, "width": 10}]})", "stream_get_params",
            R"({"streams": [{"streamid": 0, "width": 1920, "height": 9}, {"streamid": 1, "width": 10, "height": 9}]})");
        row("image_set_adjust_param", R"({"channelid": 0, "attr": {"flip": "both"}})", //
            "image_get_adjust_param", R"({"flip": "both", "hue": 50})");
        row("image_set_expertsetting_param", R"({"channelid": 0, "attr": {"expertmode": "indoor"}})",
            "image_get_expertsetting_param", R"({"expertmode": "indoor"})");
        row("image_set_dncut_param", R"({"channelid": 0, "attr": {"lightmode": "ir"}})", //
            "image_get_dncut_param", R"({"lightmode": "ir"})");
        row("chnosd_set_param", R"({"channelid": 0, "attr": {"channelName": ""}})", //
            "chnosd_get_param", R"({"bShowOSD": true, "channelName": ""})");
        row("netservice_onvif_set_discoveryinfo", R"({"discoveryflag": 1, "bdefault": false})",
            "netservice_onvif_get_discoveryinfo", R"({"discoveryflag": 1})");
        row("ifconfig_eth_set", R"({"bIPLock": true, "clienttype": "web"})", //
            "ifconfig_get_inet", R"({"eth": {"bIPLock": true, "speed": "auto"}, "httpPort": 80})");
        row("ifconfig_qbcloud_set_param", R"({"qbcloud_en": false, "qbcloud_type": "private"})",
            "ifconfig_qbcloud_get_param", R"({"qbcloud_en": false, "qbcloud_type": "private", "qbcloud_addr": "a"})");
        row("alarmservice_set_cfg", R"({"onlineserverport": 1})", //
            "alarmservice_get_cfg", R"({"bEnable": true, "onlineserverport": 1})");
    }

    void writeChangesWhatItNames()
    {
        QFETCH(QByteArray, writeMethod);
        QFETCH(QByteArray, param);
        QFETCH(QByteArray, readMethod);
        QFETCH(QByteArray, expected);
        const QJsonObject before = json(R"({
            "audioIn": {"aiGain": 50, "bEnable": true}, "audioOut": {"aoGain": 50, "bEnable": true},
            "video": {"streams": [{"streamid": 0, "width": 1920, "height": 9}, {"streamid": 1, "width": 704, "height": 9}]},
            "imageAdjust": {"flip": "off", "hue": 50}, "imageExpert": {"expertmode": "auto"},
            "imageDayNight": {"lightmode": "off"}, "osd": {"bShowOSD": true, "channelName": "Gate 1"},
            "onvifDiscovery": {"discoveryflag": 0}, "inet": {"eth": {"bIPLock": false, "speed": "auto"}, "httpPort": 80},
            "qbcloud": {"qbcloud_en": true, "qbcloud_type": "public", "qbcloud_addr": "a"},
            "alarmService": {"bEnable": true, "onlineserverport": 15030}})")
                                       .toObject();
        SimulatedDevice device(QStringLiteral("d"), before);

        const QJsonObject answer = device.answer(json(request(writeMethod, param)).toObject());
        QCOMPARE(errorCode(answer), 0);
        QCOMPARE(answer[L1("method")].toString().toUtf8(), writeMethod);
        QCOMPARE(device.answer(json(request(readMethod)).toObject())[L1("result")], json(expected));
        int changed = 0;
        for (auto it = before.begin(); it != before.end(); ++it)
            changed += device.parameters().value(it.key()) == it.value() ? 0 : 1;
        QCOMPARE(changed, 1);
    }

    void badRequestChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("code");
        QTest::newRow("not JSON") << QByteArray("hello") << int(DeviceBadRequest);
        QTest::newRow("unknown method") << request("reboot") << int(DeviceUnknownMethod);
        QTest::newRow("wrong key") << request("ai_set_param", R"({"attr": {"aiGain": 1}})") << int(DeviceBadParameter);
        QTest::newRow("no such stream") << request("stream_set_params",
                                                   R"({"streams": [{"streamid": 0, "width": 1}, {"streamid": 9}]})")
                                        << int(DeviceBadParameter);
    }

    void badRequestChangesNothing()
    {
        QFETCH(QByteArray, text);
        SimulatedDevice device(QStringLiteral("d"), makeSiteDevice(1, 0).parameters);
        const QJsonObject before = device.parameters();
        QTEST(errorCode(device.answer(json(text).toObject())), "code");
        QCOMPARE(device.parameters(), before);
    }

    void siteHasSomethingOfEverything()
    {
        std::vector<SiteDevice> devices;
        devices.reserve(200);
        for (int i = 0; i < 200; ++i)
            devices.push_back(makeSiteDevice(FleetOptions().seed, i));
        const auto some = [&devices](const char *trait, const auto &has) {
            const auto count = std::count_if(devices.begin(), devices.end(), has);
            QVERIFY2(count > 0 && count < 200, trait);
        };
        const auto streams = [](const SiteDevice &d) {
            return d.parameters[L1("video")][L1("streams")].toArray().size();
        };
        const auto eth = [](const SiteDevice &d) { return d.parameters[L1("inet")][L1("eth")]; };
        using Device = const SiteDevice &;
        some("camera", [](Device d) { return d.info.kindCode == 1; });
        some("recorder", [](Device d) { return d.info.kindCode == 6; });
        some("other kind", [](Device d) { return d.info.kindCode != 1 && d.info.kindCode != 6; });
        some("not reached directly", [](Device d) { return d.info.accessCode != 1; });
        some("off line", [](Device d) { return !d.online; });
        some("factory password", [](Device d) { return d.state == vms_sdk::DevDefaultPassword; });
        some("locked", [](Device d) { return d.state == vms_sdk::DevLocked; });
        some("cloud device", [](Device d) { return d.info.ip.isEmpty(); });
        some("weak password", [](Device d) { return d.state == vms_sdk::DevOnline && d.info.password.size() < 8; });
        some("empty name", [](Device d) { return d.info.name.isEmpty(); });
        some("long name", [](Device d) { return d.info.name.size() > 60; });
        some("non-ASCII name", [](Device d) { return d.info.name.toUtf8().size() != d.info.name.size(); });
        some("one stream", [&](Device d) { return streams(d) == 1; });
        some("three streams", [&](Device d) { return streams(d) == 3; });
        some("no eth", [&](Device d) { return eth(d).isUndefined(); });
        some("no speed", [&](Device d) { return eth(d).isObject() && eth(d)[L1("speed")].isUndefined(); });
        some("no large font", [](Device d) { return d.parameters[L1("osd")][L1("bLargeOSD")].isUndefined(); });

        QSet<QString> unique;
        int usable = 0; // would be listed whatever its password
        for (const SiteDevice &d : devices) {
            unique << d.info.id << d.info.serialNumber << (d.info.ip.isEmpty() ? d.info.id + L1("/cloud") : d.info.ip);
            usable += d.online && d.info.accessCode == 1 && QList<int>{1, 6}.contains(d.info.kindCode)
                   && !d.info.ip.isEmpty();
            QCOMPARE(d.parameters.size(), SimulatedDevice::methods().size() / 2);
        }
        QCOMPARE(unique.size(), 600);
        QVERIFY2(usable >= 170, qPrintable(QString::number(usable)));
        QCOMPARE(makeSiteDevice(1, 3).parameters, devices.at(3).parameters);
        QVERIFY(makeSiteDevice(2, 3).parameters != devices.at(3).parameters);
    }

    void faultFileIsCheckedAndExplained_data()
    {
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<QString>("complaint"); // an error, or "unknown key": only a warning
        const auto row = [](const char *name, const char *entry, const char *complaint) {
            QTest::newRow(name) << QByteArray(entry) << QString::fromLatin1(complaint);
        };
        row("not JSON", "{", "is not JSON");
        row("no object", R"("garbage")", "faults[1]: must be an object");
        row("unknown fault", R"({"fault": "slow"})", R"(faults[1]: field "fault": must be one of error-code, )");
        row("unknown method", R"({"fault": "garbage", "methods": ["ai_get"]})", R"("methods": "ai_get" is none of)");
        row("no list", R"({"fault": "garbage", "devices": "dev-0001"})", R"("devices": must be a list)");
        row("no error", R"({"fault": "error-code", "errorcode": 0})", R"("errorcode": must not be 0)");
        row("half a millisecond", R"({"fault": "late-answer", "delayMs": 0.5})",
            R"("delayMs": must be a whole number)");
        row("unknown settings", R"({"fault": "drop-and-return", "returnWith": "x"})", "must be one of new-settings");
        row("unknown key", R"({"fault": "garbage", "delay": 5})", R"(faults[1]: unknown key "delay")");
    }

    void faultFileIsCheckedAndExplained()
    {
        QFETCH(QByteArray, entry);
        QFETCH(QString, complaint);
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(R"({"faults": [{"fault": "no-answer"}, )" + entry + "]}") > 0
                && file.flush());
        QString error;
        QStringList warnings;
        const FaultPlan plan = FaultPlan::read(file.fileName(), &error, &warnings);
        const bool isWarning = complaint.contains(L1("unknown key"));
        const QString said = isWarning ? warnings.join(QString()) : error;
        QVERIFY2(said.startsWith(file.fileName()) && said.contains(complaint), qPrintable(said));
        QCOMPARE(plan.find(QStringLiteral("d"), QStringLiteral("ai_get_param")).has_value(), isWarning);
    }

    void narrowerFaultGoesFirst()
    {
        FaultPlan plan;
        plan.set(L1("*"), L1("*"), {Fault::Garbage});
        plan.set(L1("*"), L1("m"), {Fault::NoAnswer});
        plan.set(L1("d"), L1("*"), {Fault::NoResult});
        plan.set(L1("d"), L1("m"), {Fault::ForeignId});
        QCOMPARE(plan.find(L1("d"), L1("m"))->fault, Fault::ForeignId);
        QCOMPARE(plan.find(L1("d"), L1("x"))->fault, Fault::NoResult);
        QCOMPARE(plan.find(L1("x"), L1("m"))->fault, Fault::NoAnswer);
        QCOMPARE(plan.find(L1("x"), L1("x"))->fault, Fault::Garbage);
    }

    void signOn_data()
    {
        QTest::addColumn<Spoil>("spoil");
        QTest::addColumn<bool>("isSecure");
        QTest::addColumn<bool>("isWelcome");
        const Spoil nothing = [](RawClient &) {};
        QTest::newRow("right password") << nothing << false << true;
        QTest::newRow("TLS and its fingerprint") << nothing << true << true;
        QTest::newRow("wrong password") << Spoil([](RawClient &c) { c.device.password += L1("x"); }) << false << false;
        QTest::newRow("wrong user") << Spoil([](RawClient &c) { c.device.userName = L1("root"); }) << false << false;
        QTest::newRow("short nonce") << Spoil([](RawClient &c) { c.nonce = "MTIzNDU2Nzg5MDEyMzQ1"; }) << false << false;
    }

    void signOn()
    {
        QFETCH(Spoil, spoil);
        QFETCH(bool, isSecure);
        QFETCH(bool, isWelcome);
        FleetOptions options = site(30);
        if (isSecure)
            options.certificateFile = options.keyFile = QFINDTESTDATA("support/certificates/valid.pem");
        EmbeddedFleet fleet(options);
        QCOMPARE(fleet.start(), QString());
        const auto records = fleet.inventory();
        for (int i = 0; i < records.size(); ++i) {
            const SiteDevice made = makeSiteDevice(options.seed, i);
            if (!made.online)
                continue;
            QCOMPARE(vms_sdk::deviceUrl(records.at(i)).scheme(), isSecure ? L1("wss") : L1("ws"));
            RawClient client(records.at(i));
            spoil(client);
            QTRY_VERIFY(client.state != 0 || client.isClosed);
            QCOMPARE(client.state, isWelcome ? int(made.state) : 0);
            QCOMPARE(int(client.socket.closeCode()) == vms_sdk::signOnRefusedCode, !isWelcome);
        }
    }

    void faultyAnswers_data()
    {
        QTest::addColumn<FaultSpec>("fault");
        QTest::addColumn<QString>("method");
        QTest::addColumn<QStringList>("answers"); // patterns of what comes, id line first
        QTest::addColumn<bool>("isWritten");
        const auto row = [](const char *name, const FaultSpec &fault, const QStringList &answers, bool isWritten,
                            const char *method = "ai_set_param") {
            QTest::newRow(name) << fault << QString::fromLatin1(method) << answers << isWritten;
        };
        const QString good = L1("^id\n.*\"errorcode\":0.*ai_set_param");
        row("error code", {Fault::ErrorCode, -77}, {L1("^id\n.*\"errorcode\":-77.*ai_set_param")}, false);
        row("garbage", {Fault::Garbage}, {L1("^id\n(?!.*errorcode)")}, true);
        row("no answer", {Fault::NoAnswer}, {}, false);
        row("late", {Fault::LateAnswer, 0, std::chrono::milliseconds(50)}, {good}, true);
        row("twice", {Fault::AnswerTwice}, {good, good}, true);
        row("foreign id", {Fault::ForeignId}, {L1("^(?!id\n).+\n.*ai_set_param")}, true);
        row("foreign method", {Fault::ForeignMethod}, {L1("^id\n(?!.*ai_set_param)")}, true);
        row("huge", {Fault::HugeAnswer}, {L1("^huge$")}, true);
        row("no result", {Fault::NoResult}, {L1("^id\n(?!.*result).*ai_get_param")}, false, "ai_get_param");
    }

    void faultyAnswers()
    {
        QFETCH(FaultSpec, fault);
        QFETCH(QString, method);
        QFETCH(QStringList, answers);
        QFETCH(bool, isWritten);
        EmbeddedFleet fleet(site(2));
        QSignalSpy log(&fleet, &EmbeddedFleet::requestReceived);
        QCOMPARE(fleet.start(), QString());
        RawClient client(fleet.inventory().at(0));
        QTRY_VERIFY(client.state != 0);
        QJsonObject expected = fleet.dump();
        fleet.setFault(client.device.id, method, fault);

        const QByteArray faulty = request(method.toLatin1(), R"({"channelid": 0, "audioAttr": {"aiGain": 99}})");
        client.request(L1("id"), faulty);
        client.request(L1("next"), request("ao_get_param")); // tells that a silent device is done
        QTRY_COMPARE(client.frames.size(), answers.size() + 1);
        QCOMPARE(log.at(0), (QVariantList{client.device.id, method, QString::fromUtf8(faulty)}));
        QStringList texts;
        for (const vms_sdk::DeviceFrame &frame : qAsConst(client.frames)) {
            const bool isHuge = frame.text.size() > vms_sdk::maxFrameBytes;
            if (frame.requestId != L1("next"))
                texts.append(isHuge ? QStringLiteral("huge") : vms_sdk::toFrameText(frame));
        }
        QCOMPARE(texts.size(), answers.size());
        for (int i = 0; i < answers.size(); ++i)
            QVERIFY2(texts.at(i).contains(QRegularExpression(answers.at(i))), qPrintable(texts.at(i)));

        const auto gain = [&client](const QJsonObject &dump) {
            return dump[L1("devices")][client.device.id][L1("audioIn")][L1("aiGain")].toInt();
        };
        QCOMPARE(gain(fleet.dump()) == 99, isWritten);
        QCOMPARE(fleet.dump() != expected, isWritten);
    }

    void deviceDropsAndReturns_data()
    {
        QTest::addColumn<FaultSpec>("fault");
        QTest::addColumn<QJsonValue>("address"); // after its return
        const std::chrono::milliseconds away(500);
        const QJsonValue old = makeSiteDevice(1, 0).parameters.value(L1("qbcloud"))[L1("qbcloud_addr")];
        QTest::newRow("at once") << FaultSpec{Fault::DropConnection} << old;
        QTest::newRow("new") << FaultSpec{Fault::DropAndReturn, 0, away} << QJsonValue(L1("new"));
        QTest::newRow("old") << FaultSpec{Fault::DropAndReturn, 0, away, ReturnWith::OldSettings} << old;
        QTest::newRow("missing") << FaultSpec{Fault::DropAndReturn, 0, away, ReturnWith::MissingMember}
                                 << QJsonValue(QJsonValue::Undefined);
    }

    void deviceDropsAndReturns()
    {
        QFETCH(FaultSpec, fault);
        QFETCH(QJsonValue, address);
        EmbeddedFleet fleet(site(1));
        QCOMPARE(fleet.start(), QString());
        const vms_sdk::DevInfo device = fleet.inventory().at(0);
        RawClient client(device);
        QTRY_VERIFY(client.state != 0);
        fleet.setFault(device.id, FaultPlan::any(), fault);
        client.request(L1("id"),
                       request("ifconfig_qbcloud_set_param", R"({"qbcloud_addr": "new", "qbcloud_en": true})"));
        QTRY_VERIFY(client.isClosed);
        QCOMPARE(client.frames.size(), 0);
        if (fault.fault == Fault::DropAndReturn)
            QCOMPARE(answerTo(device), QByteArray());

        fleet.clearFaults();
        QTRY_VERIFY(answerTo(device).startsWith("HTTP/1.1 101 "));
        RawClient again(device);
        QTRY_VERIFY(again.state != 0);
        again.request(L1("id"), request("ifconfig_qbcloud_get_param"));
        QTRY_COMPARE(again.frames.size(), 1);
        QCOMPARE(json(again.frames.constFirst().text.toUtf8())[L1("result")][L1("qbcloud_addr")], address);
    }

    void newerConnectionReplacesTheOlder()
    {
        EmbeddedFleet fleet(site(1));
        QCOMPARE(fleet.start(), QString());
        RawClient older(fleet.inventory().at(0));
        QTRY_VERIFY(older.state != 0);
        vms_sdk::DevInfo guessed = older.device;
        guessed.password = L1("guess");
        RawClient intruder(guessed);
        QTRY_VERIFY(intruder.isClosed);
        QVERIFY(!older.isClosed); // only one that knows the password takes a device over
        RawClient newer(older.device);
        QTRY_VERIFY(older.isClosed && newer.state != 0);
        fleet.setOnline(newer.device.id, false);
        QTRY_VERIFY(newer.isClosed);
        QTRY_COMPARE(fleet.connectedDevices(), 0);
    }

    void burstOfClientsIsServed()
    {
        EmbeddedFleet fleet(site(300));
        QCOMPARE(fleet.start(), QString());
        std::vector<std::unique_ptr<RawClient>> clients;
        const auto records = fleet.inventory();
        for (int i = 0; i < records.size(); ++i)
            if (makeSiteDevice(FleetOptions().seed, i).online)
                clients.push_back(std::make_unique<RawClient>(records.at(i)));
        QTRY_COMPARE_WITH_TIMEOUT(fleet.connectedDevices(), int(clients.size()), 20000);
    }

    void strangersAreTurnedAway()
    {
        FleetOptions options = site(1);
        auto fleet = std::make_unique<EmbeddedFleet>(options);
        QCOMPARE(fleet->start(), QString());
        vms_sdk::DevInfo device = fleet->inventory().at(0);
        device.path = L1("/dev-9999");
        QVERIFY(answerTo(device).startsWith("HTTP/1.1 404 "));
        QVERIFY(answerTo(QHostAddress::LocalHost, device.port, QByteArray(100000, 'x')).isEmpty());

        const auto addresses = QNetworkInterface::allAddresses();
        const auto outside = std::find_if(addresses.begin(), addresses.end(), [](const QHostAddress &address) {
            return address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback();
        });
        if (outside == addresses.end())
            QSKIP("this machine has no address but its own loopback");
        QVERIFY(answerTo(*outside, device.port, upgradeRequest(L1("/dev-0001"))).isEmpty());
        options.listenAddress = *outside;
        fleet = std::make_unique<EmbeddedFleet>(options);
        QCOMPARE(fleet->start(), QString());
        QVERIFY(answerTo(fleet->inventory().at(0)).startsWith("HTTP/1.1 101 "));
    }

    void tooManyDevicesForOneProcess()
    {
        EmbeddedFleet fleet(site(int(vms_sdk::raiseOpenFileLimit() / 2)));
        QVERIFY(fleet.start().contains(L1("orda_fleet --devices")));
    }

    void programWritesInventoryAndDump()
    {
        const QTemporaryDir dir;
        const QString inventoryFile = dir.filePath(L1("inventory.json"));
        const QString dumpFile = dir.filePath(L1("dump.json"));
        QProcess program;
        program.start(programFile(),
                      {L1("--devices"), L1("5"), L1("--inventory"), inventoryFile, L1("--dump"), dumpFile});
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
        QCOMPARE(json(dump.readAll())[L1("devices")].toObject().size(), 5);
    }

    void programExplainsWrongUsage_data()
    {
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("complaint");
        QTest::newRow("--devices 5") << 2 << "--inventory OUT is missing";
        QTest::newRow("--devices 0 --inventory x") << 2 << "--devices takes a whole number from 1 to ";
        QTest::newRow("--devices 1 --inventory x --tls cert.pem") << 2 << "--tls takes two files";
        QTest::newRow("--devices 1 --inventory x --listen localhost") << 2 << "--listen takes an IPv4 address";
        QTest::newRow("--devices 1 --inventory x y") << 2 << "unexpected argument \"y\"";
        QTest::newRow("--devices 1 --inventory x --faults /no/such") << 3 << "/no/such: cannot be read";
        QTest::newRow("--devices 1 --inventory x --tls /dev/null /dev/null") << 3 << "must be a certificate";
        QTest::newRow("--devices 1 --inventory /no/such/x") << 3 << "/no/such/x: cannot be written";
    }

    void programExplainsWrongUsage()
    {
        QFETCH(QString, complaint);
        QProcess program;
        program.start(programFile(), QString::fromLatin1(QTest::currentDataTag()).split(QLatin1Char(' ')));
        QVERIFY(program.waitForFinished());
        QTEST(program.exitCode(), "exitCode");
        const QString said = QString::fromUtf8(program.readAllStandardError());
        QVERIFY2(said.contains(complaint), qPrintable(said));
    }
};

ORDA_TEST_MAIN(FleetTest)
#include "fleet_test.moc"
