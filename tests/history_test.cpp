#include "support/OrdaTest.h"
#include "support/Store.h"

#include "journal/HistoryArchive.h"
#include "journal/HistoryReader.h"
#include "journal/HistoryWriter.h"

#include <QtSql>

#include <iostream>
#include <sys/mount.h>
#include <sys/stat.h>

using namespace orda_journal;
using namespace std::chrono_literals;
using Counts = QMap<Outcome, int>;

namespace {

constexpr int devicesOfRun = 20;
constexpr int stepsOfRun = 2 + 2 * devicesOfRun; // beginning, exchanges, outcomes, end

RunStart startOf(int devices, const QString &id = QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    RunStart start{id, "osd", "apply", {}, {{"bShowOSD", true}}, {}, {}};
    for (int i = 0; i < devices; ++i)
        start.devIds.append(QStringLiteral("dev-%1").arg(i));
    return start;
}

/// A writer, and what it has said.
struct Writing
{
    explicit Writing(const HistoryOptions &options)
        : writer(options)
    {
        QObject::connect(&writer, &HistoryWriter::signalCommitted, &writer, [this](quint64 to) { committed = to; });
        QObject::connect(&writer, &HistoryWriter::signalFailed, &writer, [this](auto why) { failures += why; });
        QObject::connect(&writer, &HistoryWriter::signalSetAside, &writer, [this](auto what) { aside += what; });
    }

    bool onDisk(quint64 ticket, int expectedFailures = 0)
    {
        const bool is =
            QTest::qWaitFor([&] { return committed >= ticket || failures.size() > expectedFailures; }, 20000);
        return is && committed >= ticket;
    }

    quint64 wholeRun(const RunStart &start, const QString &text = "{}")
    {
        writer.beginRun(start);
        for (const QString &devId : start.devIds) {
            writer.putExchange(start.id, {devId, 0, text, "sent", {}});
            QTest::qWait(pause);
        }
        for (const QString &devId : start.devIds) {
            writer.putDevice(start.id, {devId, Outcome::Done, 0, "success", {}});
            QTest::qWait(pause);
        }
        return writer.endRun(start.id);
    }

    int pause = 0; // in milliseconds: a run is in several transactions then
    quint64 committed = 0;
    QStringList failures, aside;
    HistoryWriter writer; // the last: its thread ends before the rest
};

/// The program as another process: "write PATH RUNS" says again and again how many steps are on the disk,
/// each of which has a ticket.
int writeAsOther(const QStringList &arguments)
{
    HistoryOptions options;
    options.path = arguments.at(2);
    Writing writing(options);
    writing.pause = 1;
    QObject::connect(&writing.writer, &HistoryWriter::signalCommitted, &writing.writer,
                     [](quint64 ticket) { std::cout << ticket << std::endl; });
    for (int run = 0; run < arguments.at(3).toInt(); ++run)
        if (!writing.onDisk(writing.wholeRun(startOf(devicesOfRun))))
            return 1;
    return 0;
}

/// A recorded run that took some doing.
RunDetails undone()
{
    RunDetails run;
    const QJsonObject values{{"bShowOSD", true}};
    const QString id = "aaaa0000-0000-4000-8000-000000000001", undoes = "bbbb0000-0000-4000-8000-000000000001";
    run.run = {id, "osd", "undo", undoes, values, "test 1", 1772413100123, 1772413200456};
    run.devices = {{"dev-0", Outcome::Done, 0, "success", "", QString::fromUtf8("Tür 一"), "SN0", "10.0.0.1"},
                   {"dev-1", Outcome::Unknown, -61004, "time\nout", "{}", "-1+1", "SN1", "", {{"position", "hide"}}}};
    run.exchanges = {{"dev-0", 0, R"({"result":{"bShowOSD":false,"channelName":"a"}})",
                      R"({"param":{"channelid":0,"attr":{"bShowOSD":true,"channelName":"a","position":"hide"}}})", ""},
                     {"dev-0", 1, "one", "two", "three"}};
    return run;
}

struct Other : QProcess
{
    explicit Other(const QString &path, int runs)
    {
        setProcessChannelMode(ForwardedErrorChannel);
        start(QCoreApplication::applicationFilePath(), {"write", path, QString::number(runs)});
    }
    ~Other() override { kill(), waitForFinished(); }
};

QVariant sql(const QString &path, const QString &statement)
{
    QVariant first;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "test");
        database.setDatabaseName(path);
        if (database.open()) {
            QSqlQuery query(statement, database);
            first = query.next() ? query.value(0) : QVariant();
        }
    }
    QSqlDatabase::removeDatabase("test");
    return first;
}

