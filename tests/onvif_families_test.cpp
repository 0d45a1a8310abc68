#include "support/CameraInMemory.h"
#include "support/OrdaTest.h"

#include <vms_client_sdk/OnvifCode.h>
#include <vms_client_sdk/onvif/OnvifRequest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>

using namespace vms_sdk;

Q_DECLARE_METATYPE(vms_sdk::CallResult)

namespace {

QJsonObject object(const QString &text)
{
    QJsonParseError error;
    const QJsonObject parsed = QJsonDocument::fromJson(text.toUtf8(), &error).object();
    if (error.error != QJsonParseError::NoError)
        qFatal("%s: %s", qPrintable(text), qPrintable(error.errorString()));
    return parsed;
}

QString text(const QJsonObject &json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

QJsonObject ask(CameraCalls *camera, const QString &method, const QJsonObject &param)
{
    QObject owner;
    QJsonObject answer;
    int count = 0;
    OnvifRequest request(*camera, {{"method", method}, {"param", param}});
    QObject::connect(&request, &OnvifRequest::finished, &owner, [&](const QJsonObject &each) {
        answer = each;
        ++count;
    });
    request.start();
    [&] { QTRY_VERIFY(count > 0); }();
    QCoreApplication::processEvents(); // what else was asked for is answered: it may not finish again
    [&] { QCOMPARE(count, 1); }();
    [&] { QCOMPARE(answer.take("method").toString(), method); }();
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
        QJsonArray entries = held.value(it.key()).toArray();
        for (int i = 0; i < entries.size(); ++i)
            for (const QJsonValue &change : it.value().toArray())
                if (change.toObject().value("streamid").toInt() == i)
                    entries[i] = merged(entries.at(i).toObject(), change.toObject());
        held[it.key()] = entries;
    }
    return held;
}

/// What @p changed has, with the values of @p before.
QJsonObject former(const QJsonObject &before, QJsonObject changed)
{
    for (auto it = changed.begin(); it != changed.end(); ++it) {
        if (!it.value().isArray()) {
            it.value() = before.value(it.key());
            continue;
        }
        QJsonArray entries = it.value().toArray();
        const QJsonArray list = before.value(it.key()).toArray();
        for (QJsonValueRef each : entries)
            each = former(list.at(each.toObject().value("streamid").toInt()).toObject(), each.toObject());
        it.value() = entries;
    }
    return changed;
}

int codeOf(const QJsonObject &answer)
{
    return answer.value("error").toObject().value("errorcode").toInt();
}

struct Methods
{
    QString read, write, attribute;
};

QJsonObject write(CameraCalls *camera, const Methods &methods, const QJsonObject &values)
{
    return ask(camera, methods.write,
               methods.attribute.isEmpty() ? values : QJsonObject{{"channelid", 0}, {methods.attribute, values}});
}

const Methods osdMethods{"chnosd_get_param", "chnosd_set_param", "attr"};
const Methods videoMethods{"stream_get_params", "stream_set_params", ""};

CallResult faultResult(const QStringList &codes)
{
    CallResult result;
    result.fault = SoapFault{codes, "No\x1b[31m way"};
    return result;
}

CallResult troubleResult(bool mayBeDone)
{
    CallResult result;
    result.trouble = "connection closed";
    result.mayBeDone = mayBeDone;
    return result;
}

/// What the camera holds. Screen texts that were made anew have other tokens and come last.
QString tokenless(CameraInMemory *camera)
{
    QStringList texts;
    for (XmlElement osd : camera->answers.value("GetOSDs").children) {
        osd.setAttribute("token", {});
        texts.append(CameraInMemory::dump(osd));
    }
    texts.sort();
    return texts.join('\n') + CameraInMemory::dump(camera->answers.value("GetVideoEncoderConfigurations"));
}

/// A way from one state of the camera to another and back: what was changed, as the answer names it, is written back.
void goThereAndBack(CameraInMemory *camera, const Methods &methods, const QJsonObject &changes)
{
    const QJsonObject before = ask(camera, methods.read, {}).value("result").toObject();
    const QString dump = tokenless(camera);
    const QJsonObject asked = merged(before, changes);
    const QJsonObject answer = write(camera, methods, asked);
    const QJsonObject after = ask(camera, methods.read, {}).value("result").toObject();
    const QByteArray what = (text(changes) + " from " + text(before) + " gave " + text(answer)).toUtf8();
    if (codeOf(answer) != 0) {
        QVERIFY2(codeOf(answer) == OnvifNotAllowed && tokenless(camera) == dump, what);
        return;
    }
    const QJsonObject changed = answer.value("result").toObject();
    QVERIFY2(merged(after, merged(before, changed)) == after, what + " and " + text(after).toUtf8());
    const QJsonObject back = write(camera, methods, merged(after, former(before, changed)));
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
        CameraInMemory camera(setup);
        const QString before = camera.dump();
        QCOMPARE(text(ask(&camera, method, object(param))), text(object(answer)));
        QStringList operations;
        for (const XmlElement &each : qAsConst(camera.sent))
            operations.append(each.name);
        QCOMPARE(operations.join(' '), sent);
        QCOMPARE(camera.dump(), CameraInMemory::replaced(before, changes.split("; ")));
    }

