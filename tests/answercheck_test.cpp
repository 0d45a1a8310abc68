#include "support/OrdaTest.h"

#include <vms_client_sdk/websocket/AnswerCheck.h>

using namespace vms_sdk;

namespace {

/// @p content with @p levels brackets around it.
QByteArray nested(int levels, const QByteArray &content = {})
{
    return QByteArray(levels, '[') + content + QByteArray(levels, ']');
}

QByteArray manyKeys(int count)
{
    QByteArrayList members;
    for (int i = 0; i < count; ++i)
        members.append('"' + QByteArray::number(i, 36) + "\":1");
    return '{' + members.join(',') + '}';
}

QByteArray textOf(int bytes)
{
    return "[\"" + QByteArray(bytes, 'x') + "\"]";
}

} // namespace

/// What a text from a device may be before anything takes it apart.
class AnswerCheckTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void textsBeyondALimitAreNamed_data()
    {
        columns<QString, QString>({"text", "fault"});
        rowsFrom("answers.txt");
        const auto row = [](const char *name, const QString &text, const char *fault) { ::row(name, text, fault); };
        row("as deep as allowed", nested(maxJsonDepth), "");
        row("a level deeper", nested(maxJsonDepth + 1), "deep");
        row("a megabyte of brackets", QByteArray(1 << 20, '['), "deep");
        row("indent bomb", nested(1'000, QByteArray(199'000, '1').replace("11", "1,") + '1'), "deep");
        row("wide within the depth", nested(maxJsonDepth, QByteArray(81'000, '1').replace("11", "1,") + '1'), "large");
        row("many keys", manyKeys(20'000), "");
        row("many keys, the first one at the end again", manyKeys(20'000).replace("\"ffj\"", "\"0\""), "twice");
        row("more keys than could be written", manyKeys(150'000), "large");
        row("after a byte order mark", "\uFEFF{}", "");
        row("a null byte after the end", QString("{}") + QChar(0), "not a JSON");
    }

    void textsBeyondALimitAreNamed()
    {
        QFETCH(QString, text);
        QFETCH(QString, fault);
        const QString found = checkAnswer(text.toUtf8()).fault;
        QCOMPARE(found.isEmpty(), fault.isEmpty());
        QVERIFY2(found.contains(fault), qPrintable(found));
        if (fault.isEmpty())
            QVERIFY(!QJsonDocument::fromJson(text.toUtf8()).isNull());
    }

    void brokenUtf8IsNoJson() { QVERIFY(QString(checkAnswer("[\"\xC3\"]").fault).contains("not a JSON")); }

    void whatIsAllowedCanBeWrittenBack()
    {
        // The largest text that passes, in the largest request: one text field full of three-byte characters beside it.
        const int bytes = int(maxWrittenBytes - checkAnswer(textOf(0)).writtenBytes);
        QVERIFY(!checkAnswer(textOf(bytes)).fault);
        QVERIFY(checkAnswer(textOf(bytes + 1)).fault);
        const QJsonObject attributes{{"echoed", QJsonDocument::fromJson(textOf(bytes)).array()},
                                     {"channelName", QString(32'767, QChar(0x4e2d))}};
        const QJsonObject request{{"method", "chnosd_set_param"},
                                  {"level", "Operator"},
                                  {"param", QJsonObject{{"channelid", 0}, {"attr", attributes}}}};
        QVERIFY(QJsonDocument(request).toJson().size() + 64 < maxFrameBytes);
    }

    /// Each kind of value at each kind of place. Mixtures of them are the fuzz program's.
    void littleMoreIsCountedThanIsWritten()
    {
        QByteArrayList values = QByteArray("true false null 0 -0 7 -123456789012345 12345678901234567890 "
                                           "-9223372036854775808 1E5 0.5 1e+20 -1.7976931348623157E308 5e-324 0.00001 "
                                           "123456789.123456789e-3")
                                    .split(' ');
        const QByteArrayList texts =
            QByteArray(" a / \\/ \\\" \\\\ \\n \\u0000 \\u001f \\u00e9 \\ud83d\\ude00 \\uffff "
                       "\\ufeff \xc3\xa9 \xe4\xb8\xad \xf0\x9f\x98\x80 \x7f \t \x01 aa\\\"\x01")
                .split(' ');
        for (const QByteArray &text : texts)
            values.append('"' + text.repeated(6) + '"');
        const QByteArrayList places{"[$]",
                                    R"({"k":$})",
                                    "[$,$,$]",
                                    R"({"k": [], "l": $ , "m":{} })",
                                    R"([[],[[{}]],$])",
                                    R"({"k":{"l":[{"m":$}]}})",
                                    "\r\n[ \t$\n, $ ] \n",
                                    R"([{$:[{}, 0]}])",
                                    nested(maxJsonDepth - 1, "$,$"),
                                    nested(maxJsonDepth - 1, R"({"k":$})")};
        for (const QByteArray &place : places) {
            for (const QByteArray &value : qAsConst(values)) {
                if (place.contains("$:") && !value.startsWith('"'))
                    continue;
                const QByteArray text = QByteArray(place).replace('$', value);
                const QJsonDocument document = QJsonDocument::fromJson(text);
                const AnswerCheck check = checkAnswer(text);
                QVERIFY2(!check.fault && !document.isNull(), text);
                const QJsonValue content = document.isArray() ? QJsonValue(document.array()) : document.object();
                const auto sizeWith = [](const QJsonValue &member) {
                    return QJsonDocument(QJsonObject{{"a", member}}).toJson().size();
                };
                const int written = sizeWith(content) - sizeWith(1) + 1;
                QVERIFY2(check.writtenBytes >= written, text);
                // A comma and a line break too many, and what a short fraction may turn into.
                const int count = text.count(',') + text.count('[') + text.count('{');
                QVERIFY2(check.writtenBytes <= written + 30 * count, text);
            }
        }
    }
};

ORDA_TEST_MAIN(AnswerCheckTest)
#include "answercheck_test.moc"
