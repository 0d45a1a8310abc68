#include "engine/ApplyJob.h"
#include "engine/ReadJob.h"
#include "engine/UndoJob.h"
#include "fleet/EmbeddedFleet.h"
#include "fleet/ParameterTemplates.h"
#include "fleet/Site.h"
#include "journal/HistoryWriter.h"
#include "journal/JournalTransport.h"
#include "support/Accounts.h"
#include "support/FleetOf.h"
#include "support/OrdaTest.h"
#include "support/Store.h"

#include <families/Families.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/Requests.h>
#include <vms_client_sdk/WebSocketTransport.h>

#include <iostream>

using namespace device_fleet;
using namespace orda_engine;
using namespace orda_journal;
using namespace std::chrono_literals;
using orda_batchCfg::CfgFamily;
using orda_batchCfg::Families;
using vms_sdk::ClientSdk;
using Milliseconds = std::chrono::milliseconds;

namespace {

QJsonObject parsed(QString text)
{
    return QJsonDocument::fromJson(text.replace('\'', '"').toUtf8()).object();
}

/// Without values those that change something on nearly every device.
Selection selectionOf(const QString &family, const QList<vms_sdk::DevInfo> &devices, QString values = {})
{
    if (values.isEmpty()) {
        QFile usual(QFINDTESTDATA("cases/usual_values.json"));
        usual.open(QIODevice::ReadOnly);
        values = QJsonDocument(QJsonDocument::fromJson(usual.readAll())[family].toObject()).toJson();
    }
    Selection selection;
    selection.family = Families::find(family);
    for (const auto &device : devices)
        selection.devIds.append(device.id);
    selection.values = parsed(values);
    return selection;
}

/// The name of what the exchange is about, in a dump.
QString objectOf(const CfgFamily &family, int exchange)
{
    for (const ParameterObject &object : parameterObjects())
        if (object.readMethod == family.exchanges.at(exchange).getMethod)
            return object.name;
    return {};
}

/// A device of a dump with members like "0 aiGain" in place of the objects that the family is about.
QJsonObject flat(const CfgFamily &family, QJsonObject device)
{
    for (int place = 0; place < family.exchanges.size(); ++place) {
        const QJsonObject answer{{"result", device.take(objectOf(family, place))}};
        const QJsonObject members = family.exchanges.at(place).membersOf(family.exchanges.at(place).heldIn(answer));
        for (auto it = members.begin(); it != members.end(); ++it)
            device[QString("%1 %2").arg(place).arg(it.key())] = *it;
    }
    return device;
}

bool mayHaveChanged(Outcome outcome)
{
    return QList{Outcome::Done, Outcome::Unknown, Outcome::PartlyWritten, Outcome::Differs}.contains(outcome);
}

JournalTransport *connectTo(const QList<vms_sdk::DevInfo> &devices, const HistoryOptions &options,
                            Milliseconds waitingTime)
{
    auto network = std::make_unique<vms_sdk::WebSocketTransport>();
    auto *connections = network.get();
    auto journal = std::make_unique<JournalTransport>(std::move(network), std::make_unique<HistoryWriter>(options));
    auto *transport = journal.get();
    ClientSdk::instance().setTransport(std::move(journal));
    ClientSdk::instance().setRequestTimeout(waitingTime);
    orda_data::DevsMgrData::instance().updateDevs(devices);
    connections->setDevices(devices);
    return transport;
}

bool areOnline(int devices)
{
    return isReached([=] { return orda_data::DevsMgrData::instance().devCount(true) == devices; });
}

/// A fleet and the client over it.
struct Site : QObject
{
    explicit Site(const FleetOptions &options)
        : fleet(options)
    {
        const QString error = fleet.start();
        if (!error.isEmpty())
            qFatal("%s", qPrintable(error));
        inventory = fleet.inventory();
        for (int i = 0; i < options.devices; ++i)
            online += makeSiteDevice(options.seed, i).online ? 1 : 0;
        connect(&fleet, &EmbeddedFleet::requestReceived, this,
                [this](const QString &devId, const QString &method) { asked[devId].append(method); });
    }
    ~Site() override { ClientSdk::instance().setTransport(nullptr), clearStore(); }

