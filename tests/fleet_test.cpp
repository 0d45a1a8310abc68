#include "support/OrdaTest.h"
#include "support/RawClient.h"

#include <DeviceFleet.h>
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

#include <csignal>
#include <memory>

using namespace device_fleet;
Q_DECLARE_METATYPE(device_fleet::FaultSpec)

namespace {

QJsonObject json(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(text, &error).object();
    return error.error == QJsonParseError::NoError ? object : QJsonObject {{QStringLiteral("not JSON"), QString::fromUtf8(text)}};
}

QByteArray request(const char *method, const QByteArray &param = "{}")
{
    return QByteArray(R"({"method": ")") + method + R"(", "level": "Operator", "param": )" + param + "}";
}

int errorCode(const QJsonObject &answer)
{
    return answer.value(QLatin1String("error")).toObject().value(QLatin1String("errorcode")).toInt(1);
}

FleetOptions site(int devices)
{
    FleetOptions options;
    options.devices = devices;
    return options;
}

/// The first devices of a site that can be dialled.
QList<vms_sdk::DevInfo> reachable(const QList<vms_sdk::DevInfo> &records)
{
    QList<vms_sdk::DevInfo> found;
    for (int i = 0; i < records.size(); ++i) {
        if (makeSiteDevice(FleetOptions().seed, i).online)
            found.append(records.at(i));
    }
    return found;
}

QString writeFile(const QTemporaryDir &dir, const char *name, const QByteArray &content)
{
    QFile file(dir.filePath(QLatin1String(name)));
    file.open(QIODevice::WriteOnly);
    file.write(content);
    return file.fileName();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

} // namespace

class FleetTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void writeChangesWhatItNames_data();
    void writeChangesWhatItNames();
    void badRequestIsAnsweredWithAnError_data();
    void badRequestIsAnsweredWithAnError();
    void sameSeedGivesSameSite();
    void siteHasSomethingOfEverything_data();
    void siteHasSomethingOfEverything();
    void siteIsMostlyUsable();
    void wrongFaultFileIsExplained_data();
    void wrongFaultFileIsExplained();
    void narrowerFaultGoesFirst();
    void signOn_data();
    void signOn();
    void faultyAnswers_data();
    void faultyAnswers();
    void deviceDropsAndReturns_data();
    void deviceDropsAndReturns();
    void deviceGoesOffLineAndComesBack();
    void newerConnectionReplacesTheOlder();
    void burstOfClientsIsServed();
    void tlsWithTheFingerprintOfTheInventory();
    void otherMachinesAreTurnedAwayUnlessAsked();
    void tooManyDevicesForOneProcess();
    void programWritesInventoryAndDumps();
    void programExplainsWrongUsage_data();
    void programExplainsWrongUsage();
};

void FleetTest::writeChangesWhatItNames_data()
{
    QTest::addColumn<QByteArray>("writeRequest");
    QTest::addColumn<QByteArray>("readMethod");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const char *write, const char *param, const char *read, const char *expected) {
        QTest::newRow(name) << request(write, param) << QByteArray(read) << QByteArray(expected);
    };
    row("audio in", "ai_set_param", R"({"channelid": 0, "audioAttr": {"aiGain": 7}})", "ai_get_param", R"({"aiGain": 7, "bEnable": true})");
    row("audio out", "ao_set_param", R"({"channelid": 0, "audioAttr": {"aoGain": 7}})", "ao_get_param", R"({"aoGain": 7, "bEnable": true})");
    row("one stream", "stream_set_params", R"({"streams": [{"streamid": 1, "frameRate": 10}]})", "stream_get_params",
        R"({"streams": [{"streamid": 0, "frameRate": 25, "width": 1920}, {"streamid": 1, "frameRate": 10, "width": 704}]})");
    row("image adjust", "image_set_adjust_param", R"({"channelid": 0, "attr": {"flip": "both"}})", "image_get_adjust_param",
        R"({"flip": "both", "hue": 50})");
    row("image expert", "image_set_expertsetting_param", R"({"channelid": 0, "attr": {"expertmode": "indoor"}})",
        "image_get_expertsetting_param", R"({"expertmode": "indoor"})");
    row("day-night", "image_set_dncut_param", R"({"channelid": 0, "attr": {"lightmode": "ir"}})", "image_get_dncut_param",
        R"({"lightmode": "ir"})");
    row("osd", "chnosd_set_param", R"({"channelid": 0, "attr": {"channelName": ""}})", "chnosd_get_param",
        R"({"bShowOSD": true, "channelName": ""})");
    row("discovery, without bdefault", "netservice_onvif_set_discoveryinfo", R"({"discoveryflag": 1, "bdefault": false})",
        "netservice_onvif_get_discoveryinfo", R"({"discoveryflag": 1})");
    row("network, without clienttype", "ifconfig_eth_set", R"({"bIPLock": true, "clienttype": "web"})", "ifconfig_get_inet",
        R"({"eth": {"bIPLock": true, "speed": "auto"}, "httpPort": 80})");
    row("cloud", "ifconfig_qbcloud_set_param", R"({"qbcloud_en": false, "qbcloud_type": "private"})", "ifconfig_qbcloud_get_param",
        R"({"qbcloud_en": false, "qbcloud_type": "private", "qbcloud_addr": "a"})");
    row("alarm service", "alarmservice_set_cfg", R"({"onlineserverport": 1})", "alarmservice_get_cfg",
        R"({"bEnable": true, "onlineserverport": 1})");
}

