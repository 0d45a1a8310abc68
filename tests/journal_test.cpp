#include "engine/ApplyJob.h"
#include "engine/ReadJob.h"
#include "journal/HistoryWriter.h"
#include "journal/JournalTransport.h"
#include "journal/PageWatch.h"
#include "support/Accounts.h"
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

namespace {

QStringList healthy(const Request &request)
{
    return {answer(request.method(), {{"bShowOSD", true}, {"aiGain", 3}, {"aoGain", 3}, {"qbcloud_addr", "old"}})};
}

/// The form with the journal between its pages and two devices, over a history of its own.
struct Site : FormFixture
{
    explicit Site(ScriptedTransport::Script answers, std::chrono::milliseconds waitingTime = 5s)
        : FormFixture(2, silent, waitingTime)
        , script(std::move(answers))
    {
        options.path = place.filePath("state/history.db");
        setTransport();
        tickAll();
        QObject::connect(&orda_worker::AssistantSignals::instance(),
                         &orda_worker::AssistantSignals::signalMessageAlerted, &jobs,
                         [this](auto, const QString &text) { decline(text); });
    }

    ~Site() { vms_sdk::ClientSdk::instance().setTransport(nullptr); } // before its history goes

    void setTransport(bool isRecorded = true)
    {
        auto scripted = std::make_unique<ScriptedTransport>([this](const Request &request) {
            if (request.method().contains("_set_") && !isOnDisk(request))
                unrecorded << request.devId + ' ' + request.method();
            return script(request);
        });
        transport = scripted.get();
        QObject::connect(transport, &ScriptedTransport::answered, transport,
                         [this](auto, const QString &text) { raised << text; });
        auto made = std::make_unique<JournalTransport>(std::move(scripted),
                                                       isRecorded ? std::make_unique<HistoryWriter>(options) : nullptr);
        journal = made.get();
        QObject::connect(journal, &JournalTransport::signalRunBegan, journal, [this](const RunStart &run) {
            ++begun;
            values = run.values;
        });
        QObject::connect(journal, &JournalTransport::signalRunRecorded, journal,
                         [this](auto id) { isEndOnDisk << (recordedRun(options, id).run.ended != 0); });
        QObject::connect(journal, &JournalTransport::signalSettled, journal, [this](const Settled &settled) {
            settledDevices << settled.row;
            if (onSettled)
                onSettled(settled.row.devId);
        });
        watch = std::make_unique<PageWatch>(journal);
        QObject::connect(watch.get(), &PageWatch::signalDeclined, watch.get(), [this](auto why) { decline(why); });
        const auto widgets = form->findChildren<QWidget *>();
        for (QWidget *widget : widgets)
            watch->watch(widget);
        vms_sdk::ClientSdk::instance().setTransport(std::move(made));
    }

    // What another connection than the one that writes it sees in the history at this moment.
    bool isOnDisk(const Request &write) const
    {
        const auto rows = recordedRun(options).exchanges;
        return std::any_of(rows.begin(), rows.end(), [&](const ExchangeRow &row) {
            return row.devId == write.devId && row.sent == write.text && raised.contains(row.before)
                && row.before.contains("\"errorcode\":0");
        });
    }