    bool open(Milliseconds waitingTime = 5s)
    {
        journal = connectTo(inventory, options(), waitingTime);
        return areOnline(online);
    }
    /// Of a family, those devices that can be written to.
    Selection reachable(const QString &family) const
    {
        Selection selection = selectionOf(family, inventory);
        QStringList &ids = selection.devIds;
        ids.erase(std::remove_if(ids.begin(), ids.end(), [](auto id) { return !reachOf(id).canBeWritten; }), ids.end());
        return selection;
    }
    QJsonObject devices() const { return fleet.dump()["devices"].toObject(); }
    HistoryOptions options() const
    {
        HistoryOptions options;
        options.path = place.filePath("orda/history.db");
        return options;
    }
    /// Whether the history has of each device that was written to what it held and what it was sent.
    bool isKnown(const RunDetails &run, const CfgFamily &family, const QJsonObject &before) const
    {
        const QJsonObject now = devices();
        QMap<QString, ExchangeRow> rows; // by device and object
        for (const ExchangeRow &row : run.exchanges)
            rows[row.devId + objectOf(family, row.exchange)] = row;
        const auto ids = before.keys();
        for (const QString &devId : ids) {
            const QJsonObject held = before[devId].toObject();
            const auto names = held.keys();
            for (const QString &object : names) {
                const ExchangeRow row = rows.value(devId + object);
                const QJsonValue known = parsed(row.before).value("result"); // there is a fault that leaves it out
                const bool isKnown = !row.before.isEmpty() && (known.isUndefined() || known == held[object]);
                if (held[object] != now[devId][object] && (row.sent.isEmpty() || !isKnown))
                    return false;
            }
        }
        return true;
    }

    QTemporaryDir place;
    EmbeddedFleet fleet;
    QList<vms_sdk::DevInfo> inventory;
    int online = 0;
    QMap<QString, QStringList> asked; // methods by device
    QPointer<JournalTransport> journal; // the SDK owns it
};

/// Runs a job and keeps its accounts: one outcome a device, the same in the history, and none that hides a change.
struct Ran
{
    Ran(const Site &site, WriteJob &job) { check(site, job); }

    void check(const Site &site, WriteJob &job)
    {
        const QJsonObject before = site.devices();
        const QSignalSpy finished(&job, &WriteJob::signalFinished);
        QObject::connect(&job, &WriteJob::signalWaveBegan, &job, [this](int, int devices) { waves.append(devices); });
        QObject::connect(&job, &WriteJob::signalStopped, &job, [this] { ++stops; });
        QObject::connect(&job, &WriteJob::signalOutcome, &job, [this](const Settled &settled) { rows << settled.row; });
        job.start();
        QVERIFY(isReached([&] { return finished.count() == 1; }, 60s));
        QCOMPARE(finished.at(0).at(0).toString(), "");
        QCOMPARE(rows.size(), job.selection().devIds.size());
        const QJsonObject after = site.devices();
        for (const DeviceRow &row : qAsConst(rows)) {
            outcomes[row.devId] = *row.outcome;
            QVERIFY2(mayHaveChanged(*row.outcome) || before[row.devId] == after[row.devId], qPrintable(row.message));
        }
        QCOMPARE(outcomes.size(), rows.size());
        QVERIFY(isReached([&] {
            details = recordedRun(site.options(), job.runId());
            return details.run.ended > 0;
        }));
        QVERIFY(isRecorded(details, rows));
        QVERIFY(site.isKnown(details, *job.selection().family, before));
    }