void FleetTest::writeChangesWhatItNames()
{
    QFETCH(QByteArray, writeRequest);
    QFETCH(QByteArray, readMethod);
    QFETCH(QByteArray, expected);
    const QJsonObject before = json(R"({
        "audioIn": {"aiGain": 50, "bEnable": true}, "audioOut": {"aoGain": 50, "bEnable": true},
        "video": {"streams": [{"streamid": 0, "frameRate": 25, "width": 1920}, {"streamid": 1, "frameRate": 25, "width": 704}]},
        "imageAdjust": {"flip": "off", "hue": 50}, "imageExpert": {"expertmode": "auto"}, "imageDayNight": {"lightmode": "off"},
        "osd": {"bShowOSD": true, "channelName": "Gate 1"}, "onvifDiscovery": {"discoveryflag": 0},
        "inet": {"eth": {"bIPLock": false, "speed": "auto"}, "httpPort": 80},
        "qbcloud": {"qbcloud_en": true, "qbcloud_type": "public", "qbcloud_addr": "a"},
        "alarmService": {"bEnable": true, "onlineserverport": 15030}})");
    SimulatedDevice device(QStringLiteral("d"), before);

    const QJsonObject written = device.answer(json(writeRequest));
    QCOMPARE(errorCode(written), 0);
    QCOMPARE(written.value(QLatin1String("method")), json(writeRequest).value(QLatin1String("method")));
    QCOMPARE(device.answer(json(request(readMethod))).value(QLatin1String("result")).toObject(), json(expected));
    int changedObjects = 0;
    for (auto it = before.begin(); it != before.end(); ++it)
        changedObjects += device.parameters().value(it.key()) == it.value() ? 0 : 1;
    QCOMPARE(changedObjects, 1);
}

void FleetTest::badRequestIsAnsweredWithAnError_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("code");
    QTest::newRow("not JSON") << QByteArray("hello") << int(DeviceBadRequest);
    QTest::newRow("no method") << QByteArray("{}") << int(DeviceBadRequest);
    QTest::newRow("unknown method") << request("reboot") << int(DeviceUnknownMethod);
    QTest::newRow("attributes at the wrong place") << request("ai_set_param", R"({"attr": {"aiGain": 1}})") << int(DeviceBadParameter);
    QTest::newRow("stream that is not there")
        << request("stream_set_params", R"({"streams": [{"streamid": 0, "width": 1}, {"streamid": 9}]})") << int(DeviceBadParameter);
}