    void begin(const QString &kind, const QString &family = "osd")
    {
        const Selection selection{orda_batchCfg::Families::find(family), {"dev0", "dev1"}, values};
        if (kind == "page")
            return QTimer::singleShot(0, form, [this, row = familyRow(family)] {
                const int before = begun;
                configure(row.navigationKey, row.pageName);
                ended += begun - before;
            });
        if (kind == "read")
            return follow(new ReadJob(journal, selection, &jobs));
        auto *job = new ApplyJob(journal, selection, {{}, 100, kind == "retry" ? 1 : 0, kind == "verify"}, &jobs);
        QObject::connect(job, &WriteJob::signalStopped, job, [this] { ++stops; });
        QObject::connect(job, &WriteJob::signalOutcome, job, [this](auto &settled) { reported << settled.row.devId; });
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

    void awaitHistory(bool isRunOver) const // of the latest run
    {
        HistoryReader reader(options);
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

    bool hasEnded(int runs) const
    {
        return isReached([&] { return ended == runs; });
    }

    void answerAll(const QString &devId) const
    {
        const auto asked = requests(devId);
        for (const Request &request : asked)
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
        const bool locks = step.contains("locks");
        if (step == "barred")
            QVERIFY(QFile(place.filePath("state")).open(QIODevice::WriteOnly));
        if (step == "breaks") {
            awaitHistory(false);
            QVERIFY(QDir().rename(place.filePath("state"), place.filePath("gone")));
        }
        if (locks)
            lock();
        if (step.contains("stops"))
            journal->stop();
        if (step.contains("halts")) // when the write is waiting
            QTimer::singleShot(80, form, [this] { journal->stop(); });
        if (step.contains("leaves"))
            orda_data::DevsMgrData::instance().deleteDevs({"dev0"});
        if (step.contains("drops"))
            QTimer::singleShot(locks ? 80 : 0, form, [this] {
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
    HistoryOptions options;
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", place.path());
    ScriptedTransport::Script script;
    JournalTransport *journal = nullptr;
    std::unique_ptr<PageWatch> watch;
    QStringList unrecorded, raised, reported, declined;
    QVector<DeviceRow> settledDevices;
    QVector<bool> isEndOnDisk; // of each run that counts as recorded
    std::function<void(const QString &devId)> onSettled;
    std::function<void()> onDeclined;
    int begun = 0, ended = 0, stops = 0;
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
            const auto sentOver = [row = familyRow(family)](const FormFixture &form) {
                form.configure(row.navigationKey, row.pageName);
                QMap<QString, QStringList> texts; // by device
                for (const Request &request : qAsConst(form.transport->requests))
                    texts[request.devId] << request.text;
                return texts;
            };
            auto bare = std::make_unique<FormFixture>(2, healthy);
            bare->tickAll();
            const auto sent = sentOver(*bare);
            bare.reset();
            Site site(healthy);
            QCOMPARE(sentOver(site), sent);
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
        QMap<int, QString> steps;
        const QStringList parts = does.split("; ");
        for (const QString &step : parts)
            steps.insert(step.section(' ', 0, 0).toInt(), step.section(' ', 1));
        Site site(silent, isAnswered && !does.contains("silent") && !does.contains("locks") ? 5s : 200ms);
        site.options.lockTimeout = what.endsWith("too long") ? 50ms : 5s;
        site.setTransport();
        site.script = [&](const Request &request) {
            if (request.devId != "dev0")
                return isRetried || (isAnswered && !site.settledDevices.isEmpty()) ? healthy(request) : QStringList();
            return site.says(steps.value(site.requests("dev0").size()), request);
        };
        QString late;
        site.onSettled = [&](const QString &devId) {
            if (devId != "dev0")
                return;
            site.database.close();
            late = healthy(site.requests("dev0").constLast()).at(0);
            for (const QString &text : {QString("{"), late})
                emit site.transport->answered(site.requests("dev0").constLast().requestId, text);
            if (isAnswered)
                site.answerAll("dev1");
        };
        QTimer renewal; // the second waits longer than the first may
        QObject::connect(&renewal, &QTimer::timeout, [&] {
            const auto again = site.requests("dev1");
            for (const Request &request : again)
                vms_sdk::renewal_request_id(request.requestId);
        });
        if (isAnswered)
            renewal.start(40ms);
        if (family.endsWith(" in"))
            site.box("alarmOutVolume")->click();
        const FamilyRow row = familyRow(family.section(' ', 0, 0));
        const auto run = [&](const QString &kind) {
            vms_sdk::DevInfo dev = FormFixture::device(0);
            dev.password = "never written down";
            orda_data::DevsMgrData::instance().updateDevs({dev});
            orda_data::DevsMgrData::instance().setDevStatus("dev0", vms_sdk::DevOnline);
            site.transport->requests.clear();
            site.settledDevices.clear();
            site.take(steps.value(0));
            const int before = site.ended;
            site.begin(kind, row.name);
            QVERIFY(site.hasEnded(before + 1));
        };

        QStringList messages;
        const QStringList kinds = isRetried ? QStringList{"retry"} : QStringList{"page", "apply"};
        for (const QString &kind : kinds) {
            if (!hasHistory)
                expectWarning("The history cannot be written");
            run(kind);
            QCOMPARE(site.requests("dev0").size(), count.toInt());
            QStringList outcomes = accountsOf(site.settledDevices).values();
            const QString said = site.settledDevices.at(site.settledDevices.at(0).devId == "dev0" ? 0 : 1).message;
            if (hasHistory) {
                site.awaitHistory(true);
                const RunDetails details = recordedRun(site.options);
                QVERIFY(isRecorded(details, site.settledDevices));
                QCOMPARE(details.run.family, row.name);
                QCOMPARE(details.run.values, site.values);
                const DeviceRow &device = details.devices.at(0);
                QCOMPARE(device.message, said);
                outcomes[0] += device.late == late ? " late" : device.late;
                outcomes[0] += details.exchanges.value(0).after.isEmpty() ? "" : " re-read";
            } else { // nor is it lost for good
                QFile::remove(site.place.filePath("state"));
                QDir(site.place.filePath("gone")).removeRecursively();
            }
            QCOMPARE(outcomes.join(", "), expected);
            if (kind == "page")
                QVERIFY2(said.startsWith(recordedMessages(row).value("SN0")), qPrintable(said));
            messages << said;
            QCOMPARE(said, messages.at(0));
        }
        QCOMPARE(site.stops, hasHistory ? 0 : 1); // that of the job
        steps.clear();
        site.script = healthy;
        run("apply");
        for (const DeviceRow &device : qAsConst(site.settledDevices))
            QCOMPARE(device.message, "success");
        const auto files = QDir(site.place.filePath("state")).entryInfoList(QDir::Files);
        for (const QFileInfo &info : files) {
            QFile file(info.filePath());
            if (file.open(QIODevice::ReadOnly))
                QVERIFY(!file.readAll().contains("never written down"));
            else
                QVERIFY(!file.exists()); // the lock of the run, which ends with it
        }
        QCOMPARE(site.unrecorded, QStringList());
        QTRY_COMPARE(site.isEndOnDisk, QVector<bool>(1 + (hasHistory ? kinds.size() : 0), true));
        QTRY_COMPARE(site.transport->passed, site.raised);
    }

    void endThatIsNotRecorded()
    {
        Site site(healthy);
        site.options.lockTimeout = 50ms;
        site.setTransport();
        QSignalSpy failures(site.journal, &JournalTransport::signalHistoryFailed);
        int settled = 0;
        QObject::connect(site.journal, &JournalTransport::signalSettled, site.journal, [&] {
            if (++settled == 2) // of two devices: only the end is missing
                site.lock();
        });
        expectWarning("The history cannot be written");
        site.begin("apply");
        QTRY_COMPARE(failures.count(), 1);
        site.database.close();
        site.begin("apply");
        QTRY_COMPARE(site.isEndOnDisk, QVector<bool>{true}); // of the second run only
        site.setTransport(false);
        site.begin("apply");
        QTRY_COMPARE(site.isEndOnDisk, (QVector<bool>{true, false}));
    }

    void oneRunAtATime_data()
    {
        columns<QString, QString>({"holder", "other"});
        const QStringList holders{"turn", "page that nobody watches", "page", "read", "apply"};
        const QStringList others{"page", "read", "apply"};
        for (const QString &holder : holders)
            for (const QString &other : others)
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
            QVERIFY(isReached([&] { return !site.declined.isEmpty(); }));
            QVERIFY(site.transport->requests.isEmpty());
            site.journal->end();
            ++site.ended;
        } else {
            site.begin(holder);
        }
        QVERIFY(site.hasEnded(1));
        site.begin(other);
        QVERIFY(site.hasEnded(2));
        QCOMPARE(site.declined.size(), 1);
        const bool isReading = holder == "turn" || holder == "read";
        QVERIFY(site.declined.at(0).startsWith(isReading ? "Devices are being read" : "A configuration is under way"));
        QVERIFY(!site.journal->isBusy());
    }

    void runThatLosesItsOwner_data()
    {
        columns<QString, QString, QString, QString>({"kind", "when", "requests", "expected"});
        rowsFrom("lost_runs.txt");
    }

    void runThatLosesItsOwner()
    {
        QFETCH(QString, kind);
        QFETCH(QString, when);
        QFETCH(QString, requests);
        QFETCH(QString, expected);
        const bool isTransportGone = QByteArray(QTest::currentDataTag()).contains("connection gone");
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
            if (sent == requests.toInt() && when == "held")
                site.lock();
            if (sent == requests.toInt())
                QTimer::singleShot(when == "held" ? 80 : 0, &site.jobs, lose);
            return sent < (when == "verifying" ? 5 : when == "reading" ? 0 : 2) ? healthy(request) : QStringList();
        };
        site.begin(kind);
        QVERIFY(site.hasEnded(1));
        site.database.close();
        if (isTransportGone && (kind == "apply" || kind == "verify"))
            QCOMPARE(site.reported, (QStringList{"dev0", "dev1"}));
        QStringList found;
        const auto accounts = accountsOf(site.settledDevices);
        for (const QString &account : accounts)
            found << account.section(' ', 0, 0);
        QCOMPARE(found.join(", "), expected);
        if (!expected.isEmpty()) {
            site.awaitHistory(true);
            QVERIFY(isRecorded(recordedRun(site.options), site.settledDevices));
        }
        if (isTransportGone)
            site.setTransport();
        QCOMPARE(site.journal->beginReading(), QString()); // what the history tells now is of an earlier turn
        site.journal->end();
        site.script = healthy;
        site.transport->requests.clear();
        site.begin("apply");
        QVERIFY(site.hasEnded(2));
        QCOMPARE(site.transport->methods().filter("_set_").size(), 2);
        QVERIFY(site.unrecorded.isEmpty() && !site.journal->isBusy());
    }
};

ORDA_TEST_MAIN(JournalTest)
#include "journal_test.moc"
