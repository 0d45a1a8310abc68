// A device that says itself what it took of a write: what the run has changed there, and what an undo puts back.

#include "support/OrdaTest.h"

#include "engine/DeviceUndo.h"
#include "engine/RecordedRun.h"
#include "journal/TrackedRun.h"

#include <families/Families.h>

#include <QJsonDocument>
#include <QtTest>

using namespace orda_engine;
using orda_journal::Outcome;
using orda_journal::Settled;
using orda_journal::TrackedRun;

namespace {

const char device[] = "onvif-1";

QString textOf(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QJsonObject objectOf(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

QString changesIn(const QVector<MemberChange> &changes)
{
    QStringList texts;
    for (const MemberChange &change : changes)
        texts << change.member + "=" + change.after.toVariant().toString();
    return texts.join(' ');
}

/// One run of the OSD family over one device, told by what goes over the wire, and what the history has of it.
class TakenRun
{
public:
    explicit TakenRun(const QJsonObject &values)
        : family(*orda_batchCfg::Families::find("osd"))
        , start{"run", "osd", "apply", {}, values, {}, {device}}
        , tracked(start, family, {device})
    {
    }

    void read(const QString &id, const QJsonObject &held)
    {
        const QString text = textOf({{"method", "chnosd_get_param"}});
        tracked.take(tracked.requestOf(device, text), id, text);
        tracked.takeAnswer(id, textOf({{"method", "chnosd_get_param"}, {"result", held}}));
        row.before = textOf({{"result", held}});
    }

    void write(const QString &id, const QJsonObject &held)
    {
        const QJsonObject param = family.exchanges.at(0).setParam(start.values, held);
        const QString text = textOf({{"method", "chnosd_set_param"}, {"param", param}});
        const auto taken = tracked.take(tracked.requestOf(device, text), id, text);
        keep(taken.taken);
        row.sent = text;
        QVERIFY(tracked.letLeave(0, 0, id));
    }

    std::optional<orda_journal::Result> answer(const QString &id, QJsonObject answer)
    {
        answer.insert("method", "chnosd_set_param");
        const TrackedRun::Answer read = tracked.takeAnswer(id, textOf(answer));
        keep(read.taken);
        return read.result;
    }

    /// What an undo writes to a device that holds this now.
    QJsonObject putBack(const Settled &settled, const QJsonObject &held) const
    {
        orda_journal::RunDetails details;
        details.run.id = start.id;
        details.run.family = start.family;
        details.run.values = start.values;
        details.devices.append(settled.row);
        details.exchanges.append(row);
        const RecordedDevice recorded = RecordedRun(details).device(device);
        return undoOf(family, recorded.before, recorded.sent, {{0, held}}, false).value(0).goBack;
    }

    const orda_batchCfg::CfgFamily &family;
    orda_journal::RunStart start;
    TrackedRun tracked;
    orda_journal::ExchangeRow row{device, 0, {}, {}, {}, {}};

private:
    void keep(const QString &taken)
    {
        if (!taken.isEmpty())
            row.taken = taken;
    }
};

} // namespace

class TakenTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void whatWasTakenIsWhatWasChanged_data()
    {
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("outcome"); // and message
        QTest::addColumn<QString>("changes");
        QTest::addColumn<QString>("now"); // what the device holds when the run is undone
        QTest::addColumn<QString>("putBack");

        const char hide[] = R"({"timePos":"hide"})";
        QTest::newRow("all of it") << R"({"channelName":"Gate"})"
                                   << R"({"error":{"errorcode":0},"result":{"channelName":"Gate"}})"
                                   << "done success"
                                   << "channelName=Gate"
                                   << R"({"bShowOSD":true,"timeFormat":"A","timePos":"left_top","channelName":"Gate"})"
                                   << R"({"channelName":"Door"})";
        QTest::newRow("more than was asked") // a deleted text takes its words along
            << hide << R"({"error":{"errorcode":0},"result":{"timePos":"hide","timeFormat":""}})"
            << "done success"
            << "timeFormat= timePos=hide"
            << R"({"bShowOSD":true,"timeFormat":"","timePos":"hide","channelName":"Door"})"
            << R"({"timeFormat":"A","timePos":"left_top"})";
        QTest::newRow("nothing") << hide << R"({"error":{"errorcode":0},"result":{},"dropped":["timePos"]})"
                                 << "unchanged success"
                                 << ""
                                 << R"({"bShowOSD":true,"timeFormat":"A","timePos":"hide","channelName":"Door"})"
                                 << R"({})";
        QTest::newRow("refused") << hide << R"({"error":{"errorcode":-61023,"message":"Busy\u001b: no"}})"
                                 << "failed Failed to set osd parameters(-61023): Busy\\u001b: no"
                                 << "timePos=hide"
                                 << R"({"bShowOSD":true,"timeFormat":"A","timePos":"left_top","channelName":"Door"})"
                                 << R"({})";
        QTest::newRow("a part, then a fault")
            << R"({"timePos":"hide","channelName":"Gate"})"
            << R"({"error":{"errorcode":-61023,"message":"Busy"},"result":{"timePos":"hide","timeFormat":""}})"
            << "partly-written Failed to set osd parameters(-61023): Busy; written before: chnosd_set_param"
            << "timeFormat= timePos=hide"
            << R"({"bShowOSD":true,"timeFormat":"","timePos":"hide","channelName":"Door"})"
            << R"({"timeFormat":"A","timePos":"left_top"})";
        QTest::newRow("a part, then no answer") // the device may have all of it: the undo looks at it
            << R"({"timePos":"hide","channelName":"Gate"})"
            << R"({"error":{"errorcode":-61024,"message":"gone","unanswered":{"channelName":"Gate"}},"result":{"timePos":"hide"}})"
            << "unknown Failed to set osd parameters(-61024): gone"
            << "channelName=Gate timePos=hide"
            << R"({"bShowOSD":true,"timeFormat":"A","timePos":"left_top","channelName":"Gate"})"
            << R"({"channelName":"Door"})";
    }
    void whatWasTakenIsWhatWasChanged()
    {
        QFETCH(QString, values);
        QFETCH(QString, answer);
        QFETCH(QString, now);
        const QJsonObject held =
            objectOf(R"({"bShowOSD":true,"timeFormat":"A","timePos":"left_top","channelName":"Door"})");
        TakenRun run(objectOf(values.toUtf8()));
        run.read("1", held);
        run.write("1", held);
        const auto result = run.answer("1", objectOf(answer.toUtf8()));
        QVERIFY(result);
        const Settled settled = run.tracked.settle(0, *result);
        QTEST(orda_journal::outcomeName(*settled.row.outcome) + " " + settled.row.message, "outcome");
        QTEST(changesIn(settled.changes), "changes");
        QTEST(textOf(run.putBack(settled, objectOf(now.toUtf8()))), "putBack");
    }

    // The first try has deleted a text, the second one leaves without an answer: both are taken back.
    void secondTryForgetsNothing()
    {
        TakenRun run(objectOf(R"({"timePos":"hide","channelName":"Gate"})"));
        const QJsonObject held = objectOf(R"({"timeFormat":"A","timePos":"left_top","channelName":"Door"})");
        run.read("1", held);
        run.write("1", held);
        run.answer("1", objectOf(R"({"error":{"errorcode":-61023},"result":{"timePos":"hide","timeFormat":""}})"));
        const QString firstRead = run.row.before;
        const QJsonObject between = objectOf(R"({"timeFormat":"","timePos":"hide","channelName":"Door"})");
        run.read("2", between);
        run.row.before = firstRead; // the history keeps the first
        run.write("2", between);
        const Settled settled = run.tracked.settle(0, run.tracked.timeout());
        QCOMPARE(*settled.row.outcome, Outcome::Unknown);
        const QJsonObject now = objectOf(R"({"timeFormat":"","timePos":"hide","channelName":"Gate"})");
        QCOMPARE(run.putBack(settled, now), held);
    }
};

QTEST_GUILESS_MAIN(TakenTest)
#include "taken_test.moc"