void FleetTest::badRequestIsAnsweredWithAnError()
{
    QFETCH(QByteArray, text);
    QFETCH(int, code);
    SimulatedDevice device(QStringLiteral("d"), makeSiteDevice(1, 0).parameters);
    const QJsonObject before = device.parameters();
    QCOMPARE(errorCode(device.answer(QJsonDocument::fromJson(text).object())), code);
    QCOMPARE(device.parameters(), before);
}

void FleetTest::sameSeedGivesSameSite()
{
    const SiteDevice first = makeSiteDevice(7, 3);
    const SiteDevice again = makeSiteDevice(7, 3);
    QCOMPARE(again.info, first.info);
    QCOMPARE(again.parameters, first.parameters);
    QVERIFY(makeSiteDevice(8, 3).parameters != first.parameters);
}

void FleetTest::siteHasSomethingOfEverything()
{
    std::vector<SiteDevice> devices;
    for (int i = 0; i < 200; ++i)
        devices.push_back(makeSiteDevice(FleetOptions().seed, i));

    struct Trait
    {
        const char *name;
        std::function<bool(const SiteDevice &)> has;
    };
    const auto streams = [](const SiteDevice &d) { return d.parameters[QLatin1String("video")][QLatin1String("streams")].toArray().size(); };
    const auto eth = [](const SiteDevice &d) { return d.parameters[QLatin1String("inet")][QLatin1String("eth")]; };
    const std::vector<Trait> traits {
        {"camera", [](const SiteDevice &d) { return d.info.kindCode == 1; }},
        {"recorder", [](const SiteDevice &d) { return d.info.kindCode == 6; }},
        {"other kind", [](const SiteDevice &d) { return d.info.kindCode != 1 && d.info.kindCode != 6; }},
        {"reached otherwise", [](const SiteDevice &d) { return d.info.accessCode != 1; }},
        {"off line", [](const SiteDevice &d) { return !d.online; }},
        {"factory password", [](const SiteDevice &d) { return d.state == vms_sdk::DevDefaultPassword; }},
        {"locked", [](const SiteDevice &d) { return d.state == vms_sdk::DevLocked; }},
        {"cloud device", [](const SiteDevice &d) { return d.info.ip.isEmpty(); }},
        {"weak password", [](const SiteDevice &d) { return d.state == vms_sdk::DevOnline && d.info.password.size() < 8; }},
        {"empty name", [](const SiteDevice &d) { return d.info.name.isEmpty(); }},
        {"long name", [](const SiteDevice &d) { return d.info.name.size() > 60; }},
        {"non-ASCII name", [](const SiteDevice &d) { return d.info.name.toUtf8().size() != d.info.name.size(); }},
        {"one stream", [&](const SiteDevice &d) { return streams(d) == 1; }},
        {"two streams", [&](const SiteDevice &d) { return streams(d) == 2; }},
        {"three streams", [&](const SiteDevice &d) { return streams(d) == 3; }},
        {"no eth", [&](const SiteDevice &d) { return eth(d).isUndefined(); }},
        {"no speed", [&](const SiteDevice &d) { return eth(d).isObject() && eth(d)[QLatin1String("speed")].isUndefined(); }},
        {"no large font", [](const SiteDevice &d) { return d.parameters[QLatin1String("osd")][QLatin1String("bLargeOSD")].isUndefined(); }},
    };
    for (const Trait &trait : traits) {
        const auto count = std::count_if(devices.begin(), devices.end(), trait.has);
        QVERIFY2(count > 0 && count < 200, trait.name);
    }

    QSet<QString> serialNumbers;
    QSet<quint32> addresses;
    int usable = 0; // on line, of a kind that is listed, and with an address
    for (const SiteDevice &d : devices) {
        serialNumbers.insert(d.info.serialNumber);
        addresses.insert(d.info.ipNumber);
        usable += d.online && d.info.accessCode == 1 && (d.info.kindCode == 1 || d.info.kindCode == 6) && d.info.ipNumber != 0;
        QCOMPARE(d.parameters.size(), SimulatedDevice::methods().size() / 2);
    }
    QCOMPARE(serialNumbers.size(), 200);
    QCOMPARE(addresses.size(), 201 - int(std::count_if(devices.begin(), devices.end(), traits.at(7).has)));
    QVERIFY2(usable >= 170, qPrintable(QString::number(usable)));
}

