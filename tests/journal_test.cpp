#include "engine/ApplyJob.h"
#include "engine/ReadJob.h"
#include "journal/HistoryReader.h"
#include "journal/HistoryWriter.h"
#include "journal/JournalTransport.h"
#include "journal/PageWatch.h"
#include "support/FamilyTable.h"
#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <families/Families.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <run/CfgRun.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/Requests.h>

#include <QtSql>

using namespace orda_engine;
using namespace orda_journal;
using namespace std::chrono_literals;
using Request = ScriptedTransport::Request;
using Steps = QMap<int, QString>;

namespace {

QStringList healthy(const Request &request)
{
    return {answer(request.method(), {{"bShowOSD", true}, {"aiGain", 3}, {"aoGain", 3}, {"qbcloud_addr", "old"}})};
}

HistoryOptions optionsIn(const QTemporaryDir &place)
{
    HistoryOptions options;
    options.path = place.filePath("state/history.db");
    options.lockTimeout = QByteArray(QTest::currentDataTag()).endsWith("too long") ? 50ms : 5s;
    return options;
}

/// The form with the journal between its pages and two devices, over a history of its own.
struct Site : FormFixture
{
    explicit Site(ScriptedTransport::Script answers)
        : FormFixture(2, silent, 400ms)
        , script(std::move(answers))
    {
        setTransport();
        tickAll();
        QObject::connect(&orda_worker::AssistantSignals::instance(),
                         &orda_worker::AssistantSignals::signalMessageAlerted, &jobs,
                         [this](auto, const QString &text) { decline(text); });
    }

    ~Site() { vms_sdk::ClientSdk::instance().setTransport(nullptr); } // before its history goes

    void setTransport()
    {
        auto scripted = std::make_unique<ScriptedTransport>([this](const Request &request) {
            if (request.method().contains("_set_") && !isRecorded(request))
                unrecorded << request.devId + ' ' + request.method();
            return script(request);
        });
        transport = scripted.get();
        QObject::connect(transport, &ScriptedTransport::answered,
                         [this](auto, const QString &text) { raised << text; });
        auto made = std::make_unique<JournalTransport>(std::move(scripted), std::make_unique<HistoryWriter>(options));
        journal = made.get();
        QObject::connect(journal, &JournalTransport::signalRunBegan, [this](const RunStart &run) {
            ++begun;
            values = run.values;
        });
        QObject::connect(journal, &JournalTransport::signalHistoryFailed, [this] { ++historyFailures; });
        QObject::connect(journal, &JournalTransport::signalSettled, [this](const Settled &settled) {
            outcomes.insert(settled.row.devId, settled.row);
            if (onSettled)
                onSettled(settled.row.devId);
        });
        watch = std::make_unique<PageWatch>(journal);
        QObject::connect(watch.get(), &PageWatch::signalDeclined, [this](auto why) { decline(why); });
        for (QWidget *widget : form->findChildren<QWidget *>())
            watch->watch(widget);
        vms_sdk::ClientSdk::instance().setTransport(std::move(made));
    }

    RunDetails latest() { return reader.run(reader.findRuns("last").value(0)).value_or(RunDetails()); }

    // What another connection than the one that writes it sees in the history at this moment.
    bool isRecorded(const Request &write)
    {
        const RunDetails run = latest();
        return std::any_of(run.exchanges.begin(), run.exchanges.end(), [&](const ExchangeRow &row) {
            return row.devId == write.devId && row.sent == write.text && raised.contains(row.before)
                && row.before.contains("\"errorcode\":0");
        });
    }

    void begin(const QString &kind, const QString &family = "osd")
    {
        const auto &all = orda_batchCfg::Families::all();
        const auto entry = std::find_if(all.begin(), all.end(), [&](auto &each) { return each.family.name == family; });
        const Selection selection{&entry->family, {"dev0", "dev1"}, values};
        if (kind == "page")
            return QTimer::singleShot(0, form, [this, row = familyRow(family)] {
                const int before = begun;
                configure(row.navigationKey, row.pageName);
                ended += begun - before;
            });
        if (kind == "read")
            return follow(new ReadJob(journal, selection, &jobs));
        auto *job = new ApplyJob(journal, selection, {{}, 100, kind == "retry" ? 1 : 0, kind == "verify"}, &jobs);
        QObject::connect(job, &WriteJob::signalOutcome, [this](auto &settled) { reported << settled.row.devId; });
        follow(job);
    }

    template <typename Job>
    void follow(Job *job)
    {
        QObject::connect(job, &Job::signalFinished,
                         [this](const QString &error) { error.isEmpty() ? void(++ended) : decline(error); });
        job->start();
    }

