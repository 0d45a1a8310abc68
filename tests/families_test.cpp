#include "support/FamilyTable.h"
#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <onvif/OnvifParamsCfgPage.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/EventConfirmInfo.h>

#include <QComboBox>
#include <QStackedWidget>

using namespace std::chrono_literals;
using Request = ScriptedTransport::Request;

namespace {

/// A device's objects by read method; some lack keys that others have.
QJsonObject ordinaryDevice()
{
    return QJsonDocument::fromJson(R"({
        "stream_get_params": {"streams": [{"streamid": 0, "venctype": "h265", "width": 1, "frameRate": 5, "gop": 50},
                                          {"streamid": 1, "venctype": "h265", "smartencode": "close"},
                                          {"streamid": 2, "venctype": "h265"}], "other": 1},
        "ai_get_param": {"bEnable": true, "aiGain": 9, "mic": 1}, "ao_get_param": {"aoGain": 9},
        "image_get_adjust_param": {"flip": "both", "hue": 50}, "image_get_dncut_param": {"lightmode": "off"},
        "image_get_expertsetting_param": {"wdr": 1},
        "chnosd_get_param": {"bShowOSD": true, "timeFormat": "x", "timePos": "hide", "channelName": "old", "colour": 3},
        "netservice_onvif_get_discoveryinfo": {"discoveryflag": 1, "scope": "all"},
        "ifconfig_get_inet": {"eth": {"bIPLock": true, "bSmartOnline": true, "speed": "auto", "mtu": 1500}, "dns": 1},
        "ifconfig_qbcloud_get_param": {"qbcloud_en": true, "qbcloud_addr": "old", "qbcloud_type": "other"},
        "alarmservice_get_cfg": {"bEnable": true, "onlineserverip": "1.1.1.1", "onlineserverport": 1,
                                 "businessserverip": "2.2.2.2", "bManualcfgonline": true, "bManualcfgbussiness": true}
    })")
        .object();
}

QStringList answers(const QJsonObject &device, const Request &request)
{
    return {answer(request.method(), device.value(request.method()).toObject())};
}

using Prepare = std::function<void(QWidget *page)>;

/// The form with one page opened.
class PageFixture : public FormFixture
{
public:
    PageFixture(const FamilyRow &opened, int devices, const ScriptedTransport::Script &script,
                std::chrono::milliseconds waitingTime = 5s)
        : FormFixture(devices, script, waitingTime)
        , m_family(opened)
    {
        QFile::remove(recordPath(opened));
        if (opened.navigationKey.isEmpty()) {
            auto *stack = form->findChild<QStackedWidget *>();
            stack->setCurrentIndex(stack->addWidget(new orda_batchCfg::OnvifParamsCfgPage(form)));
        }
        tickAll();
    }

    QWidget *theirPage() const { return form->findChild<QWidget *>(m_family.pageName); }

    /// Leaves only these parameters ticked, and these streams where the page has any.
    void select(const QString &boxes) const
    {
        const QStringList wanted = boxes.split(' ');
        const auto all = theirPage()->findChildren<QCheckBox *>();
        for (QCheckBox *box : all)
            if (!box->objectName().startsWith("all") && wanted.contains(box->objectName()) != box->isChecked())
                box->click();
    }

    orda_worker::EventConfirmInfo run() const
    {
        const QSignalSpy summaries(&orda_worker::AssistantSignals::instance(),
                                   &orda_worker::AssistantSignals::signalEventConfirmRaised);
        if (!m_family.navigationKey.isEmpty())
            configure(m_family.navigationKey, m_family.pageName);
        else
            theirPage()->findChild<QAbstractButton *>("okBt")->click();
        return summaries.value(0).value(0).value<orda_worker::EventConfirmInfo>();
    }

private:
    FamilyRow m_family;
};

template <typename Editor>
Editor *editor(const QWidget *page, const char *name)
{
    return page->findChild<Editor *>(name);
}

} // namespace

Q_DECLARE_METATYPE(Prepare)