void FleetTest::wrongFaultFileIsExplained_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error"); // empty: one warning instead
    const auto row = [](const char *name, const char *text, const char *error) {
        QTest::newRow(name) << QByteArray(text) << QString::fromLatin1(error);
    };
    row("not JSON", "{", "faults.json: is not JSON");
    row("no list", R"({"faults": {}})", "faults.json: field \"faults\": must be a list");
    row("entry is no object", R"({"faults": ["garbage"]})", "faults[0]: must be an object");
    row("unknown fault", R"({"faults": [{"fault": "garbage"}, {"fault": "slow"}]})", "faults[1]: field \"fault\": must be one of error-code, ");
    row("no fault", R"({"faults": [{}]})", "field \"fault\": must be one of");
    row("unknown method", R"({"faults": [{"fault": "garbage", "methods": ["ai_get"]}]})", "field \"methods\": \"ai_get\" is none of");
    row("one device without a list", R"({"faults": [{"fault": "garbage", "devices": "dev-0001"}]})", "field \"devices\": must be a list");
    row("success as error", R"({"faults": [{"fault": "error-code", "errorcode": 0}]})", "field \"errorcode\": must not be 0");
    row("half a millisecond", R"({"faults": [{"fault": "late-answer", "delayMs": 0.5}]})", "field \"delayMs\": must be a whole number");
    row("unknown settings", R"({"faults": [{"fault": "drop-and-return", "returnWith": "x"}]})", "must be one of new-settings");
    row("unknown key", R"({"faults": [{"fault": "garbage", "delay": 5}]})", "");
}

void FleetTest::wrongFaultFileIsExplained()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    const QTemporaryDir dir;
    QString readError;
    QStringList warnings;
    const FaultPlan plan = FaultPlan::read(writeFile(dir, "faults.json", text), &readError, &warnings);
    QVERIFY2(readError.contains(error), qPrintable(readError));
    QCOMPARE(readError.isEmpty(), error.isEmpty());
    QCOMPARE(warnings.join(QString()).contains(QLatin1String("faults[0]: unknown key \"delay\"")), error.isEmpty());
    QCOMPARE(plan.find(QStringLiteral("d"), QStringLiteral("ai_get_param")).has_value(), error.isEmpty());
}

void FleetTest::narrowerFaultGoesFirst()
{
    const QString all = FaultPlan::any();
    FaultPlan plan;
    plan.set(all, all, {Fault::Garbage});
    plan.set(all, QStringLiteral("m"), {Fault::NoAnswer});
    plan.set(QStringLiteral("d"), all, {Fault::NoResult});
    plan.set(QStringLiteral("d"), QStringLiteral("m"), {Fault::ForeignId});
    const auto fault = [&plan](const char *device, const char *method) {
        return plan.find(QLatin1String(device), QLatin1String(method))->fault;
    };
    QCOMPARE(fault("d", "m"), Fault::ForeignId);
    QCOMPARE(fault("d", "x"), Fault::NoResult);
    QCOMPARE(fault("x", "m"), Fault::NoAnswer);
    QCOMPARE(fault("x", "x"), Fault::Garbage);
}

void FleetTest::signOn_data()
{
    using Spoil = std::function<void(RawClient &)>;
    QTest::addColumn<Spoil>("spoil");
    QTest::addColumn<bool>("isWelcome");
    QTest::newRow("right password") << Spoil([](RawClient &) {}) << true;
    QTest::newRow("wrong password") << Spoil([](RawClient &c) { c.device.password += QLatin1Char('x'); }) << false;
    QTest::newRow("wrong user") << Spoil([](RawClient &c) { c.device.userName = QStringLiteral("root"); }) << false;
    QTest::newRow("short nonce") << Spoil([](RawClient &c) { c.nonce = QByteArray("123456789012345").toBase64(); }) << false;
}

