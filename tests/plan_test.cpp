#include "engine/ReadTask.h"
#include "engine/WriteBackTask.h"
#include "fleet/SimulatedDevice.h"
#include "fleet/Site.h"
#include "support/OrdaTest.h"
#include "support/ScriptedTransport.h"

#include <families/Families.h>
#include <vms_client_sdk/ClientSdk.h>

#include <random>

using namespace orda_batchCfg;
using namespace orda_engine;
using Request = ScriptedTransport::Request;

namespace {

constexpr int allFlags = 7;

const CfgFamily &familyOf(const QString &name)
{
    return *Families::find(name);
}

QJsonValue parsed(const QString &text)
{
    return QJsonDocument::fromJson('[' + text.toUtf8() + ']').array().at(0);
}

QString text(const QJsonValue &value)
{
    return value.isUndefined() ? "gone"
                               : QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

/// A simulated device as a run over one family meets it.
struct Device
{
    const CfgFamily &family;
    device_fleet::SimulatedDevice simulated;

    ObjectsByExchange read(int flags, const QJsonObject &values)
    {
        ObjectsByExchange held;
        const QVector<int> places = family.exchangesOf(flags);
        for (const int place : places) {
            const CfgExchange &exchange = family.exchanges.at(place);
            QJsonObject request{{"method", exchange.getMethod}};
            if (exchange.getParam)
                request.insert("param", exchange.getParam(values));
            held.insert(place, exchange.heldIn(simulated.answer(request)));
        }
        return held;
    }

    void write(int place, const QJsonObject &param)
    {
        const QJsonObject answer =
            simulated.answer({{"method", family.exchanges.at(place).setMethod}, {"param", param}});
        QCOMPARE(answer["error"]["errorcode"].toInt(-99), 0);
    }
};

/// What the device holds, with these changes.
QString membersIn(const CfgFamily &family, const ObjectsByExchange &held, const QVector<MemberChange> &changes = {})
{
    const QString name("%1 %2");
    QJsonObject all;
    for (auto it = held.begin(); it != held.end(); ++it) {
        const QJsonObject members = family.exchanges.at(it.key()).membersOf(*it);
        for (auto member = members.begin(); member != members.end(); ++member)
            all.insert(name.arg(it.key()).arg(member.key()), *member);
    }
    for (const MemberChange &change : changes)
        all[name.arg(change.exchange).arg(change.member)] = change.after;
    return text(all);
}

/// Some of the family's keys, each with a value that it may have.
QJsonObject drawMembers(const CfgFamily &family, std::mt19937 &random)
{
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    const QString prefix = family.exchanges.at(0).listPrefix;
    QJsonObject members;
    for (int stream = 0; stream < (prefix.isEmpty() ? 1 : 3); ++stream)
        for (const CfgKey &key : family.keys) {
            if (below(3) == 0)
                continue;
            QJsonValue value = below(2) == 0;
            if (key.type == CfgKey::NumberSwitch)
                value = below(2);
            else if (key.type == CfgKey::Text)
                value = QString("text %1").arg(below(3));
            else if (key.type == CfgKey::Number)
                value = key.minimum + below(key.maximum - key.minimum + 1);
            else if (key.type == CfgKey::Choice)
                value = key.choices.at(below(key.choices.size())).value;
            members.insert(prefix.isEmpty() ? key.name : QString("%1%2.%3").arg(prefix).arg(stream).arg(key.name),
                           value);
        }
    return members;
}

/// What the device holds after a write that it takes as it came; null in @p since is a member that it loses.
QJsonObject written(const CfgExchange &exchange, QJsonObject device, const QJsonObject &param, const QJsonObject &since)
{
    for (const QJsonObject &members :
         {exchange.attribute.isEmpty() ? param : param[exchange.attribute].toObject(), since})
        for (auto it = members.begin(); it != members.end(); ++it)
            if (it->isNull())
                device.remove(it.key());
            else if (it.key() != "bdefault" && it.key() != "clienttype")
                device.insert(it.key(), *it);
    return device;
}

QString line(int exchange, const QString &member, const QJsonValue &first, const QJsonValue &second)
{
    return QString("%1 %2: %3 -> %4").arg(exchange).arg(member, text(first), text(second));
}

QStringList described(const QString &what, const QVector<MemberDifference> &differences)
{
    QStringList lines;
    for (const MemberDifference &difference : differences)
        lines << what + line(difference.exchange, difference.member, difference.wanted, difference.found);
    return lines;
}

} // namespace

/// What a run would change on a device, whether it has, and how it is taken back.
class PlanTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void whatIsPlannedIsWrittenAndGoesBack_data()
    {
        columns<QString, int>({"name", "seed"});
        for (const FamilyEntry &entry : Families::all())
            for (int seed = 1; seed <= 60; ++seed)
                QTest::addRow("%s, seed %d", qPrintable(entry.family.name), seed) << entry.family.name << seed;
    }