namespace {

void nothing(QWidget *) { }

Prepare settingText(const char *name, const char *value)
{
    return [=](QWidget *page) { editor<QLineEdit>(page, name)->setText(value); };
}

/// @p requests method and "param"
void addRow(const char *rowName, const char *name, const char *boxes, const QByteArrayList &requests,
            const Prepare &prepare = nothing, const QJsonObject &device = ordinaryDevice())
{
    QTest::addRow("%s, %s", name, rowName) << QString(name) << QString(boxes) << prepare << requests << device;
}

void addAudioRows()
{
    const QByteArray aiGet = R"(ai_get_param {"channelid": 0})";
    addRow("some", "audio", "audioEnable audioInVolume",
           {aiGet, R"(ai_set_param {"channelid": 0, "audioAttr": {"bEnable": false, "aiGain": 50, "mic": 1}})"});
    addRow("output only", "audio", "alarmOutVolume",
           {R"(ao_get_param {"channelid": 0})", R"(ao_set_param {"channelid": 0, "audioAttr": {"aoGain": 50}})"});
    addRow("what the device lacks", "audio", "samplingRate",
           {aiGet, R"(ai_set_param {"channelid": 0, "audioAttr": {"bEnable": true, "aiGain": 9, "mic": 1}})"});
}

void addVideoRows()
{
    const QByteArray streams = R"(stream_get_params {"channelid": -1})";
    const QByteArray third = R"({"streamid": 2, "venctype": "h265"}]})";
    const QByteArray second = R"({"streamid": 1, "venctype": "h265", "smartencode": "close"}, )";
    const QByteArray first = R"(stream_set_params {"streams": [{"streamid": 0, "venctype": "h265", "width": 1, )";
    addRow("everything", "video", "HDStream SDStream smartEncoding encodingFormat resolution frameRate bitRate",
           {streams, R"(stream_set_params {"streams": [{"streamid": 0, "venctype": "h264", "width": 1920,
            "height": 1080, "frameRate": 25, "rcMode": "vbr", "quality": 60, "bitRate": 1024, "smartencode": "open",
            "gop": 50}, {"streamid": 1, "venctype": "h264", "width": 704, "height": 576, "frameRate": 25,
            "rcMode": "vbr", "quality": 60, "bitRate": 1024, "smartencode": "close"}, )"
                         + third});
    addRow("one stream", "video", "HDStream frameRate",
           {streams, first + R"("frameRate": 25, "gop": 50}, )" + second + third});
    addRow("smart encoding of the main stream only", "video", "SDStream smartEncoding frameRate",
           {streams, first + R"("frameRate": 5, "gop": 50}, )"
                         + R"({"streamid": 1, "venctype": "h265", "smartencode": "close", "frameRate": 25}, )"
                         + third});
    // The hidden panel remembers the groups that it showed last.
    addRow("smart encoding alone, after frame rate", "video", "HDStream smartEncoding",
           {streams, first + R"("frameRate": 30, "smartencode": "autoopen", "gop": 50}, )" + second + third},
           [](QWidget *page) {
               for (const char *name : {"encodingFormat", "resolution", "bitRate", "frameRate"})
                   editor<QCheckBox>(page, name)->click();
               page->findChildren<QComboBox *>("frameRate").constFirst()->setCurrentIndex(8);
               editor<QComboBox>(page, "smartEncodingCtrl")->setCurrentIndex(2);
           });
    addRow("nothing there", "video", "HDStream frameRate", {streams, R"(stream_set_params {"streams": []})"}, nothing,
           QJsonObject());
}

void addImageRows()
{
    const QByteArray adjust = R"(image_set_adjust_param {"channelid": 0, "attr": {"flip": "off", "hue": 50}})";
    const QByteArray zero = R"( {"channelid": 0})";
    addRow("everything", "image", "imageFlip expertMode lightMode",
           {"image_get_adjust_param" + zero, adjust, "image_get_dncut_param" + zero,
            R"(image_set_dncut_param {"channelid": 0, "attr": {"lightmode": "ir"}})",
            "image_get_expertsetting_param" + zero,
            R"(image_set_expertsetting_param {"channelid": 0, "attr": {"wdr": 1}})"});
    addRow("flip and expert", "image", "imageFlip expertMode",
           {"image_get_adjust_param" + zero, adjust, "image_get_expertsetting_param" + zero,
            R"(image_set_expertsetting_param {"channelid": 0, "attr": {"wdr": 1}})"});
    addRow("light", "image", "lightMode",
           {"image_get_dncut_param" + zero, R"(image_set_dncut_param {"channelid": 0, "attr": {"lightmode": "ir"}})"});
}