/// Everything that the history has of a run but times and id, a line each.
QStringList described(const RunDetails &details)
{
    QStringList lines;
    const auto add = [&lines](const QStringList &parts) { lines.append(parts.join('|')); };
    const auto text = [](const QJsonObject &values) { return QJsonDocument(values).toJson(QJsonDocument::Compact); };
    const RunRow &run = details.run;
    add({run.family, run.kind, run.undoes, text(run.values), run.program.section(' ', 0, 0)});
    for (const DeviceRow &row : details.devices) {
        const QString outcome = row.outcome ? outcomeName(*row.outcome) : "";
        add({row.devId, outcome, QString::number(row.code), row.message, row.late});
        add({row.name, row.serialNumber, row.ip, text(row.ownValues)});
    }
    for (const ExchangeRow &row : details.exchanges)
        add({row.devId, QString::number(row.exchange), row.before, row.sent, row.after});
    return lines;
}

} // namespace

/// The history of runs: a file that other processes, the disk and a sudden end have their part in.
class HistoryTest : public OrdaTest
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_place;
    HistoryOptions m_options;
    bool m_isKnown = false; // of a run that was taken in
    int m_removed = 1; // runs

    QString directory() const { return QFileInfo(m_options.path).path(); }
    QStringList filesLike(const QString &pattern) const { return QDir(directory()).entryList({pattern}, QDir::Files); }
    /// What a command of the shell says in the temporary directory.
    QString said(const QString &command) const
    {
        QProcess shell;
        shell.setWorkingDirectory(m_place->path());
        shell.start("/bin/sh", {"-c", command});
        shell.waitForFinished();
        return shell.readAll();
    }
    QString everyFile() const { return said("find . -type f ! -name '*lock' -exec sha256sum {} + | sort"); }
    QVector<RunRow> runs() const { return HistoryReader(m_options).runs(); }
    bool inShell(const QString &command) const
    {
        return QProcess::execute("/bin/sh", {"-c", QString("cd '%1' && { %2; }").arg(directory(), command)}) == 0;
    }
    bool overwritePageOf(const QString &table) const // or the beginning
    {
        const QString page = QString("SELECT rootpage FROM sqlite_master WHERE name = '%1'").arg(table);
        const int before = table.isEmpty() ? 0 : sql(m_options.path, page).toInt() - 1;
        return inShell("yes | dd of=history.db bs=4096 count=1 conv=notrunc iflag=fullblock status=none seek="
                       + QString::number(before));
    }
    void writeRuns(int count, const QString &text = "{}")
    {
        Writing writing(m_options);
        for (int i = 0; i < count; ++i)
            QVERIFY(writing.onDisk(writing.wholeRun(startOf(devicesOfRun), text)));
    }