    void readsGoSideBySideAndWritesDoNot()
    {
        CameraInMemory camera("onvif_media2.xml");
        ask(&camera, "stream_get_params", {});
        QCOMPARE(camera.mostWaiting, 2);
        QCOMPARE(codeOf(write(&camera, osdMethods, {{"bShowOSD", false}})), 0);
        QCOMPARE(camera.sent.size(), 2);
        QCOMPARE(camera.mostWritesWaiting, 1);
    }

    void failuresEndARequest_data()
    {
        columns<QString, QString, CallResult, QString>({"operation", "silentAt", "failure", "answer"});
        const QString reason = "NotAuthorized: No\\u001b[31m way";
        const auto ended = [](int code, const QString &message, bool isUnanswered = false, bool isPartly = false) {
            QJsonObject error{{"errorcode", code}, {"message", message}};
            if (isUnanswered)
                error["unanswered"] = true;
            QJsonObject answer{{"error", error}};
            if (isPartly)
                answer["result"] = QJsonObject{{"channelName", ""}, {"position", "hide"}};
            return text(answer);
        };
        row("a read is refused", "GetOSDs", "", faultResult({"Sender", "NotAuthorized"}),
            ended(OnvifFault, "GetOSDs: " + reason));
        row("no such operation", "GetOSDOptions", "", faultResult({"ActionNotSupported"}),
            ended(OnvifNotKnown, "GetOSDOptions: " + QString(reason).replace("NotAuthorized", "ActionNotSupported")));
        row("a read without an answer", "GetOSDs", "", troubleResult(true),
            ended(OnvifTrouble, "GetOSDs: connection closed"));
        row("an answer to something else", "GetOSDs", "", CallResult(),
            ended(OnvifTrouble, "GetOSDs: the answer is for another operation"));
        row("the first write never left", "DeleteOSD", "", troubleResult(false),
            ended(OnvifTrouble, "DeleteOSD: connection closed"));
        row("the first write may have come", "DeleteOSD", "", troubleResult(true),
            ended(OnvifTrouble, "DeleteOSD: connection closed", true));
        row("the second write is refused", "SetOSD", "", faultResult({"Sender", "NotAuthorized"}),
            ended(OnvifFault, "SetOSD: " + reason, false, true));
        row("time is up while reading", "", "GetOSDs", CallResult(), ended(OnvifTrouble, "no answer in time"));
        row("time is up while writing", "", "SetOSD", CallResult(),
            ended(OnvifTrouble, "no answer in time", true, true));
    }

    /// The write deletes a text and sets another.
    void failuresEndARequest()
    {
        QFETCH(QString, operation);
        QFETCH(QString, silentAt);
        QFETCH(CallResult, failure);
        QFETCH(QString, answer);
        CameraInMemory camera("onvif_media2.xml");
        camera.silentAt = silentAt;
        if (!operation.isEmpty())
            camera.failures[operation] = failure;
        const QJsonObject values{{"position", "hide"}, {"timePos", "right_top"}};
        OnvifRequest request(camera, {{"method", osdMethods.write}, {"param", QJsonObject{{"attr", values}}}});
        QList<QJsonObject> answers;
        connect(&request, &OnvifRequest::finished, this, [&](const QJsonObject &each) { answers.append(each); });
        request.start();
        QTRY_VERIFY(!answers.isEmpty() || (!silentAt.isEmpty() && camera.waiting == 0 && camera.mostWaiting == 2));
        if (!silentAt.isEmpty()) {
            QTRY_VERIFY(silentAt != "SetOSD" || camera.sent.size() == 2);
            request.endNow();
            request.endNow();
        }
        QTRY_COMPARE(camera.waiting, 0);
        QCOMPARE(answers.size(), 1);
        answers.first().remove("method");
        QCOMPARE(text(answers.constFirst()), text(object(answer)));
        QVERIFY(camera.sent.size() <= 2);
    }

    void screenTextsGoThereAndBack_data() { seeds(300); }

    void screenTextsGoThereAndBack()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const auto one = [&random](const QStringList &of) { return of.at(random.bounded(of.size())); };
        CameraInMemory camera(
            "onvif_media2.xml; <FontSize>32</FontSize><Extension><v:Week>true</v:Week></Extension> => ; "
            " v:layer=\"2\" => ; Total=\"4\" => Total=\""
            + one({"3", "4", "5"}) + "\"; yyyy-MM-dd</DateFormat><Time => " + one({"yyyy-MM-dd", "M/d/yyyy"})
            + "</DateFormat><Time; DateAndTime=\"1\" => " + one({"", "DateAndTime=\"2\""}));
        std::vector<XmlElement> &osds = camera.answers["GetOSDs"].children;
        const QStringList all{"other", "logo", "D", "T"};
        for (const QString &token : all)
            if (random.bounded(2))
                osds.erase(std::remove_if(osds.begin(), osds.end(),
                                          [&](const XmlElement &each) { return each.attribute("token") == token; }),
                           osds.end());
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

    void streamsGoThereAndBack_data() { seeds(300); }

    void streamsGoThereAndBack()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const bool isMedia2 = seed % 2;
        CameraInMemory camera(
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
        for (const int code : {OnvifNotAllowed, OnvifNotKnown, OnvifFault, OnvifTrouble})
            QVERIFY(!onvifCodeText(code).isEmpty());
        QVERIFY(onvifCodeText(-61010).isEmpty());
    }
};
ORDA_TEST_MAIN(OnvifFamiliesTest)
#include "onvif_families_test.moc"