void addOsdRows()
{
    const QByteArray osdGet = R"(chnosd_get_param {"channelid": 0})";
    addRow("everything", "osd", "osdVisible timeFormat timePosition name namePosition largeFont",
           {osdGet, R"(chnosd_set_param {"channelid": 0, "attr": {"bShowOSD": false, "colour": 3,
            "timeFormat": "YYYY-MM-DD hh:mm:ss", "timePos": "left_top", "channelName": "HD IPC"}})"});
    addRow("an empty name", "osd", "name",
           {osdGet, R"(chnosd_set_param {"channelid": 0, "attr": {"bShowOSD": true, "timeFormat": "x",
            "timePos": "hide", "channelName": "", "colour": 3}})"},
           settingText("nameParam", ""));
    addRow("another time format and position, and a name that is too long", "osd", "timeFormat timePosition name",
           {osdGet, R"(chnosd_set_param {"channelid": 0, "attr": {"bShowOSD": true,
            "timeFormat": "DD/MM/YYYY hh:mm:ss", "timePos": "hide", "channelName": "a name of at most 32 characters ",
            "colour": 3}})"},
           [](QWidget *page) {
               editor<QLineEdit>(page, "nameParam")->setText("a name of at most 32 characters  and more");
               editor<QComboBox>(page, "timeFormatParam")->setCurrentIndex(2);
               editor<QComboBox>(page, "timePositionParam")->setCurrentIndex(4);
           });
    addRow("nothing there", "osd", "name", {osdGet, R"(chnosd_set_param {"channelid": 0, "attr": {}})"}, nothing,
           QJsonObject());
}

void addNetworkRows()
{
    const QByteArray discoveryGet = "netservice_onvif_get_discoveryinfo";
    const QByteArray discoverySet =
        R"(netservice_onvif_set_discoveryinfo {"discoveryflag": 0, "scope": "all", "bdefault": false})";
    const QByteArray ethSet =
        R"(ifconfig_eth_set {"bIPLock": false, "bSmartOnline": false, "mtu": 1500, "clienttype": "web"})";
    addRow("everything", "network", "compatibleEnable lockIpEnable smartOnlineEnable",
           {discoveryGet, discoverySet, "ifconfig_get_inet", ethSet});
    addRow(
        "compatible", "network", "compatibleEnable",
        {discoveryGet, R"(netservice_onvif_set_discoveryinfo {"discoveryflag": 1, "scope": "all", "bdefault": false})"},
        [](QWidget *page) { editor<QAbstractButton>(page, "compatibleSwitch")->click(); });
    addRow("smart online", "network", "smartOnlineEnable",
           {"ifconfig_get_inet",
            R"(ifconfig_eth_set {"bIPLock": true, "bSmartOnline": false, "mtu": 1500, "clienttype": "web"})"});
    addRow("nothing there", "network", "lockIpEnable",
           {"ifconfig_get_inet", R"(ifconfig_eth_set {"clienttype": "web"})"}, nothing, QJsonObject());
}

void addPlatformRows()
{
    const QByteArray cloudGet = R"(ifconfig_qbcloud_get_param {"qbcloud_type": "public", "bdefault": false})";
    addRow("everything", "platform", "serviceEnable serviceAddress",
           {cloudGet, R"(ifconfig_qbcloud_set_param {"qbcloud_en": false, "qbcloud_addr": " a ",
            "qbcloud_type": "public"})"},
           settingText("serviceAddressParam", " a "));
    addRow("the private cloud's switch", "platform", "serviceEnable",
           {R"(ifconfig_qbcloud_get_param {"qbcloud_type": "private", "bdefault": false})",
            R"(ifconfig_qbcloud_set_param {"qbcloud_en": false, "qbcloud_addr": "old", "qbcloud_type": "private"})"},
           [](QWidget *page) { editor<QComboBox>(page, "serviceType")->setCurrentIndex(1); });
    addRow(
        "an empty address", "platform", "serviceAddress",
        {cloudGet, R"(ifconfig_qbcloud_set_param {"qbcloud_en": true, "qbcloud_addr": "", "qbcloud_type": "public"})"},
        settingText("serviceAddressParam", ""));
    addRow("nothing there", "platform", "serviceEnable",
           {cloudGet, R"(ifconfig_qbcloud_set_param {"qbcloud_en": false, "qbcloud_type": "public"})"}, nothing,
           QJsonObject());
}