void FleetTest::signOn()
{
    QFETCH(std::function<void(RawClient &)>, spoil);
    QFETCH(bool, isWelcome);
    EmbeddedFleet fleet(site(20));
    QCOMPARE(fleet.start(), QString());
    const auto devices = reachable(fleet.inventory());
    for (const vms_sdk::DevInfo &device : devices) {
        RawClient client(device);
        spoil(client);
        QTRY_VERIFY(client.state != 0 || client.isClosed);
        const int index = device.id.mid(4).toInt() - 1;
        QCOMPARE(client.state, isWelcome ? int(makeSiteDevice(1, index).state) : 0);
        QCOMPARE(int(client.socket.closeCode()) == vms_sdk::signOnRefusedCode, !isWelcome);
    }
}

void FleetTest::faultyAnswers_data()
{
    QTest::addColumn<FaultSpec>("fault");
    QTest::addColumn<QStringList>("answers"); // patterns of what comes, id line first; "closed" for the connection's end
    QTest::addColumn<bool>("isWritten");
    const QString good = QStringLiteral("^id\n.*\"errorcode\":0.*ai_set_param");
    const auto row = [](const char *name, const FaultSpec &fault, const QStringList &answers, bool isWritten) {
        QTest::newRow(name) << fault << answers << isWritten;
    };
    row("error code", {Fault::ErrorCode, -77}, {QStringLiteral("^id\n.*\"errorcode\":-77.*ai_set_param")}, false);
    row("garbage", {Fault::Garbage}, {QStringLiteral("^id\n(?!.*errorcode)")}, true);
    row("no answer", {Fault::NoAnswer}, {}, false);
    row("late", {Fault::LateAnswer, 0, std::chrono::milliseconds(50)}, {good}, true);
    row("twice", {Fault::AnswerTwice}, {good, good}, true);
    row("foreign id", {Fault::ForeignId}, {QStringLiteral("^(?!id\n).+\n.*ai_set_param")}, true);
    row("foreign method", {Fault::ForeignMethod}, {QStringLiteral("^id\n(?!.*ai_set_param)")}, true);
    row("huge", {Fault::HugeAnswer}, {QStringLiteral("^id\n.{1048576}")}, true);
    row("dropped", {Fault::DropConnection}, {QStringLiteral("closed")}, false);
}

void FleetTest::faultyAnswers()
{
    QFETCH(FaultSpec, fault);
    QFETCH(QStringList, answers);
    QFETCH(bool, isWritten);
    EmbeddedFleet fleet(site(2));
    QCOMPARE(fleet.start(), QString());
    RawClient client(fleet.inventory().at(0));
    QTRY_VERIFY(client.state != 0);
    const QJsonObject before = fleet.dump();
    fleet.setFault(client.device.id, QStringLiteral("ai_set_param"), fault);

    client.request(QStringLiteral("id"), request("ai_set_param", R"({"channelid": 0, "audioAttr": {"aiGain": 99}})"));
    client.request(QStringLiteral("next"), request("ao_get_param")); // its answer tells that nothing else will come
    const auto texts = [&client] {
        QStringList all;
        for (const vms_sdk::DeviceFrame &frame : qAsConst(client.frames))
            all.append(vms_sdk::toFrameText(frame));
        all.removeAll(all.filter(QRegularExpression(QStringLiteral("^next\n"))).value(0));
        if (client.isClosed)
            all.append(QStringLiteral("closed"));
        return all;
    };
    QTRY_VERIFY(client.isClosed || client.frames.size() == answers.size() + 1);
    QCOMPARE(texts().size(), answers.size());
    for (int i = 0; i < answers.size(); ++i) {
        const QRegularExpression pattern(answers.at(i), QRegularExpression::DotMatchesEverythingOption);
        QVERIFY2(pattern.match(texts().at(i)).hasMatch(), qPrintable(texts().at(i).left(200)));
    }
    QCOMPARE(fleet.dump() != before, isWritten);
}