    void whatIsPlannedIsWrittenAndGoesBack()
    {
        QFETCH(QString, name);
        QFETCH(int, seed);
        std::mt19937 random{unsigned(seed)};
        const CfgFamily &family = familyOf(name);
        Device device{family, {"d", device_fleet::makeSiteDevice(quint32(seed), 0).parameters}};
        const QString dump = text(device.simulated.parameters());
        const QJsonObject asked = drawMembers(family, random);
        const QJsonObject values = family.exchanges.at(0).toValues(asked);
        const int flags = family.flagsOf(values);
        QCOMPARE(text(family.exchanges.at(0).askedBy(values)), text(asked));

        const ObjectsByExchange before = device.read(flags, values);
        ObjectsByExchange reached = before, notReached, sent;
        while (reached.size() > 1 && random() % 3 == 0) { // the run ends before its last exchange
            const int last = reached.lastKey();
            notReached.insert(last, reached.take(last));
        }
        const DevicePlan plan = planOf(family, flags, values, reached);
        for (auto it = reached.begin(); it != reached.end(); ++it) {
            sent.insert(it.key(), family.exchanges.at(it.key()).setParam(values, *it));
            device.write(it.key(), sent[it.key()]);
        }
        const ObjectsByExchange after = device.read(flags, values);
        QCOMPARE(membersIn(family, after), membersIn(family, before, plan.changes + plan.added));
        const DevicePlan rest = planOf(family, flags, values, notReached);
        QCOMPARE(differencesOf(family, flags, values, sent, after).size(), rest.changes.size() + rest.added.size());

        const DeviceUndo undo = undoOf(family, before, sent, after, false);
        for (auto it = undo.begin(); it != undo.end(); ++it)
            if (!it->goBack.isEmpty())
                device.write(it.key(), family.exchanges.at(it.key()).writeBack(after[it.key()], it->goBack));
        const ObjectsByExchange back = device.read(flags, values);
        QCOMPARE(membersIn(family, back), membersIn(family, before, plan.added));
        if (plan.added.isEmpty())
            QCOMPARE(text(device.simulated.parameters()), dump);
        QCOMPARE(valuesOf(family, undoOf(family, before, sent, back, true), back), QJsonObject());
    }

    void eachCase_data()
    {
        columns<QString, QString, QString, QString, QString, QString>(
            {"name", "values", "before", "since", "plan", "outcome"});
        rowsFrom("plan.txt");
    }

    void eachCase()
    {
        QFETCH(QString, name);
        const CfgFamily &family = familyOf(name);
        const QJsonObject values = parsed(field("values")).toObject();
        const int flags = family.flagsOf(values);
        ObjectsByExchange before, sent, held;
        const QVector<int> places = family.exchangesOf(flags);
        for (const int place : places) {
            const CfgExchange &exchange = family.exchanges.at(place);
            before.insert(place, parsed(field("before"))[place].toObject());
            sent.insert(place, exchange.setParam(values, before[place]));
            held.insert(place, written(exchange, before[place], sent[place], parsed(field("since"))[place].toObject()));
        }
        const DevicePlan plan = planOf(family, flags, values, before);
        QStringList lines;
        const QVector<MemberChange> changes = plan.changes + plan.added;
        for (const MemberChange &change : changes)
            lines << line(change.exchange, change.member, change.before, change.after);
        for (const QString &member : plan.lacking)
            lines << "lacks " + member;
        QCOMPARE((lines << QString("already %1").arg(plan.alreadySo)).join("; "), field("plan"));

        lines = described("wrong ", differencesOf(family, flags, values, sent, held));
        DeviceUndo undo = undoOf(family, before, sent, held, false), forced = undoOf(family, before, sent, held, true);
        for (auto it = undo.begin(); it != undo.end(); ++it) {
            lines << described("left ", it->changedSince) << described("stays ", it->notRemovable);
            for (const QString &member : qAsConst(it->alreadyBack))
                lines << QString("%1 already %2").arg(it.key()).arg(member);
            if (it->goBack != forced[it.key()].goBack)
                lines << "forced " + forced[it.key()].goBack.keys().join(',');
            if (it->goBack.isEmpty())
                continue;
            const CfgExchange &exchange = family.exchanges.at(it.key());
            lines << QString("%1 writes ").arg(it.key()) + text(exchange.writeBack(held[it.key()], it->goBack));
            const QString byValues = text(exchange.setParam(valuesOf(family, {{it.key(), *it}}, held), held[it.key()]));
            if (!lines.constLast().endsWith(byValues))
                lines << "and not " + byValues;
        }
        QCOMPARE(lines.join("; "), field("outcome"));
    }