void addPlatform9100Rows()
{
    const QByteArray alarmGet = "alarmservice_get_cfg {}";
    addRow("switch only", "platform_9100", "serviceEnable",
           {alarmGet, R"(alarmservice_set_cfg {"bEnable": false, "onlineserverip": "1.1.1.1",
            "onlineserverport": 1, "businessserverip": "2.2.2.2"})"});
    addRow("blank addresses", "platform_9100", "serviceAddress",
           {alarmGet, R"(alarmservice_set_cfg {"bEnable": true, "bManualcfgonline": false,
            "bManualcfgbussiness": false, "onlineserverip": "1.1.1.1", "onlineserverport": 1,
            "businessserverip": "2.2.2.2"})"},
           settingText("onlineUrl", "  "));
    addRow("both servers, one without a port", "platform_9100", "serviceEnable serviceAddress",
           {alarmGet, R"(alarmservice_set_cfg {"bEnable": false, "bManualcfgonline": true,
            "bManualcfgbussiness": true, "onlineserverip": "o.example", "onlineserverport": 15030,
            "businessserverip": "b.example", "businessserverport": 0})"},
           [](QWidget *page) {
               editor<QLineEdit>(page, "onlineUrl")->setText(" o.example ");
               editor<QLineEdit>(page, "bussinessUrl")->setText("b.example");
               QTest::keyClicks(editor<QLineEdit>(page, "onlinePort"), "x");
               editor<QLineEdit>(page, "bussinessPort")->clear();
           });
    addRow("everything", "onvif", "compatibleEnable",
           {"netservice_onvif_get_discoveryinfo {}",
            R"(netservice_onvif_set_discoveryinfo {"discoveryflag": 0, "bdefault": false})"});
    addRow("nothing there", "platform_9100", "serviceEnable", {alarmGet, R"(alarmservice_set_cfg {"bEnable": false})"},
           nothing, QJsonObject());
}

} // namespace