    int stops = 0;
    QVector<DeviceRow> rows;
    QMap<QString, Outcome> outcomes;
    QList<int> waves;
    RunDetails details;
};

Ran takenBack(const Site &site, const RunDetails &details, bool force = false, bool verify = false)
{
    const RecordedRun run(details);
    WriteOptions options;
    options.verify = verify;
    UndoJob undo(site.journal, run, run.written().devIds, force, options);
    return {site, undo};
}

WriteOptions inWaves(const QString &sizes)
{
    QString error;
    return {Waves::parse(sizes, &error)};
}

/// The program as another process: "apply INVENTORY HISTORY FAMILY ONLINE" sets the usual values until it is killed.
int applyUntilKilled(const QStringList &arguments)
{
    const auto devices = vms_sdk::readInventory(arguments.at(2)).devices;
    HistoryOptions options;
    options.path = arguments.at(3);
    JournalTransport *journal = connectTo(devices, options, 5s);
    ApplyJob job(journal, selectionOf(arguments.at(4), devices), inWaves("25"));
    QObject::connect(&job, &WriteJob::signalWaveBegan, [](int wave) { std::cout << wave << std::endl; });
    if (!areOnline(arguments.at(5).toInt()))
        return 1;
    job.start();
    return QCoreApplication::exec();
}

QStringList offered()
{
    QStringList names;
    for (const auto &entry : Families::all())
        if (entry.key)
            names << entry.family.name;
    return names;
}

/// As many as were asked for, else so many.
int seedsOr(int usual)
{
    return qMax(usual, qEnvironmentVariableIntValue("ORDA_STORM_SEEDS"));
}

} // namespace