    void readsOnly()
    {
        Device device{familyOf("audio"), {"d", device_fleet::makeSiteDevice(1, 0).parameters}};
        const ScriptedTransport *transport = use(device, audio[2]);
        ReadTask task(device.family, "d", {}, allFlags, nullptr);
        const QSignalSpy results(&task, &ReadTask::signalCfgResult);
        QTRY_COMPARE(results.count(), 1);
        QCOMPARE(results.at(0).at(1).toString(), "Failed to get audio out parameters(7)");
        QCOMPARE(transport->methods(), (QStringList{audio[0], audio[2]}));
        QCOMPARE(task.objects(), (ObjectsByExchange{{0, device.read(allFlags, {}).value(0)}}));
    }

    void takesBackWhatItsOwnReadAllows_data()
    {
        columns<QString, QStringList, QString>({"theirs", "methods", "left"});
        row("one was changed since the preview", R"({"aiGain": 7, "inputMode": "line"})", audio, "0 aiGain: 99 -> 7");
        row("nothing of the first goes back", R"({"aiGain": 7, "bEnable": 7})",
            QStringList{audio[0], audio[2], audio[3]}, "0 aiGain: 99 -> 7; 0 bEnable: 2 -> 7");
    }

    void takesBackWhatItsOwnReadAllows()
    {
        QFETCH(QStringList, methods);
        Device device{familyOf("audio"), {"d", device_fleet::makeSiteDevice(1, 0).parameters}};
        const QJsonObject values{{"aiGain", 99}, {"bEnable", 2}}; // what no device has by itself
        const ObjectsByExchange before = device.read(allFlags, values);
        ObjectsByExchange sent;
        for (int place = 0; place < 2; ++place) {
            sent.insert(place, device.family.exchanges.at(place).setParam(values, before[place]));
            device.write(place, sent[place]);
        }
        const QJsonObject theirs = parsed(field("theirs")).toObject();
        device.write(0, {{"audioAttr", theirs}});
        const ScriptedTransport *transport = use(device);
        WriteBackTask task(device.family, "d", values, before, sent, false, nullptr);
        const QSignalSpy results(&task, &WriteBackTask::signalCfgResult);
        QTRY_COMPARE(results.count(), 1);
        QCOMPARE(results.at(0).at(2).toInt(), 0);
        QCOMPARE(transport->methods(), methods);
        QStringList left;
        for (const ExchangeUndo &undo : task.decided())
            left << described({}, undo.changedSince);
        QCOMPARE(left.join("; "), field("left"));
        ObjectsByExchange expected = before;
        expected[0] = mergeKnownKeys(before[0], theirs);
        QCOMPARE(membersIn(device.family, device.read(allFlags, values)), membersIn(device.family, expected));
    }

    void cloudIsReadAsTheRunReadIt()
    {
        Device device{familyOf("platform"), {"d", {}}};
        const QJsonObject values{{"qbcloud_type", "private"}};
        const ScriptedTransport *transport = use(device);
        const WriteBackTask task(device.family, "d", values, {{0, {}}}, {{0, values}}, false, nullptr);
        QCOMPARE(transport->requests.at(0).json().value("param")["qbcloud_type"].toString(), "private");
    }

private:
    const QStringList audio{"ai_get_param", "ai_set_param", "ao_get_param", "ao_set_param"};

    static QString field(const char *name) { return *static_cast<QString *>(QTest::qData(name, QMetaType::QString)); }

    /// Requests go to @p device, but for those that it refuses. It also sends what only the second exchange asks for.
    ScriptedTransport *use(Device &device, const QString &refused = {}) const
    {
        auto transport = std::make_unique<ScriptedTransport>([=, &device](const Request &request) {
            QStringList answers;
            if (request.method() == audio[0])
                answers << answer(audio[2], {{"a", 1}}) << answer(audio[3]);
            return answers << (request.method() == refused ? answer(refused, {}, 7)
                                                           : text(device.simulated.answer(request.json())));
        });
        ScriptedTransport *raw = transport.get();
        vms_sdk::ClientSdk::instance().setTransport(std::move(transport));
        return raw;
    }
};

ORDA_TEST_MAIN(PlanTest)
#include "plan_test.moc"