/// Each family on the wire: which requests it sends and with what, and what it says when a device refuses or is silent.
class FamiliesTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void writesWhatWasSelected_data()
    {
        columns<QString, QString, Prepare, QByteArrayList, QJsonObject>(
            {"name", "boxes", "prepare", "requests", "device"});
        for (const auto addRows : {addAudioRows, addVideoRows, addImageRows, addOsdRows, addNetworkRows,
                                   addPlatformRows, addPlatform9100Rows})
            addRows();
    }

    void writesWhatWasSelected()
    {
        QFETCH(QString, name);
        QFETCH(QString, boxes);
        QFETCH(Prepare, prepare);
        QFETCH(QByteArrayList, requests);
        QFETCH(QJsonObject, device);
        const PageFixture f(familyRow(name), 1, [&device](const Request &request) { return answers(device, request); });
        prepare(f.theirPage());
        f.select(boxes);
        QCOMPARE(f.run().text, "A total of 1 devices have been configured, success:1, failure:0");

        QCOMPARE(f.transport->methods().join('\n'), [&requests] {
            QStringList methods;
            for (const QByteArray &request : requests)
                methods.append(request.split(' ').constFirst());
            return methods.join('\n');
        }());
        for (int i = 0; i < requests.size(); ++i) {
            const QJsonObject sent = f.transport->requests.at(i).json();
            const QByteArray param = requests.at(i).mid(sent.value("method").toString().size());
            QJsonObject expected{{"method", sent.value("method")}, {"level", "Operator"}};
            if (!param.isEmpty()) {
                QJsonParseError error{};
                expected.insert("param", QJsonDocument::fromJson(param, &error).object());
                QCOMPARE(error.errorString(), "no error occurred");
            }
            QCOMPARE(QJsonDocument(sent).toJson(), QJsonDocument(expected).toJson());
        }
    }

    void isNamedAsItsUsersKnowIt_data()
    {
        columns<QString, QString, QString, QString>({"title", "timeout", "methods", "things"}); // in the failure texts
        row("audio", "Audio", "audio", "ai_get_param ai_set_param ao_get_param ao_set_param", "audio in,audio out");
        row("video", "Video", "stream", "stream_get_params stream_set_params", "stream");
        row("image", "Image", "image",
            "image_get_adjust_param image_set_adjust_param image_get_dncut_param image_set_dncut_param "
            "image_get_expertsetting_param image_set_expertsetting_param",
            "image adjust,image day-night,image expert");
        row("osd", "OSD", "osd", "chnosd_get_param chnosd_set_param", "osd");
        row("network", "Network", "network",
            "netservice_onvif_get_discoveryinfo netservice_onvif_set_discoveryinfo ifconfig_get_inet ifconfig_eth_set",
            "onvif discovery,ip");
        row("platform", "Platform", "platform", "ifconfig_qbcloud_get_param ifconfig_qbcloud_set_param", "platform");
        row("platform_9100", "Platform 9100", "platform 9100", "alarmservice_get_cfg alarmservice_set_cfg",
            "platform 9100");
        row("onvif", "Onvif", "onvif discovery",
            "netservice_onvif_get_discoveryinfo netservice_onvif_set_discoveryinfo", "onvif discovery");
    }

    void isNamedAsItsUsersKnowIt()
    {
        QFETCH(QString, title);
        QFETCH(QString, timeout);
        QFETCH(QString, things);
        const QString name = QTest::currentDataTag();
        const FamilyRow &family = familyRow(name);
        QCOMPARE(family.title, title + " Parameters Configuration Result");
        QCOMPARE(family.recordFile, "vms_" + name + "_params_batch_cfg_record.txt");
        QCOMPARE(family.timeoutText, "set " + timeout + " parameters time out");
        QTEST(family.methods.join(' '), "methods");
        QStringList failures;
        const QStringList parts = things.split(',');
        for (const QString &thing : parts)
            for (const char *step : {"get", "set"})
                failures.append(QString("Failed to ") + step + ' ' + thing + " parameters(%1)");
        QCOMPARE(family.failures, failures);
    }

    void saysWhichStepFailed_data()
    {
        columns<QString, int>({"name", "step"});
        for (const FamilyRow &f : familyTable())
            for (int step = 0; step < f.methods.size(); ++step)
                QTest::addRow("%s", qPrintable(f.name + ": " + f.methods.at(step))) << f.name << step;
    }

    void saysWhichStepFailed()
    {
        QFETCH(QString, name);
        QFETCH(int, step);
        const FamilyRow &theirs = familyRow(name);
        const QString faulty = theirs.methods.at(step);
        const PageFixture f(
            theirs, 4,
            [&faulty](const Request &request) -> QStringList {
                if (request.method() != faulty || request.devId == "dev0")
                    return answers(ordinaryDevice(), request);
                if (request.devId == "dev1")
                    return {answer(faulty, {}, -7)};
                return request.devId == "dev2" ? QStringList("{") : QStringList();
            },
            100ms);
        const orda_worker::EventConfirmInfo summary = f.run();
        QCOMPARE(summary.title, theirs.title);
        QCOMPARE(summary.text, "A total of 4 devices have been configured, success:1, failure:3");
        const QMap<QString, QString> expected{{"SN0", "success"},
                                              {"SN1", theirs.failures.at(step).arg(-7)},
                                              {"SN2", "Failed to parse json data"},
                                              {"SN3", theirs.timeoutText}};
        QCOMPARE(recordedMessages(theirs), expected);
        for (const char *id : {"dev0", "dev1", "dev2", "dev3"}) {
            QStringList methods;
            for (const Request &request : qAsConst(f.transport->requests))
                if (request.devId == id)
                    methods.append(request.method());
            QCOMPARE(methods, theirs.methods.mid(0, qstrcmp(id, "dev0") == 0 ? -1 : step + 1));
        }
    }

    void cloudSettingsAreCheckedWhenTheDeviceIsBack_data()
    {
        columns<QString, QString>({"device", "message"}); // when it is read again
        const char *const failed = "Failed to set platform parameters(-1)";
        const char *const same = R"({"qbcloud_en": false, "qbcloud_addr": "new", "qbcloud_type": "public", "more": 1})";
        row("new settings", same, "success");
        row("old settings", R"({"qbcloud_en": true, "qbcloud_addr": "old"})", failed);
        row("one is missing", R"({"qbcloud_en": false, "qbcloud_addr": "new"})", failed);
        row("a number for a switch", R"({"qbcloud_en": 0, "qbcloud_addr": "new", "qbcloud_type": "public"})", failed);
    }

    void cloudSettingsAreCheckedWhenTheDeviceIsBack()
    {
        QFETCH(QString, device);
        QFETCH(QString, message);
        auto &store = orda_data::DevsMgrData::instance();
        const QString set = "ifconfig_qbcloud_set_param";
        const auto blink = [&store](const QString &id) {
            store.setDevStatus(id, vms_sdk::DevOffline);
            store.setDevStatus(id, vms_sdk::DevLocked);
        };
        int reads = 0;
        const PageFixture f(familyRow("platform"), 2, [&](const Request &request) -> QStringList {
            if (request.devId == "dev1")
                return answers(ordinaryDevice(), request);
            if (request.method() == set) { // applies it and drops out, before it can answer
                QTimer::singleShot(0ms, &store, [blink, id = request.devId] { blink(id); });
                return {};
            }
            if (++reads > 1)
                return {answer(request.method(), QJsonDocument::fromJson(device.toUtf8()).object())};
            QTimer::singleShot(0ms, &store, [blink] { blink("dev1"); }); // somebody else, and too early
            return answers(ordinaryDevice(), request);
        });
        editor<QLineEdit>(f.theirPage(), "serviceAddressParam")->setText("new");
        f.run();
        QCOMPARE(reads, 2);
        QCOMPARE(recordedMessages(familyRow("platform")).value("SN0"), message);
        QCOMPARE(recordedMessages(familyRow("platform")).value("SN1"), "success");
        QCOMPARE(f.transport->requests.size(), 5);
    }
};

ORDA_TEST_MAIN(FamiliesTest)
#include "families_test.moc"
