#include "support/OrdaTest.h"
#include "support/ScriptedTransport.h"

#include <audio/AudioParamsCfgTask.h>
#include <orda_data/DataSignals.h>
#include <platform/PlatformParamsCfgTask.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/Requests.h>

#include <QJsonArray>

using orda_batchCfg::AudioParamsCfgTask;
using Request = ScriptedTransport::Request;

namespace {

constexpr std::chrono::milliseconds waitingTime{100};

QStringList healthy(const Request &request)
{
    return {answer(request.method(), {{"encType", "g711u"}, {"mask", 3}})};
}

// A healthy device but for one method.
ScriptedTransport::Script except(const QString &method, const QStringList &answers)
{
    return [=](const Request &request) { return request.method() == method ? answers : healthy(request); };
}

constexpr char aiGet[] = "ai_get_param";
constexpr char aiSet[] = "ai_set_param";
constexpr char aoGet[] = "ao_get_param";
constexpr char aoSet[] = "ao_set_param";

} // namespace

Q_DECLARE_METATYPE(ScriptedTransport::Script)

/// The request channel of a task, told on audio, the family with two exchanges.
class TaskTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void endsOnceAsTheDeviceAnswers_data()
    {
        columns<int, ScriptedTransport::Script, QStringList, QString, int>(
            {"flags", "script", "methods", "message", "code"});
        const auto row = [](const char *name, int flags, const ScriptedTransport::Script &script,
                            const QStringList &methods, const char *message,
                            int code) { ::row(name, flags, script, methods, message, code); };
        const QStringList allFour{aiGet, aiSet, aoGet, aoSet};
        row("both", 3, healthy, allFour, "success", 0);
        row("no error member is success", 1, except(aiGet, {R"({"method": "ai_get_param"})"}), {aiGet, aiSet},
            "success", 0);
        for (const char *error :
             {R"({"errorcode": "7"})", R"({"errorcode": 1.5})", R"({"errorcode": 4294967296})", "7"}) {
            const QString text = QStringLiteral(R"({"method": "ai_set_param", "error": %1})").arg(error);
            row(qPrintable(text), 1, except(aiSet, {text}), {aiGet, aiSet}, "success", 0);
        }
        row("a refused read", 1, except(aiGet, {answer(aiGet, {}, 4)}), {aiGet}, "Failed to get audio in parameters(4)",
            4);
        row("a refused write", 3, except(aiSet, {answer(aiSet, {}, -7)}), {aiGet, aiSet},
            "Failed to set audio in parameters(-7)", -7);
        row("an empty text", 1, except(aiGet, {QString()}), {aiGet}, "Failed to parse json data", -61003);
        row("an empty object is no answer", 1, except(aiGet, {"{}"}), {aiGet}, "set audio parameters time out", -61004);
        row("an array is no answer", 1, except(aiGet, {"[]"}), {aiGet}, "set audio parameters time out", -61004);
        row(
            "each answer twice", 3, [](const Request &request) { return healthy(request) + healthy(request); }, allFour,
            "success", 0);
        row("success, then a refusal of the same write", 1, except(aiSet, {answer(aiSet), answer(aiSet, {}, 4)}),
            {aiGet, aiSet}, "success", 0);
    }

    void endsOnceAsTheDeviceAnswers()
    {
        QFETCH(int, flags);
        QFETCH(ScriptedTransport::Script, script);
        QFETCH(QStringList, methods);
        QFETCH(QString, message);
        QFETCH(int, code);

        const ScriptedTransport *transport = use(script);
        AudioParamsCfgTask task("cam", {}, flags, nullptr);
        QSignalSpy results(&task, &AudioParamsCfgTask::signalCfgResult);
        QTRY_COMPARE(results.count(), 1);
        const QVariantList &result = results.constFirst();
        QCOMPARE(result.at(0).toString(), "cam");
        QCOMPARE(result.at(1).toString(), message);
        QCOMPARE(result.at(2).toInt(), code);
        QCOMPARE(transport->methods(), methods);

        // Nothing follows, neither a second result nor a request, until long after the id's waiting time.
        QTest::qWait(2 * int(waitingTime.count()));
        QCOMPARE(results.count(), 1);
        QCOMPARE(transport->methods(), methods);
        for (const Request &request : transport->requests)
            QCOMPARE(request.requestId, task.requestId());
    }

    void sendsReadableText()
    {
        const ScriptedTransport *transport = use(silent);
        const AudioParamsCfgTask task("cam", {}, AudioParamsCfgTask::AudioIn, nullptr);
        QCOMPARE(transport->requests.at(0).text, R"({
    "level": "Operator",
    "method": "ai_get_param",
    "param": {
        "channelid": 0
    }
}
)");
    }

    void pausesBetweenAnAnswerAndTheNextRequest()
    {
        const ScriptedTransport *transport = use(healthy);
        AudioParamsCfgTask task("cam", {}, AudioParamsCfgTask::AudioIn, nullptr);
        QElapsedTimer sinceAnswer;
        connect(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalCommonRes, &task, [&] {
            if (transport->requests.size() == 1)
                sinceAnswer.start();
        });
        QTRY_COMPARE(transport->requests.size(), 2);
        QVERIFY2(sinceAnswer.elapsed() >= 9, qPrintable(QString::number(sinceAnswer.elapsed())));
    }

    void everyDeviceIsToldWhatItHoldsItself()
    {
        // Neighbours that hold the same, almost the same, and less; the last one is like the first again.
        const QList<QJsonObject> held{{{"encType", "aac"}, {"mask", 3}, {"list", QJsonArray{1, 2}}},
                                      {{"encType", "aac"}, {"mask", 3}, {"list", QJsonArray{1, 2}}},
                                      {{"encType", "aac"}, {"mask", 3}, {"list", QJsonArray{2, 1}}},
                                      {{"encType", "aac"}, {"mask", 3}},
                                      {{"encType", "aac"}},
                                      {},
                                      {{"encType", "aac"}, {"mask", 3}, {"list", QJsonArray{1, 2}}}};
        const ScriptedTransport *transport = use([&](const Request &request) {
            return QStringList{answer(request.method(), held.at(request.devId.toInt()))};
        });
        QObject page;
        for (int i = 0; i < held.size(); ++i)
            new AudioParamsCfgTask(QString::number(i), {{"encType", "g711u"}}, AudioParamsCfgTask::AudioIn, &page);
        QTRY_COMPARE(transport->requests.size(), 2 * held.size());
        const auto writes = transport->requests.mid(held.size());
        for (const Request &request : writes) {
            QJsonObject expected = held.at(request.devId.toInt());
            if (!expected.isEmpty())
                expected["encType"] = "g711u";
            QCOMPARE(request.method(), aiSet);
            QCOMPARE(request.json()["param"].toObject()["audioAttr"].toObject(), expected);
        }
    }

    void hearsOnlyItsOwnAnswersAndTimeOuts()
    {
        use(silent);
        AudioParamsCfgTask first("cam", {}, AudioParamsCfgTask::AudioIn, nullptr);
        AudioParamsCfgTask second("cam", {}, AudioParamsCfgTask::AudioIn, nullptr);
        QSignalSpy firstResults(&first, &AudioParamsCfgTask::signalCfgResult);
        QSignalSpy secondResults(&second, &AudioParamsCfgTask::signalCfgResult);

        auto &sdk = vms_sdk::ClientSignals::instance();
        emit sdk.signalCommonRes(first.requestId().toUpper() + 'x', answer(aiGet, {}, 1));
        emit sdk.signalRequestTimeout("of a foreign request", {});
        QCOMPARE(firstResults.count() + secondResults.count(), 0);
        emit sdk.signalRequestTimeout(second.requestId(), {});
        QCOMPARE(firstResults.count(), 0);
        QCOMPARE(secondResults.count(), 1);
    }

    void aDeviceThatComesAndGoesIsNotWaitedForWithoutEnd_data()
    {
        columns<int>({"mostReads"});
        row("it comes once", 2);
        row("it comes and goes", 1000);
    }

    void aDeviceThatComesAndGoesIsNotWaitedForWithoutEnd()
    {
        QFETCH(int, mostReads);
        // It answers its first read only; another device's results renew its waiting time, as a page does it.
        constexpr std::chrono::milliseconds limit{400};
        int reads = 0;
        const QString get = "ifconfig_qbcloud_get_param";
        use([&](const Request &request) {
            const bool isFirst = request.method() == get && ++reads == 1;
            return isFirst ? QStringList{answer(get)} : QStringList();
        });
        orda_batchCfg::PlatformParamsCfgTask task("cam", {}, nullptr, limit);
        const QSignalSpy results(&task, &orda_batchCfg::ParamsCfgTask::signalCfgResult);
        QElapsedTimer sinceFirstReadAgain;
        QTimer flapping;
        connect(&flapping, &QTimer::timeout, &task, [&] {
            for (const auto status : {vms_sdk::DevOffline, vms_sdk::DevLocked})
                if (reads < mostReads)
                    emit orda_data::DataSignals::instance().signalDevStatusChanged(task.devId(), status);
            vms_sdk::renewal_request_id(task.requestId());
            if (reads == 2 && !sinceFirstReadAgain.isValid())
                sinceFirstReadAgain.start();
        });
        flapping.start(10);
        QTRY_COMPARE(results.count(), 1);
        QVERIFY2(sinceFirstReadAgain.elapsed() >= limit.count() - 1,
                 qPrintable(QString::number(sinceFirstReadAgain.elapsed())));
        QVERIFY(reads == mostReads || reads > 5);
        QCOMPARE(results.at(0).at(1).toString(), "set platform parameters time out");
        QCOMPARE(results.at(0).at(2).toInt(), -61004);
        const int readsAtEnd = reads;
        QTest::qWait(30); // it goes on coming and going; nobody asks it any more
        QCOMPARE(reads, readsAtEnd);
    }

private:
    static ScriptedTransport *use(const ScriptedTransport::Script &script)
    {
        auto transport = std::make_unique<ScriptedTransport>(script);
        ScriptedTransport *raw = transport.get();
        vms_sdk::ClientSdk::instance().setTransport(std::move(transport));
        vms_sdk::ClientSdk::instance().setRequestTimeout(waitingTime);
        return raw;
    }
};

ORDA_TEST_MAIN(TaskTest)
#include "task_test.moc"