    void decline(const QString &why)
    {
        declined << why;
        if (onDeclined)
            onDeclined();
    }

    void awaitHistory(bool isRunOver) // of the latest run
    {
        while (reader.runs().isEmpty() || (reader.runs().at(0).ended != 0) != isRunOver)
            QThread::msleep(1);
    }

    QList<Request> requests(const QString &devId) const
    {
        QList<Request> found;
        std::copy_if(transport->requests.begin(), transport->requests.end(), std::back_inserter(found),
                     [&](const Request &request) { return request.devId.startsWith(devId); });
        return found;
    }

    int writes() const { return transport->methods().filter("_set_").size(); }

    void answerAll(const QString &devId) const
    {
        for (const Request &request : requests(devId))
            emit transport->answered(request.requestId, healthy(request).at(0));
    }

    void lock() // as another process does it
    {
        awaitHistory(false);
        database.setDatabaseName(options.path);
        QVERIFY(database.open() && !database.exec("BEGIN EXCLUSIVE").lastError().isValid());
    }

    void take(const QString &step)
    {
        if (step == "barred")
            QVERIFY(QFile(place.filePath("state")).open(QIODevice::WriteOnly));
        if (step == "breaks") {
            awaitHistory(false);
            QVERIFY(QDir().rename(place.filePath("state"), place.filePath("gone")));
        }
        if (step.contains("locks"))
            lock();
        if (step.contains("stops"))
            journal->stop();
        if (step.contains("halts")) // when the write is waiting
            QTimer::singleShot(120, form, [this] { journal->stop(); });
        if (step.contains("leaves"))
            orda_data::DevsMgrData::instance().deleteDevs({"dev0"});
        if (step.contains("drops"))
            QTimer::singleShot(step.contains("locks") ? 120 : 0, form, [this] {
                emit transport->devStatusChanged("dev0", vms_sdk::DevOffline);
                emit transport->devStatusChanged("dev0", vms_sdk::DevOnline);
            });
    }

    QStringList says(const QString &step, const Request &request)
    {
        take(step);
        const QString refused = answer(request.method(), {}, -5);
        const QHash<QString, QStringList> words{
            {"refuses", {refused}},
            {"garbage", {"{"}},
            {"silent", {}},
            {"lacks it", {answer(request.method())}},
            {"twice", {healthy(request).at(0), refused}},
            {"early", {answer("ao_set_param")}},
            {"foreign", {answer("x"), answer("ai_set_param"), healthy(request).at(0)}},
            {"holds it", {answer(request.method(), requests("dev0").value(1).json()["param"].toObject())}},
        };
        return words.value(step.section(", ", -1), healthy(request));
    }

    QTemporaryDir place;
    const HistoryOptions options = optionsIn(place);
    HistoryReader reader{options};
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", place.path());
    ScriptedTransport::Script script;
    JournalTransport *journal = nullptr;
    std::unique_ptr<PageWatch> watch;
    QStringList unrecorded, raised, reported, declined;
    QMultiMap<QString, DeviceRow> outcomes;
    std::function<void(const QString &devId)> onSettled;
    std::function<void()> onDeclined;
    int begun = 0, ended = 0, historyFailures = 0;
    QJsonObject values{{"bShowOSD", false}}; // of the latest run
    QObject jobs;
};

} // namespace

