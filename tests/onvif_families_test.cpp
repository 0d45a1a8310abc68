#include "support/MemoryCamera.h"
#include "support/OrdaTest.h"

#include <vms_client_sdk/OnvifCode.h>
#include <vms_client_sdk/onvif/OnvifRequest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QRegularExpression>

using namespace vms_sdk;

namespace {

QJsonObject object(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

QString text(const QJsonObject &json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

QJsonObject ask(MemoryCamera *camera, const QString &method, const QJsonObject &param)
{
    OnvifRequest request(*camera, {{"method", method}, {"param", param}});
    QSignalSpy finished(&request, &OnvifRequest::finished);
    request.start();
    [&] { QTRY_COMPARE(camera->waiting, 0); }(); // nothing more can come
    request.endNow("no answer in time");
    request.endNow("no answer in time");
    QJsonObject answer = finished.value(0).value(0).toJsonObject();
    [&] { QVERIFY(finished.size() == 1 && answer.take("method") == method); }();
    return answer;
}

/// The members of @p changes that @p held has, in it: as tasks send it. Lists are merged by "streamid".
QJsonObject merged(QJsonObject held, const QJsonObject &changes)
{
    for (auto it = changes.begin(); it != changes.end(); ++it) {
        if (!held.contains(it.key()))
            continue;
        if (!it.value().isArray()) {
            held[it.key()] = it.value();
            continue;
        }
        const QJsonArray list = it.value().toArray();
        QJsonArray entries = held.value(it.key()).toArray();
        for (int i = 0; i < entries.size(); ++i)
            for (const QJsonValue &change : list)
                if (change.toObject().value("streamid").toInt() == i)
                    entries[i] = merged(entries.at(i).toObject(), change.toObject());
        held[it.key()] = entries;
    }
    return held;
}

int codeOf(const QJsonObject &answer)
{
    return answer.value("error").toObject().value("errorcode").toInt();
}

struct Methods
{
    QString read, write, attribute;
};

QJsonObject write(MemoryCamera *camera, const Methods &methods, const QJsonObject &values)
{
    return ask(camera, methods.write,
               methods.attribute.isEmpty() ? values : QJsonObject{{"channelid", 0}, {methods.attribute, values}});
}

const Methods osdMethods{"chnosd_get_param", "chnosd_set_param", "attr"};
const Methods videoMethods{"stream_get_params", "stream_set_params", ""};

/// What the camera holds. Screen texts that were made anew have other tokens and come last.
QString tokenless(MemoryCamera *camera)
{
    QStringList texts;
    std::vector<XmlElement> osds = camera->answers.value("GetOSDs").children;
    for (XmlElement &osd : osds) {
        osd.setAttribute("token", {});
        texts.append(MemoryCamera::dump(osd));
    }
    texts.sort();
    return texts.join('\n') + MemoryCamera::dump(camera->answers.value("GetVideoEncoderConfigurations"));
}

/// A way from one state of the camera to another and back. The answer to the first write names all that it has changed;
/// so the second, of all that was there before, changes just these members.
void goThereAndBack(MemoryCamera *camera, const Methods &methods, const QJsonObject &changes)
{
    const QJsonObject before = ask(camera, methods.read, {}).value("result").toObject();
    const QString dump = tokenless(camera);
    const QJsonObject answer = write(camera, methods, merged(before, changes));
    const QJsonObject after = ask(camera, methods.read, {}).value("result").toObject();
    const QByteArray what = (text(changes) + " from " + text(before) + " gave " + text(answer)).toUtf8();
    if (codeOf(answer) != 0) {
        QVERIFY2(codeOf(answer) == OnvifNotAllowed && tokenless(camera) == dump, what);
        return;
    }
    const QJsonObject known = merged(before, answer.value("result").toObject());
    QVERIFY2(merged(after, known) == after, what + " and " + text(after).toUtf8());
    const QJsonObject back = write(camera, methods, merged(after, before));
    const QJsonObject atLast = ask(camera, methods.read, {}).value("result").toObject();
    QVERIFY2(codeOf(back) == 0 && atLast == before, what + " and back " + text(back).toUtf8() + text(atLast).toUtf8());
    QVERIFY2(tokenless(camera) == dump, what + " left " + tokenless(camera).toUtf8());
}

} // namespace

/// What the tasks' requests mean at cameras that speak ONVIF.
class OnvifFamiliesTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void requestsAreCarriedOut_data()
    {
        columns<QString, QString, QString, QString, QString, QString>(
            {"setup", "method", "param", "sent", "answer", "changes"});
        rowsFrom("onvif_requests.txt");
    }

    /// The dump of the camera afterwards is the one before with exactly the named replacements.
    void requestsAreCarriedOut()
    {
        QFETCH(QString, setup);
        QFETCH(QString, method);
        QFETCH(QString, param);
        QFETCH(QString, sent);
        QFETCH(QString, answer);
        QFETCH(QString, changes);
        MemoryCamera camera(setup);
        const QString before = camera.dump();
        // How a text looks is too long for a table; that it survives is judged by random writes below.
        static const QRegularExpression style(",?\"(time|name)Style\":\"([^\"\\\\]|\\\\.)*\"");
        QCOMPARE(text(ask(&camera, method, object(param))).remove(style), text(object(answer)));
        QCOMPARE(camera.sent.join(' '), sent);
        QCOMPARE(camera.dump(), MemoryCamera::replaced(before, changes.split("; ")));
    }

    void readsGoSideBySideAndWritesDoNot()
    {
        MemoryCamera camera("onvif_media2.xml");
        ask(&camera, "stream_get_params", {});
        QCOMPARE(camera.mostReads, 2);
        QCOMPARE(codeOf(write(&camera, osdMethods, {{"bShowOSD", false}})), 0);
        QCOMPARE(camera.sent.size(), 2);
        QCOMPARE(camera.mostWrites, 1);
    }

    void screenTextsGoThereAndBack_data() { seeds(60); }

    void screenTextsGoThereAndBack()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const auto one = [&random](const QStringList &of) { return of.at(random.bounded(of.size())); };
        MemoryCamera camera(
            "onvif_media2.xml; <FontSize>32</FontSize><Extension><v:Week>true</v:Week></Extension> => ; "
            " v:layer=\"2\" => ; Total=\"4\" => Total=\""
            + one({"3", "4", "5"}) + "\"; yyyy-MM-dd</DateFormat><Time => " + one({"yyyy-MM-dd", "M/d/yyyy"})
            + "</DateFormat><Time; DateAndTime=\"1\" => " + one({"", "DateAndTime=\"2\""}));
        std::vector<XmlElement> &osds = camera.answers["GetOSDs"].children;
        for (size_t i = osds.size(); i-- > 0;)
            if (random.bounded(2))
                osds.erase(osds.begin() + int(i));
        const QMap<QString, QStringList> values{
            {"timePos", {"hide", "left_top", "right_top", "left_bottom", "Custom(0,0.5)", "right_bottom"}},
            {"position", {"hide", "left_top", "right_top", "left_bottom", "Custom(0,0.5)"}},
            {"timeFormat",
             {"YYYY-MM-DD hh:mm:ss", "MM/DD/YYYY hh:mm:ss", "M/d/yyyy h:mm:ss tt", "DD/MM/YYYY hh:mm:ss"}},
            {"channelName", {"", "Gate", "Hof <&> \u00e4"}}};
        for (int round = 0; round < 5; ++round) {
            QJsonObject changes;
            if (random.bounded(2))
                changes["bShowOSD"] = random.bounded(2) == 1;
            for (auto it = values.begin(); it != values.end(); ++it)
                if (random.bounded(2))
                    changes[it.key()] = one(*it);
            goThereAndBack(&camera, osdMethods, changes);
            if (QTest::currentTestFailed())
                return;
            const QJsonObject held = ask(&camera, osdMethods.read, {}).value("result").toObject();
            write(&camera, osdMethods, merged(held, changes)); // the next round starts from there
        }
    }