private slots:
    void init()
    {
        OrdaTest::init();
        m_place = std::make_unique<QTemporaryDir>();
        m_options = {};
        m_options.path = m_place->filePath("state/orda/history.db");
    }

    void cleanup()
    {
        ::umount(QFile::encodeName(directory()).constData());
        clearStore();
        OrdaTest::cleanup();
    }

    void whatWasHandedOverIsRead()
    {
        HistoryReader reader(m_options);
        QVERIFY(reader.runs().isEmpty() && reader.error().isEmpty());
        QVERIFY(!QFileInfo::exists(m_options.path));
        vms_sdk::DevInfo info;
        info.id = "dev-1", info.name = QString::fromUtf8("Tür 1"), info.serialNumber = "SN1", info.ip = "10.0.0.1";
        orda_data::DevsMgrData::instance().updateDevs({info});
        Writing writing(m_options);
        RunStart start = startOf(3, "aaaa0000-0000-4000-8000-000000000001");
        start.kind = "undo", start.undoes = "aaaa0000-0000-4000-8000-000000000000",
        start.ownValues = {{"dev-2", {{"speed", 3}}}};
        const QString odd = QString::fromUtf8("b{\"ü\0\"}", 8);
        HistoryWriter &writer = writing.writer;
        writer.beginRun(start);
        clearStore(); // the names are those of the moment
        writer.putExchange(start.id, {"dev-1", 1, odd, {}, {}});
        writer.putExchange(start.id, {"dev-1", 1, {}, "sent", {}});
        writer.putExchange(start.id, {"dev-1", 1, {}, "sent again", "after"});
        writer.putExchange(start.id, {"dev-1", 0, "first", {}, {}});
        writer.putDevice(start.id, {"dev-0", Outcome::Unknown, -61004, "time out", {}});
        QVERIFY(writing.onDisk(writer.putDevice(start.id, {"dev-0", {}, 0, {}, "while others go on"})));
        const QString tuer = QString::fromUtf8("Tür 1|SN1|10.0.0.1|{}");
        QStringList expected{"osd|undo|" + start.undoes + "|{\"bShowOSD\":true}|history_test",
                             "dev-0|unknown|-61004|time out|while others go on",
                             "|||{}",
                             "dev-1||0||",
                             tuer,
                             "dev-2||0||",
                             "|||{\"speed\":3}",
                             "dev-1|0|first||",
                             "dev-1|1|" + odd + "|sent again|after"};
        QCOMPARE(described(*reader.run(start.id)), expected);
        QCOMPARE(reader.run(start.id)->run.ended, 0);
        writer.putDevice(start.id, {"dev-1", Outcome::PartlyWritten, -12, "no", {}});
        writer.putDevice(start.id, {"dev-2", Outcome::NotReached, -3, "off line", {}});
        writer.endRun(start.id);
        QVERIFY(writing.onDisk(writer.putDevice(start.id, {"dev-1", Outcome::Done, 0, {}, "late answer"})));
        expected[3] = "dev-1|partly-written|-12|no|late answer";
        expected[5] = "dev-2|not-reached|-3|off line|";
        const RunDetails details = *reader.run(start.id);
        QCOMPARE(described(details), expected);
        QVERIFY(details.run.began > 0 && details.run.ended >= details.run.began);
        QCOMPARE(details.run.counts,
                 (Counts{{Outcome::Unknown, 1}, {Outcome::PartlyWritten, 1}, {Outcome::NotReached, 1}}));

        const QString second = "aaaa1111-0000-4000-8000-000000000001";
        QVERIFY(writing.onDisk(writing.wholeRun(startOf(1, second))));
        QCOMPARE(reader.findRuns("last"), QStringList{second});
        QCOMPARE(reader.findRuns("aaaa0"), QStringList{start.id});
        QCOMPARE(reader.findRuns("aaaa"), (QStringList{second, start.id}));
        QVERIFY(reader.findRuns("a%").isEmpty() && reader.findRuns({}).isEmpty() && !reader.run("aaaa"));
        QCOMPARE(reader.runs(1).size(), 1);

        HistoryOptions elsewhere = m_options;
        elsewhere.path = m_place->filePath("elsewhere/history.db");
        HistoryReader other(elsewhere);
        for (int i = 0; i < 4; ++i) { // the latest first, and each twice
            const QString id = i < 2 ? second : start.id;
            const QByteArray text = QJsonDocument(HistoryArchive::toJson(*reader.run(id))).toJson();
            QString error;
            const RunDetails run = HistoryArchive::fromJson(QJsonDocument::fromJson(text).object(), &error);
            QCOMPARE(error, QString());
            QCOMPARE(HistoryArchive(elsewhere).add(run, &m_isKnown), QString());
            QCOMPARE(m_isKnown, i % 2 != 0);
            QCOMPARE(HistoryArchive::toJson(*other.run(id)), HistoryArchive::toJson(*reader.run(id)));
            QCOMPARE(described(*other.run(id)), described(*reader.run(id)));
            QCOMPARE(other.run(id)->run.counts, reader.run(id)->run.counts);
        }
        QCOMPARE(other.findRuns("last"), QStringList{second});
    }

    void whatWasWrittenOutIsChecked_data()
    {
        columns<QString, QString, QString>({"part", "instead", "fault"});
        rowsFrom("history_imports.txt");
    }

    void whatWasWrittenOutIsChecked()
    {
        QFETCH(QString, part);
        QFETCH(QString, instead);
        QFETCH(QString, fault);
        const QString whole = QJsonDocument(HistoryArchive::toJson(undone())).toJson(QJsonDocument::Compact);
        QVERIFY(whole.contains(part));
        const QString spoilt = QString(whole).replace(whole.indexOf(part), part.size(), instead);
        QString error;
        HistoryArchive::fromJson(QJsonDocument::fromJson(spoilt.toUtf8()).object(), &error);
        QVERIFY2(error.contains(fault), qPrintable(error));
    }

    void commands_data()
    {
        columns<QString, QString>({"command", "output"});
        rowsFrom("history_commands.txt");
    }

    void commands()
    {
        QFETCH(QString, command);
        QFETCH(QString, output);
        RunDetails foreign = undone();
        foreign.run.id[4] = '1', foreign.run.family = "lens", foreign.run.kind = "apply", foreign.run.undoes.clear();
        foreign.run.began = foreign.run.ended;
        for (const RunDetails &run : {undone(), foreign})
            QCOMPARE(HistoryArchive(m_options).add(run, &m_isKnown), QString());
        Writing living(m_options);
        QVERIFY(living.onDisk(living.writer.beginRun(startOf(1, "cccc0000-0000-4000-8000-000000000001"))));
        const QString shell = "h() { f=$1; shift; XDG_STATE_HOME=$PWD/${at:-state} '%1/orda_batch' history \"$@\" "
                              "--format $f; }; { %2; } 2>&1; echo $?";
        const QString text = said(shell.arg(QCoreApplication::applicationDirPath(), command));
        const QRegularExpression expected(QRegularExpression::anchoredPattern(output),
                                          QRegularExpression::DotMatchesEverythingOption);
        QVERIFY2(expected.match(text).hasMatch(), qPrintable(text));
    }

    void oldRunFromElsewhere()
    {
        m_options.keptRuns = 1;
        QCOMPARE(HistoryArchive(m_options).prune(&m_removed), QString());
        QVERIFY(m_removed == 0 && !QFileInfo::exists(directory()));
        auto killed = std::make_unique<Writing>(m_options);
        QVERIFY(killed->onDisk(killed->writer.beginRun(startOf(1))));
        killed.reset();
        RunDetails old = undone();
        old.run.began = 1;
        QCOMPARE(HistoryArchive(m_options).add(old, &m_isKnown), QString());
        QCOMPARE(runs().size(), 2);
        QCOMPARE(runs().constFirst().counts, (Counts{{Outcome::Stopped, 1}}));
        const QStringList latest = HistoryReader(m_options).findRuns("last");
        RunDetails ahead = undone(); // of a machine whose clock is wrong
        ahead.run.id[4] = '1', ahead.run.began = ahead.run.ended = std::numeric_limits<qint64>::max() / 2;
        QCOMPARE(HistoryArchive(m_options).add(ahead, &m_isKnown), QString());
        QCOMPARE(HistoryReader(m_options).findRuns("last"), latest);
        QCOMPARE(HistoryArchive(m_options).prune(&m_removed), QString());
        QCOMPARE(m_removed, 1);
        QVERIFY(runs().size() == 2 && runs().constLast().id == latest.constFirst());
    }

    void nobodyElseReadsIt()
    {
        const mode_t before = ::umask(0);
        const auto restore = qScopeGuard([before] { ::umask(before); });
        for (const char *id : {"aaaa0000-0000-4000-8000-000000000001", "aaaa0000-0000-4000-8000-000000000002"}) {
            Writing writing(m_options);
            QVERIFY(writing.onDisk(writing.writer.beginRun(startOf(1, id))));
            const QString files = "700 .\n600 %1.lock\n600 history.db\n600 history.db-shm\n600 history.db-wal\n"
                                  "600 history.db.lock\n";
            QCOMPARE(said("cd state/orda; stat -c '%a %n' . *"), files.arg(id));
            QVERIFY(inShell("chmod 6666 history.db")); // as after copying it back
        }
    }

    void whatIsNotTheUsersOwnIsRefused_data()
    {
        columns<QString, QString>({"spoil", "why"});
        rowsFrom("history_refusals.txt");
    }

    void whatIsNotTheUsersOwnIsRefused()
    {
        QFETCH(QString, spoil);
        QFETCH(QString, why);
        writeRuns(1);
        if (!inShell(spoil) && QByteArray(QTest::currentDataTag()).endsWith("(root)"))
            QSKIP("only root can do this");
        const auto before = everyFile();
        Writing writing(m_options);
        const RunStart start = startOf(1);
        QVERIFY(!writing.onDisk(writing.wholeRun(start)));
        QVERIFY2(writing.failures.join('|').contains(why), qPrintable(writing.failures.join('|')));
        writing.writer.putDevice(start.id, {"dev-0", Outcome::Done, 0, {}, {}}); // nobody needs to hear of it twice
        QVERIFY(!QTest::qWaitFor([&] { return writing.committed > 0 || writing.failures.size() > 1; }, 50));
        QVERIFY(HistoryArchive(m_options).add(undone(), &m_isKnown).contains(why));
        QCOMPARE(HistoryArchive(m_options).prune(&m_removed).contains(why), !spoil.contains("rm -r"));
        QCOMPARE(everyFile(), before);
        const bool isReadable = !QFileInfo(m_options.path).isFile() || spoil.contains("lock") || why == "Read-only";
        HistoryReader reader(m_options);
        QVERIFY(isReadable || (reader.runs().isEmpty() && !reader.error().isEmpty()));
    }

    void damagedFileIsSetAside_data()
    {
        columns<QString, bool>({"page", "isSeenInList"}); // where the page of a table is overwritten
        row("beginning", "", true);
        row("a page in the middle", "devices", false);
        row("the runs", "runs", true);
        row("cut off", "end", true);
    }

    void damagedFileIsSetAside()
    {
        QFETCH(QString, page);
        QFETCH(bool, isSeenInList);
        writeRuns(3);
        QVERIFY(page == "end" ? inShell("truncate -s 4200 history.db") : overwritePageOf(page));
        const QString before = everyFile();
        QVERIFY(HistoryArchive(m_options).add(undone(), &m_isKnown).contains("history.db: it is damaged"));
        QCOMPARE(HistoryArchive(m_options).prune(&m_removed).contains("history.db: it is damaged"), isSeenInList);
        QCOMPARE(everyFile(), before);
        QVERIFY(inShell("yes | head -c 4096 >history.db-wal")); // not SQLite's own, and kept all the same
        {
            HistoryReader reader(m_options);
            QCOMPARE(reader.runs().size() == 3 && reader.error().isEmpty(), !isSeenInList);
            QCOMPARE(reader.error().contains("history.db: it is damaged"), isSeenInList);
        }
        QVERIFY(inShell("cp history.db copy; cp history.db-wal copy-wal"));
        Writing writing(m_options);
        QVERIFY2(writing.onDisk(writing.wholeRun(startOf(2))), qPrintable(writing.failures.join('|')));
        const QStringList aside = filesLike("history.db.damaged-*[0-9]");
        QCOMPARE(aside.size(), 1);
        QVERIFY(inShell(QString("cmp copy %1 && cmp copy-wal %1-wal").arg(aside.first())));
        QCOMPARE(writing.aside.size(), 1);
        QVERIFY(writing.aside.first().contains(m_options.path + ' ') && writing.aside.first().contains(aside.first()));
        QCOMPARE(runs().size(), 1);
        QCOMPARE(runs().constFirst().counts, (Counts{{Outcome::Done, 2}}));
    }

    void whatEndsARun_data()
    {
        columns<QString, QString>({"spoil", "why"});
        row("renamed", "mv history.db moved", "renamed or removed");
        row("locked", "true", "history.db: another process has it locked");
        row("full disk", "head -c 3000000 /dev/zero >big 2>&- || true", "history.db: the disk is full");
    }

    void whatEndsARun()
    {
        QFETCH(QString, spoil);
        QFETCH(QString, why);
        QVERIFY(QDir().mkpath(directory()));
        if (why.contains("full") && ::mount("tmpfs", QFile::encodeName(directory()), "tmpfs", 0, "size=2m,mode=0700"))
            QSKIP("a disk of its own is mounted by root only");
        m_options.lockTimeout = 300ms;
        Writing writing(m_options);
        const RunStart start = startOf(3);
        writing.writer.beginRun(start);
        writing.writer.putExchange(start.id, {"dev-2", 0, "before", {}, {}}); // only read
        QVERIFY(writing.onDisk(writing.writer.putExchange(start.id, {"dev-0", 0, "before", "sent", {}})));
        QVERIFY(inShell(spoil));
        QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", m_place->path());
        other.setDatabaseName(m_options.path);
        if (why.contains("locked"))
            QVERIFY(other.open() && !other.exec("BEGIN EXCLUSIVE").lastError().isValid());
        QVERIFY(!writing.onDisk(writing.writer.putExchange(start.id, {"dev-1", 0, QString(30000, 'b'), "sent", {}})));
        QVERIFY2(writing.failures.first().contains(why), qPrintable(writing.failures.first()));
        QCOMPARE(HistoryArchive(m_options).prune(&m_removed).contains(why), !why.contains("renamed"));
        QTimer::singleShot(100, &writing.writer, [&other] { other.close(); }); // it waits so long
        QVERIFY(inShell("rm -f big; test ! -e moved || mv moved history.db"));
        QVERIFY(writing.onDisk(writing.wholeRun(startOf(1)), 1));
        QCOMPARE(runs().constLast().counts, (Counts{{Outcome::Unknown, 1}, {Outcome::Stopped, 2}}));
        QVERIFY(inShell("mv history.db between-two-runs")); // costs nothing
        QVERIFY(writing.onDisk(writing.wholeRun(startOf(1)), 1));
        QCOMPARE(runs().size(), 1);
    }

    void processesWriteAtOnce_data() { seeds(qMax(6, qEnvironmentVariableIntValue("ORDA_STORM_SEEDS"))); }

    void processesWriteAtOnce() // and one is killed
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const QString damage = QStringList{"none", "", "devices"}.at(seed % 3);
        const bool isDamaged = damage != "none";
        if (isDamaged) {
            writeRuns(1);
            QVERIFY(overwritePageOf(damage));
        }
        constexpr int each = 3;
        Other killed(m_options.path, 1000000), other(m_options.path, each);
        Writing writing(m_options);
        QVERIFY(writing.onDisk(writing.wholeRun(startOf(devicesOfRun))));
        QVERIFY(killed.waitForReadyRead());
        QTest::qWait(random.bounded(200));
        killed.kill();
        QVERIFY(killed.waitForFinished());
        const int told = killed.readAllStandardOutput().trimmed().split('\n').last().toInt();
        for (int i = 1; i < each; ++i)
            QVERIFY(writing.onDisk(writing.wholeRun(startOf(devicesOfRun))));
        QVERIFY(other.state() == QProcess::NotRunning || other.waitForFinished());
        QCOMPARE(other.exitCode(), 0);
        QCOMPARE(filesLike("*damaged-*[0-9]").size(), isDamaged ? 1 : 0);
        QCOMPARE(filesLike("*.lock"), QStringList{"history.db.lock"});
        QCOMPARE(sql(m_options.path, "PRAGMA integrity_check").toString(), QString("ok"));
        const QVector<RunRow> found = runs();
        int steps = 0;
        for (const RunRow &row : found) {
            const RunDetails run = *HistoryReader(m_options).run(row.id);
            const int written = run.exchanges.size(), done = run.run.counts.value(Outcome::Done);
            Counts counts;
            for (int device = 0; device < devicesOfRun; ++device) {
                const Outcome expected = device < done    ? Outcome::Done
                                       : device < written ? Outcome::Unknown
                                                          : Outcome::Stopped;
                QCOMPARE(run.devices.at(device).outcome.value(), expected);
                ++counts[expected];
            }
            QCOMPARE(run.run.counts, counts);
            steps += 1 + written + done + (done == devicesOfRun ? 1 : 0);
        }
        QVERIFY2(steps >= told + 2 * each * stepsOfRun, qPrintable(QString("%1 steps, %2").arg(steps).arg(told)));
    }

    void oldRunsAreRemoved_data()
    {
        columns<int, int, int, int>({"aged", "keptRuns", "keptKiB", "left"}); // of ten and a new one, of 80 KiB each
        row("old ones go", 7, 1, 100000, 4);
        row("the latest stay however old", 10, 5, 100000, 5);
        row("the file is too large", 0, 1, 400, 4);
        row("too large with what must stay", 0, 8, 400, 8);
    }

    void oldRunsAreRemoved()
    {
        QFETCH(int, aged);
        QFETCH(int, keptRuns);
        QFETCH(int, keptKiB);
        QFETCH(int, left);
        const QString text(4000, 'b');
        Writing living(m_options); // its run is under way, and stays
        QVERIFY(living.onDisk(living.writer.beginRun(startOf(1))));
        writeRuns(10, text);
        sql(m_options.path, QString("UPDATE runs SET began = 1 WHERE number <= 1 + %1").arg(aged));
        const qint64 before = QFileInfo(m_options.path).size();
        m_options.keptRuns = keptRuns;
        m_options.keptBytes = qint64(keptKiB) * 1024;
        writeRuns(1, text);
        QCOMPARE(runs().size(), left + 1);
        QCOMPARE(runs().constLast().ended, 0);
        QCOMPARE(sql(m_options.path, "SELECT min(number) FROM runs WHERE number > 1").toInt(), 13 - left);
        QCOMPARE(sql(m_options.path, "SELECT count(*) FROM exchanges").toInt(), left * devicesOfRun);
        const qint64 size = QFileInfo(m_options.path).size();
        QVERIFY2(size < before / 10 * (left + 1), qPrintable(QString("%1 of %2").arg(size).arg(before)));
    }
};

#include "history_test.moc"

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (QCoreApplication::arguments().value(1) == "write")
        return writeAsOther(QCoreApplication::arguments());
    HistoryTest test;
    return QTest::qExec(&test, argc, argv);
}