/// Reading, planning, setting, verifying and taking back over real sockets: what becomes of each device, what the
/// history has of it, and what the devices hold in the end.
class EngineTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void whatIsPlannedIsDoneAndTakenBack_data()
    {
        columns<QString, QString, QString, QString, QString, QString>(
            {"family", "values", "refused", "since", "left", "named"});
        const auto families = offered();
        for (const QString &family : families)
            row(qPrintable(family), family, "", "", "", "", "");
        rowsFrom("undo.txt");
    }

    void whatIsPlannedIsDoneAndTakenBack()
    {
        QFETCH(QString, family);
        QFETCH(QString, values);
        QFETCH(QString, refused);
        QFETCH(QString, since);
        QFETCH(QString, left);
        QFETCH(QString, named);
        Site site(fleetOf(80));
        QVERIFY(site.open());
        const Selection selection = selectionOf(family, site.inventory, values);
        const QJsonObject before = site.devices();
        QMap<QString, QJsonObject> expected, back; // flat, of the devices that can be written to
        QSet<QString> changing, gaining;
        ReadJob reading(site.journal, selection);
        connect(&reading, &ReadJob::signalRead, this, [&](const DeviceReading &device) {
            if (!device.isRead())
                return;
            const QString &devId = device.devId;
            expected[devId] = back[devId] = flat(*selection.family, before[devId].toObject());
            const DevicePlan plan = planOf(*selection.family, selection.flagsOf(devId), selection.values, device.held);
            const auto planned = plan.changes + plan.added;
            for (const MemberChange &change : planned) {
                const QString member = QString("%1 %2").arg(change.exchange).arg(change.member);
                QCOMPARE(back[devId].value(member), change.before);
                if (selection.family->exchanges.at(change.exchange).setMethod != refused)
                    expected[devId][member] = change.after;
                changing.insert(devId);
            }
            for (const MemberChange &change : plan.added) {
                back[devId][QString("%1 %2").arg(change.exchange).arg(change.member)] = change.after;
                gaining.insert(devId);
            }
        });
        const QSignalSpy finished(&reading, &ReadJob::signalFinished);
        reading.start();
        QVERIFY(isReached([&] { return finished.count() == 1; }));
        QVERIFY(expected.size() > 60 && !changing.isEmpty());
        QCOMPARE(expected.keys(), site.reachable(family).devIds);
        QCOMPARE(site.asked.keys(), expected.keys());
        QCOMPARE(site.devices(), before);

        if (!refused.isEmpty())
            site.fleet.setFault(FaultPlan::any(), refused, {});
        WriteOptions options;
        options.verify = true;
        ApplyJob apply(site.journal, selection, options);
        const Ran applied(site, apply);
        const QJsonObject after = site.devices();
        for (const QString &devId : selection.devIds) {
            QCOMPARE(outcomeName(applied.outcomes[devId]), !expected.contains(devId)  ? "not-reached"
                                                           : !refused.isEmpty()       ? "partly-written"
                                                           : changing.contains(devId) ? "done"
                                                                                      : "unchanged");
            if (expected.contains(devId))
                QCOMPARE(flat(*selection.family, after[devId].toObject()), expected[devId]);
        }
        QCOMPARE(site.asked.keys(), expected.keys());
        site.fleet.clearFaults();
        const QStringList written = RecordedRun(applied.details).written().devIds;
        const QSignalSpy answers(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalCommonRes);
        for (const QString &devId : written)
            vms_sdk::common_req(devId, devId, QJsonDocument(parsed(since)).toJson());
        QVERIFY(isReached([&] { return answers.count() == written.size(); }));
        QCOMPARE(site.devices() == after, since.isEmpty());

        const Ran undone = takenBack(site, applied.details, left.isEmpty() && !since.isEmpty(), true);
        const QJsonObject restored = site.devices();
        for (const DeviceRow &row : undone.rows) {
            const QJsonObject theirs = parsed(left);
            const auto members = theirs.keys();
            for (const QString &member : members)
                back[row.devId][member] = theirs[member];
            QCOMPARE(flat(*selection.family, restored[row.devId].toObject()), back[row.devId]);
            QVERIFY2(*row.outcome == Outcome::Done || *row.outcome == Outcome::Unchanged, qPrintable(row.message));
            QVERIFY2(restored[row.devId] == before[row.devId] || row.message.contains(named), qPrintable(row.message));
        }
        QCOMPARE(restored == before, left.isEmpty() && gaining.isEmpty());
        if (since.isEmpty()) {
            takenBack(site, undone.details);
            QCOMPARE(site.devices(), after);
        }
    }

    void faultAtEveryRequest_data()
    {
        columns<QString>({"family"});
        const auto families = seedsOr(0) > 0 ? offered() : QStringList{"audio", "platform"};
        for (const QString &family : families)
            row(qPrintable(family), family);
    }

    void faultAtEveryRequest()
    {
        allowWarnings("message over 1024 KiB"); // the fault of the huge answer
        QFETCH(QString, family);
        Site site(fleetOf(120));
        QVERIFY(site.open(250ms));
        Selection selection = site.reachable(family);
        QList<FaultRule> faults{{Fault::LateAnswer, 0, 100ms}, {Fault::LateAnswer, 0, 500ms}}; // in time, and not
        for (int fault = 0; fault <= int(Fault::DropAndReturn); ++fault)
            faults.append({Fault(fault), -5, 150ms});
        faults.append({Fault::DropAndReturn, 0, 150ms, ReturnWith::OldSettings});
        faults.append({Fault::DropAndReturn, 0, 150ms, ReturnWith::MissingMember});
        QStringList spoilt;
        int cell = 0;
        for (const FaultRule &fault : qAsConst(faults))
            for (const auto &exchange : selection.family->exchanges)
                for (const QString &method : {exchange.getMethod, exchange.setMethod}) {
                    const QString devId = selection.devIds.at(cell++);
                    site.fleet.setFault(devId, method, fault);
                    if (fault.fault == Fault::NoResult || fault.returnWith == ReturnWith::MissingMember)
                        spoilt.append(devId); // what it had is not known, or cannot come back
                }
        selection.devIds = selection.devIds.mid(0, cell);
        QJsonObject before = site.devices();
        ApplyJob apply(site.journal, selection, inWaves("50%")); // some are late while others go on
        const Ran applied(site, apply);
        site.fleet.clearFaults();
        ClientSdk::instance().setRequestTimeout(5s);
        QVERIFY(areOnline(site.online));
        takenBack(site, applied.details);
        QJsonObject after = site.devices();
        for (const QString &devId : qAsConst(spoilt))
            after.remove(devId), before.remove(devId);
        QCOMPARE(after, before);
    }

    void wavesRetriesAndStop_data() { seeds(seedsOr(16)); }

    void wavesRetriesAndStop()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const auto oneOf = [&random](const QStringList &list) { return list.at(random.bounded(list.size())); };
        Site site(fleetOf(60, quint32(seed)));
        QVERIFY(site.open(400ms));
        const Selection selection = selectionOf(oneOf({"audio", "video", "image", "network", "osd"}), site.inventory);
        const QString firstRead = selection.family->exchanges[0].getMethod;
        for (const QString &devId : selection.devIds) {
            const auto &exchange = selection.family->exchanges.at(random.bounded(selection.family->exchanges.size()));
            const QList faults{Fault::ErrorCode, Fault::ErrorCode, Fault::Garbage, Fault::AnswerTwice,
                               seed % 20 == 10 ? Fault::NoAnswer : Fault::LateAnswer};
            if (random.bounded(4) == 0)
                site.fleet.setFault(devId, oneOf({exchange.getMethod, exchange.setMethod}),
                                    {faults.at(random.bounded(faults.size())), -5, Milliseconds(seed)});
        }
        const QString sizes = oneOf({"60", "1, 10, 25%", "7", "10%, 50%"});
        WriteOptions options = inWaves(sizes);
        options.maxFailPercentage = oneOf({"0", "20", "40", "100", "100"}).toInt();
        options.retries = random.bounded(3);
        options.verify = random.bounded(2) == 0;
        ApplyJob job(site.journal, selection, options);
        const int count = random.bounded(1, 40);
        const QString ending = oneOf({"", "", "at a moment", "at an outcome", "at a wave", "without the connection"});
        const auto cancel = [&](bool isTime) { isTime ? job.cancel() : void(); };
        if (ending == "at a moment")
            QTimer::singleShot(5 * count, &job, &WriteJob::cancel);
        else if (ending == "at an outcome") // again and again
            connect(&job, &WriteJob::signalProgress, this, [&](int finished) { cancel(finished >= count); });
        else if (ending == "at a wave")
            connect(&job, &WriteJob::signalWaveBegan, this, [&](int wave) { cancel(wave == count / 10); });
        else if (ending == "without the connection") // when a device is read again
            connect(&site.fleet, &EmbeddedFleet::requestReceived, &job, [&](const QString &devId) {
                if (site.asked[devId].count(firstRead) == 2)
                    ClientSdk::instance().setTransport(nullptr);
            });
        const QJsonObject before = site.devices();
        const Ran ran(site, job);

        const QStringList expected = sizes.split(", ");
        int begun = 0;
        bool isOverShare = false;
        for (int wave = 0; wave < ran.waves.size(); ++wave) {
            const QString size = expected.value(wave, expected.last());
            const int devices = size.endsWith('%') ? 60 * size.chopped(1).toInt() / 100 : size.toInt();
            QCOMPARE(ran.waves[wave], qMin(devices, 60 - begun));
            QVERIFY(!isOverShare);
            int failures = 0;
            const auto wanted = selection.devIds.mid(begun, ran.waves[wave]);
            for (const QString &devId : wanted) {
                const Outcome outcome = ran.outcomes[devId];
                failures += outcome == Outcome::Failed || (mayHaveChanged(outcome) && outcome != Outcome::Done) ? 1 : 0;
                QVERIFY(site.asked[devId].count(firstRead) <= 1 + options.retries + (options.verify ? 1 : 0));
            }
            isOverShare = failures * 100 > options.maxFailPercentage * ran.waves[wave];
            begun += ran.waves[wave];
        }
        QVERIFY(ending.isEmpty() ? ran.stops == int(isOverShare) : ran.stops <= 1 && ran.stops >= int(isOverShare));
        QVERIFY(ran.stops == 1 || begun == 60 || ending == "without the connection");
        const auto rest = selection.devIds.mid(begun);
        for (const QString &devId : rest) {
            QCOMPARE(outcomeName(ran.outcomes[devId]), "stopped");
            QVERIFY(!site.asked.contains(devId));
        }

        if (!site.journal)
            return; // what a sudden end leaves behind has a test of its own
        site.fleet.disconnect(&job);
        site.fleet.clearFaults();
        ClientSdk::instance().setRequestTimeout(5s);
        takenBack(site, ran.details);
        QCOMPARE(site.devices(), before);
    }

    void shareOfFailures_data()
    {
        columns<int, int>({"share", "waves"});
        row("reached", 40, 2);
        row("exceeded", 39, 1);
    }

    void shareOfFailures()
    {
        QFETCH(int, share);
        Site site(fleetOf(20));
        QVERIFY(site.open());
        Selection selection = site.reachable("osd");
        selection.devIds = selection.devIds.mid(0, 10);
        for (const int failing : {0, 4})
            site.fleet.setFault(selection.devIds.at(failing), FaultPlan::any(), {});
        WriteOptions options = inWaves("5");
        options.maxFailPercentage = share;
        ApplyJob job(site.journal, selection, options);
        QTEST(Ran(site, job).waves.size(), "waves");
    }

    void cancelledReading()
    {
        Site site(fleetOf(60));
        QVERIFY(site.open());
        ReadJob job(site.journal, selectionOf("osd", site.inventory));
        QStringList said;
        connect(&job, &ReadJob::signalRead, this, [&](const DeviceReading &device) {
            said.append(device.devId);
            if (device.code != 0 || said.size() == 30)
                job.cancel();
        });
        connect(&job, &ReadJob::signalProgress, this,
                [&](int finished) { QVERIFY(finished <= said.size() && !said.contains("finished")); });
        connect(&job, &ReadJob::signalFinished, this, [&] { said.append("finished"); });
        job.start();
        QVERIFY(isReached([&] { return said.contains("finished"); }));
        QTest::qWait(50); // what was asked is answered
        QCOMPARE(said.size(), 61);
        QCOMPARE(said.removeDuplicates(), 0);
        QVERIFY(!site.journal->isBusy());
    }

    void suddenEnd_data() { seeds(seedsOr(4)); }

    void suddenEnd()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const CfgFamily &family = Families::all().at(1 + random.bounded(Families::all().size() - 1)).family;
        FleetOptions options = fleetOf(100, quint32(seed));
        options.latency = 2ms;
        Site site(options);
        const QJsonObject before = site.devices();
        const QString inventory = site.place.filePath("inventory.json");
        QCOMPARE(vms_sdk::writeInventory(inventory, site.inventory), "");
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(),
                      {"apply", inventory, site.options().path, family.name, QString::number(site.online)});
        QVERIFY(process.waitForReadyRead());
        QThread::usleep(random.bounded(150'000U));
        process.kill();
        QVERIFY(process.waitForFinished());
        QTRY_COMPARE(site.fleet.connectedDevices(), 0); // they have read everything
        const QJsonObject after = site.devices();
        const RunDetails killed = recordedRun(site.options());
        QVERIFY(site.isKnown(killed, family, before));
        if (killed.run.id.isEmpty())
            return; // it had not even begun

        QVERIFY(site.open());
        takenBack(site, killed);
        QCOMPARE(site.devices(), before);
        const RunDetails ended = recordedRun(site.options(), killed.run.id);
        QVERIFY(ended.run.ended > 0 && ended.devices.size() == 100 && isRecorded(ended, ended.devices));
        for (const DeviceRow &row : ended.devices)
            QVERIFY(mayHaveChanged(row.outcome.value()) || before[row.devId] == after[row.devId]);
    }
};

int main(int argc, char *argv[])
{
    qputenv("QT_NO_GLIB", "1");
    const QCoreApplication app(argc, argv); // the engine needs no more
    if (QCoreApplication::arguments().value(1) == "apply")
        return applyUntilKilled(QCoreApplication::arguments());
    EngineTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "engine_test.moc"