    void streamsGoThereAndBack_data() { seeds(60); }

    void streamsGoThereAndBack()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const bool isMedia2 = seed % 2;
        MemoryCamera camera(
            isMedia2
                ? "onvif_media2.xml; 25.0 => 25; \"1\"> => \"true\">; >7000< => >3000<; =\"250\" => =\"100\"; "
                  "<RateControl><FrameRateLimit>12 => <RateControl ConstantBitRate=\"false\"><FrameRateLimit>12"
                : "onvif_media.xml; <s:Encoding>JPEG => <s:Encoding>H264; <s:Multicast> => "
                  "<s:H264><s:GovLength>20</s:GovLength><s:H264Profile>High</s:H264Profile></s:H264><s:Multicast>");
        const QMap<QString, QJsonArray> values{{"venctype", {"h264", "h265", "jpeg"}},
                                               {"width", {1920, 1280, 640}},
                                               {"height", {1080, 720, 480}},
                                               {"frameRate", {10, 12.5, 15, 25}},
                                               {"rcMode", {"cbr", "vbr"}},
                                               {"quality", {20, 40, 33, 100}},
                                               {"bitRate", {63, 512, 7000}},
                                               {"iFrameInterval", {1, 50, 200}},
                                               {"profile", {"main", "high", "main10"}}};
        QJsonArray streams;
        for (int stream = 0; stream < 2; ++stream) {
            QJsonObject changes{{"streamid", stream}};
            for (auto it = values.begin(); it != values.end(); ++it)
                if (random.bounded(4) == 0)
                    changes[it.key()] = it->at(random.bounded(it->size()));
            streams.append(changes);
        }
        goThereAndBack(&camera, videoMethods, {{"streams", streams}});
    }

    void theTablesSayWhatIsKnown()
    {
        QVERIFY(isKnownToOnvif("stream_set_params") && isKnownToOnvif("image_get_expertsetting_param"));
        QVERIFY(!isKnownToOnvif("ifconfig_eth_set") && !isKnownToOnvif(""));
        QVERIFY(!onvifCodeText(OnvifTrouble).isEmpty() && onvifCodeText(-61010).isEmpty());
    }
};
ORDA_TEST_MAIN(OnvifFamiliesTest)
#include "onvif_families_test.moc"