/// What is written to devices and what the history has of it, over pages and over the engine's jobs.
class JournalTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void theWireIsAsWithoutTheJournal()
    {
        for (const char *family : {"audio", "osd", "platform", "video"}) {
            const FamilyRow row = familyRow(family);
            QStringList bare;
            const auto texts = [](const FormFixture &form) {
                QStringList sent;
                for (const Request &request : form.transport->requests)
                    sent << request.devId + request.text;
                std::stable_sort(sent.begin(), sent.end(), [](auto &a, auto &b) { return a.left(4) < b.left(4); });
                return sent;
            };
            {
                const FormFixture form(2, healthy);
                form.tickAll();
                form.configure(row.navigationKey, row.pageName);
                bare = texts(form);
            }
            Site site(healthy);
            site.configure(row.navigationKey, row.pageName);
            QCOMPARE(texts(site), bare);
            QCOMPARE(site.unrecorded, QStringList());
            QSignalSpy troubles(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalDevTroubled);
            emit site.transport->linkTroubled("dev0", {});
            QTRY_COMPARE(troubles.count(), 1);
        }
    }

    void everyDeviceHasOneOutcome_data()
    {
        columns<QString, QString, QString, QString>({"family", "does", "expected", "count"});
        rowsFrom("outcomes.txt");
    }

    void everyDeviceHasOneOutcome()
    {
        QFETCH(QString, family);
        QFETCH(QString, does);
        QFETCH(QString, expected);
        QFETCH(QString, count);
        const QString what = QTest::currentDataTag();
        const bool isRetried = what.startsWith("tried again");
        const bool isAnswered = !what.endsWith("the other times out");
        const bool hasHistory = !what.startsWith("no history");
        Steps steps;
        for (const QString &step : does.split("; "))
            steps.insert(step.section(' ', 0, 0).toInt(), step.section(' ', 1));
        Site site(silent);
        site.script = [&](const Request &request) {
            if (request.devId != "dev0")
                return isRetried || (isAnswered && site.outcomes.contains("dev0")) ? healthy(request) : QStringList();
            return site.says(steps.value(site.requests("dev0").size()), request);
        };
        QString late;
        site.onSettled = [&](const QString &devId) {
            if (devId != "dev0")
                return;
            site.database.close();
            late = healthy(site.requests("dev0").last()).at(0);
            for (const QString &text : {QString("{"), late})
                emit site.transport->answered(site.requests("dev0").last().requestId, text);
            if (isAnswered)
                site.answerAll("dev1");
        };
        QTimer renewal; // the second waits longer than the first may
        int renewals = 0;
        QObject::connect(&renewal, &QTimer::timeout, [&] {
            for (const Request &request : site.requests("dev1"))
                if (++renewals < 10)
                    vms_sdk::renewal_request_id(request.requestId);
        });
        renewal.start(50ms);
        if (family.endsWith(" in"))
            site.box("alarmOutVolume")->click();
        const FamilyRow row = familyRow(family.section(' ', 0, 0));

        QStringList messages;
        const QStringList kinds = isRetried ? QStringList{"retry"} : QStringList{"page", "apply"};
        for (int run = 0; run < kinds.size(); ++run) {
            vms_sdk::DevInfo dev = FormFixture::device(0);
            dev.password = "never written down";
            orda_data::DevsMgrData::instance().updateDevs({dev});
            orda_data::DevsMgrData::instance().setDevStatus("dev0", vms_sdk::DevOnline);
            site.transport->requests.clear();
            site.outcomes.clear();
            renewals = 0;
            site.take(steps.value(0));
            if (!hasHistory)
                expectWarning("The history cannot be written");
            site.begin(kinds.at(run), row.name);
            QTRY_COMPARE(site.ended, run + 1);
            QCOMPARE(QStringList(site.outcomes.uniqueKeys()), QStringList(site.outcomes.keys()));
            QCOMPARE(site.requests("dev0").size(), count.toInt());
            QStringList outcomes;
            if (hasHistory) {
                site.awaitHistory(true);
                const RunDetails details = site.latest();
                QCOMPARE(details.run.family, row.name);
                QCOMPARE(details.run.values, site.values);
                QMap<Outcome, int> counts;
                for (const DeviceRow &device : details.devices) {
                    outcomes << outcomeName(*device.outcome) + QString(" %1").arg(device.code)
                                    + (device.late == late ? " late" : device.late);
                    QCOMPARE(device.message, site.outcomes.value(device.devId).message);
                    ++counts[*device.outcome];
                }
                QCOMPARE(details.run.counts, counts);
                QCOMPARE(details.devices.at(0).name, "Cam 0");
                const bool isReadAgain = (isRetried && count == "4")
                                      || (does.contains("drops") && count == "3" && !does.contains("refuses"));
                QCOMPARE(!details.exchanges.value(0).after.isEmpty(), isReadAgain);
            } else {
                for (const DeviceRow &device : qAsConst(site.outcomes))
                    outcomes << outcomeName(*device.outcome) + QString(" %1").arg(device.code);
                QCOMPARE(site.historyFailures, run + 1);
            }
            QCOMPARE(outcomes.join(", "), expected);
            const QString said = site.outcomes.value("dev0").message;
            if (kinds.at(run) == "page")
                QVERIFY2(said.startsWith(recordedMessages(row).value("SN0")), qPrintable(said));
            messages << said;
            QCOMPARE(said, messages.at(0));
            if (!hasHistory) { // nor is it lost for good
                QFile::remove(site.place.filePath("state"));
                QDir(site.place.filePath("gone")).removeRecursively();
            }
        }
        if (!hasHistory) {
            steps.clear();
            site.outcomes.clear();
            site.begin("apply", row.name);
            QTRY_COMPARE(site.ended, 3);
            for (const DeviceRow &device : qAsConst(site.outcomes))
                QCOMPARE(device.message, "success");
        }
        for (const QFileInfo &info : QDir(site.place.filePath("state")).entryInfoList(QDir::Files)) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly) && !file.readAll().contains("never written down"));
        }
        QCOMPARE(site.unrecorded, QStringList());
        QTRY_COMPARE(site.transport->passed, site.raised);
    }

    void oneRunAtATime_data()
    {
        columns<QString, QString>({"holder", "other"});
        for (const QString holder : {"turn", "page that nobody watches", "page", "read", "apply"})
            for (const QString other : {"page", "read", "apply"})
                if (holder + other != "pagepage") // the module's own affair
                    row(qPrintable(other + " during " + holder), holder, other);
    }

    void oneRunAtATime()
    {
        QFETCH(QString, holder);
        QFETCH(QString, other);
        Site site(silent);
        site.script = [&](const Request &) {
            QTimer::singleShot(0, &site.jobs, [&] { site.begin(other); });
            site.script = silent;
            return QStringList();
        };
        site.onDeclined = [&] {
            QTimer::singleShot(0, &site.jobs, [&] {
                site.script = healthy;
                site.answerAll("dev");
            });
        };
        if (holder == "turn" || holder == "page that nobody watches") {
            std::optional<orda_batchCfg::CfgRun> unwatched;
            holder == "turn" ? void(site.journal->beginReading()) : void(unwatched.emplace(1));
            site.begin(other);
            QTRY_COMPARE(site.declined.size(), 1);
            QVERIFY(site.transport->requests.isEmpty());
            site.journal->end();
            ++site.ended;
        } else {
            site.begin(holder);
        }
        QTRY_COMPARE(site.ended, 1);
        QCOMPARE(site.declined.size(), 1);
        QVERIFY(site.declined.at(0).startsWith("A configuration is under way"));
        site.begin(other);
        QTRY_COMPARE(site.ended, 2);
        QCOMPARE(site.declined.size(), 1);
        QVERIFY(!site.journal->isBusy());
    }

    void runThatLosesItsOwner_data()
    {
        columns<QString, QString, int, QString>({"kind", "when", "requests", "expected"});
        for (const QString how : {"deleted", "transport gone"})
            for (const QString kind : {"page", "apply", "verify", "read"}) {
                const auto add = [&](const QString &when, int requests, const QString &expected) {
                    row(qPrintable(QStringList({kind, how, when}).join(", ")), kind, when, requests, expected);
                };
                if (kind == "verify" || kind == "read") {
                    kind == "read" ? add("reading", 2, "") : add("verifying", 6, "done done");
                    continue;
                }
                add("writing", 3, "unknown stopped");
                add("held", 2, "stopped stopped");
            }
    }

    void runThatLosesItsOwner()
    {
        QFETCH(QString, kind);
        QFETCH(QString, when);
        QFETCH(int, requests);
        QFETCH(QString, expected);
        const bool isTransportGone = QByteArray(QTest::currentDataTag()).contains("gone");
        Site site(silent);
        const auto lose = [&] {
            if (isTransportGone) {
                site.database.close();
                vms_sdk::ClientSdk::instance().setTransport(nullptr);
            }
            if (kind == "page")
                return delete site.page("osdParamsCfgPage"); // which ends its waiting
            if (!isTransportGone)
                delete site.jobs.children().at(0);
            site.ended += isTransportGone ? 0 : 1;
        };
        site.script = [&](const Request &request) {
            const int sent = site.transport->requests.size();
            if (sent == requests && when == "held")
                site.lock();
            if (sent == requests)
                QTimer::singleShot(when == "held" ? 120 : 0, &site.jobs, lose);
            return sent < (when == "verifying" ? 5 : when == "reading" ? 0 : 2) ? healthy(request) : QStringList();
        };
        site.begin(kind);
        QTRY_COMPARE(site.ended, 1);
        site.database.close();
        if (isTransportGone && (kind == "apply" || kind == "verify"))
            QCOMPARE(site.reported, (QStringList{"dev0", "dev1"}));
        const int writes = isTransportGone ? 0 : site.writes();
        QStringList found;
        if (!expected.isEmpty()) {
            site.awaitHistory(true);
            const RunDetails details = site.latest();
            for (const DeviceRow &device : details.devices)
                found << outcomeName(*device.outcome);
        }
        QCOMPARE(found.join(' '), expected);
        QCOMPARE(QStringList(site.outcomes.keys()), expected.isEmpty() ? found : QStringList({"dev0", "dev1"}));
        if (isTransportGone)
            site.setTransport();
        QCOMPARE(site.journal->beginReading(), QString()); // what the history tells now is of an earlier turn
        site.journal->end();
        site.script = healthy;
        site.begin("apply");
        QTRY_COMPARE(site.ended, 2);
        QCOMPARE(site.writes(), writes + 2);
        QVERIFY(site.unrecorded.isEmpty() && !site.journal->isBusy());
    }
};

ORDA_TEST_MAIN(JournalTest)
#include "journal_test.moc"
