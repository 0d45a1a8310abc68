#include "support/OrdaTest.h"
#include "support/Store.h"

#include "journal/HistoryReader.h"
#include "journal/HistoryWriter.h"

#include <QtSql>

#include <csignal>
#include <iostream>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

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
        tickets.append(writer.beginRun(start));
        for (const QString &devId : start.devIds)
            tickets.append(slowly(writer.putExchange(start.id, {devId, 0, text, "sent", {}})));
        for (const QString &devId : start.devIds)
            tickets.append(slowly(writer.putDevice(start.id, {devId, Outcome::Done, 0, "success", {}})));
        tickets.append(writer.endRun(start.id));
        return tickets.constLast();
    }

    quint64 slowly(quint64 ticket) const
    {
        if (isSlow)
            QTest::qWait(1); // so that a run is in several transactions
        return ticket;
    }

    bool isSlow = false;
    quint64 committed = 0;
    QStringList failures, aside;
    QVector<quint64> tickets;
    HistoryWriter writer; // the last: its thread ends before the rest
};

/// The program as another process: "write PATH RUNS" says how many steps are on the disk; "lock PATH MS".
int other(const QStringList &arguments)
{
    HistoryOptions options;
    options.path = arguments.at(2);
    if (arguments.at(1) == "lock") {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
        database.setDatabaseName(options.path);
        if (!database.open() || database.exec("BEGIN EXCLUSIVE").lastError().isValid())
            return 1;
        std::cout << "locked" << std::endl;
        QThread::msleep(arguments.at(3).toULong());
        return 0;
    }
    Writing writing(options);
    QObject::connect(&writing.writer, &HistoryWriter::signalCommitted, &writing.writer, [&writing](quint64 ticket) {
        std::cout << std::upper_bound(writing.tickets.cbegin(), writing.tickets.cend(), ticket)
                         - writing.tickets.cbegin()
                  << std::endl;
    });
    writing.isSlow = true;
    for (int run = 0; run < arguments.at(3).toInt(); ++run)
        if (!writing.onDisk(writing.wholeRun(startOf(devicesOfRun))))
            return 1;
    return 0;
}

struct Other : QProcess
{
    explicit Other(const QStringList &arguments)
    {
        setProcessChannelMode(ForwardedErrorChannel);
        start(QCoreApplication::applicationFilePath(), arguments);
    }
    ~Other() override { kill(), waitForFinished(); }
};

void overwrite(const QString &path, qint64 from)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(from) && file.write(QByteArray(4096, 'x')) == 4096);
}

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

} // namespace

/// The history of runs: a file that other processes, the disk and a sudden end have their part in.
class HistoryTest : public OrdaTest
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_place;
    HistoryOptions m_options;

    QString directory() const { return QFileInfo(m_options.path).path(); }
    QStringList filesLike(const QString &pattern) const { return QDir(directory()).entryList({pattern}, QDir::Files); }
    /// By path, what is in it. Locks come and go.
    QMap<QString, QByteArray> everyFile() const
    {
        QMap<QString, QByteArray> files;
        QDirIterator found(m_place->path(), QDir::Files, QDirIterator::Subdirectories);
        while (found.hasNext()) {
            QFile file(found.next());
            if (!file.fileName().endsWith("lock") && file.open(QIODevice::ReadOnly))
                files.insert(file.fileName(), file.readAll());
        }
        return files;
    }
    QVector<RunRow> runs(QString *error = nullptr) const
    {
        HistoryReader reader(m_options);
        const QVector<RunRow> found = reader.runs();
        if (error)
            *error = reader.error();
        return found;
    }
    void overwritePageOf(const QString &table)
    {
        const QString page = QString("SELECT rootpage FROM sqlite_master WHERE name = '%1'").arg(table);
        overwrite(m_options.path, table.isEmpty() ? 0 : (sql(m_options.path, page).toInt() - 1) * 4096);
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
        start.kind = "undo", start.undoes = "earlier", start.ownValues = {{"dev-2", {{"speed", 3}}}};
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
        QCOMPARE(reader.run(start.id)->run.ended, 0);
        QVERIFY(!reader.run(start.id)->devices.at(1).outcome);
        writer.putDevice(start.id, {"dev-1", Outcome::PartlyWritten, -12, "no", {}});
        writer.putDevice(start.id, {"dev-2", Outcome::NotReached, -3, "off line", {}});
        writer.endRun(start.id);
        const quint64 late = writer.putDevice(start.id, {"dev-1", Outcome::Done, 0, {}, "late answer"});
        QVERIFY(writing.onDisk(late));

        const RunDetails details = *reader.run(start.id);
        QCOMPARE(details.run.values, start.values);
        QCOMPARE((QStringList{details.run.family, details.run.kind, details.run.undoes}),
                 (QStringList{"osd", "undo", "earlier"}));
        QVERIFY(details.run.program.startsWith("history_test"));
        QVERIFY(details.run.began > 0 && details.run.ended >= details.run.began);
        QCOMPARE(details.run.counts,
                 (Counts{{Outcome::Unknown, 1}, {Outcome::PartlyWritten, 1}, {Outcome::NotReached, 1}}));
        QStringList devices, exchanges;
        for (const DeviceRow &row : details.devices)
            devices.append(QStringList{row.devId, outcomeName(*row.outcome), QString::number(row.code), row.message,
                                       row.late, row.name, row.serialNumber, row.ip}
                               .join('|'));
        for (const ExchangeRow &row : details.exchanges)
            exchanges.append(
                QStringList{row.devId, QString::number(row.exchange), row.before, row.sent, row.after}.join('|'));
        QCOMPARE(devices, (QStringList{"dev-0|unknown|-61004|time out|while others go on|||",
                                       QString::fromUtf8("dev-1|partly-written|-12|no|late answer|Tür 1|SN1|10.0.0.1"),
                                       "dev-2|not-reached|-3|off line||||"}));
        QCOMPARE(details.devices.at(2).ownValues, (QJsonObject{{"speed", 3}}));
        QCOMPARE(exchanges, (QStringList{"dev-1|0|first||", "dev-1|1|" + odd + "|sent again|after"}));

        const QString second = "aaaa1111-0000-4000-8000-000000000001";
        QVERIFY(writing.onDisk(writing.wholeRun(startOf(1, second))));
        QCOMPARE(reader.findRuns("last"), QStringList{second});
        QCOMPARE(reader.findRuns("aaaa0"), QStringList{start.id});
        QCOMPARE(reader.findRuns("aaaa"), (QStringList{second, start.id}));
        QVERIFY(reader.findRuns("a%").isEmpty() && reader.findRuns({}).isEmpty() && !reader.run("aaaa"));
        QCOMPARE(reader.runs(1).size(), 1);
    }

    void nobodyElseReadsIt()
    {
        const mode_t before = ::umask(0);
        const auto restore = qScopeGuard([before] { ::umask(before); });
        writeRuns(1);
        QFile::setPermissions(m_options.path, QFile::Permissions(0x6666)); // as after copying it back
        Writing writing(m_options);
        QVERIFY(writing.onDisk(writing.writer.beginRun(startOf(1))));
        QCOMPARE(QFileInfo(directory()).permissions() & 0x777, QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
        const QFileInfoList files = QDir(directory()).entryInfoList(QDir::Files);
        QVERIFY(files.size() >= 4); // the file, what SQLite has beside it, locks
        for (const QFileInfo &file : files)
            QVERIFY2((file.permissions() & 0x777) == (QFile::ReadUser | QFile::WriteUser), qPrintable(file.fileName()));
    }

    void whatIsNotTheUsersOwnIsRefused_data()
    {
        columns<QString, QString>({"spoil", "why"}); // by the shell, in the directory
        row("link", "mv history.db ../target; ln -s ../target history.db", "history.db: it is a symbolic link");
        row("link to the latest changes", "ln -s ../target history.db-wal", "history.db-wal: it is a symbolic link");
        row("link in place of the lock", "rm *.lock; ln -s ../t history.db.lock", "lock: it is a symbolic link");
        row("linked directory", "mv ../orda ../target; ln -s target ../orda", "orda: it is a symbolic link");
        row("two names", "ln history.db ../target", "history.db: it has more than one name");
        row("directory as the file", "rm history.db; mkdir history.db", "history.db: it is not a regular file");
        row("file as the directory", "rm -r ../orda; touch ../orda", "orda: it is not a directory");
        row("file above the directory", "rm -r ../../state; touch ../../state", "Not a directory");
        row("open to others", "chmod 0777 .", "orda: other users may write to it");
        row("of another user", "chown 1 history.db", "history.db: it belongs to another user");
        row("of a newer version", "printf '\\143' | dd of=history.db bs=1 seek=63 conv=notrunc status=none",
            "history.db: it was written by a newer version");
    }

    void whatIsNotTheUsersOwnIsRefused()
    {
        QFETCH(QString, spoil);
        QFETCH(QString, why);
        if (spoil.startsWith("chown") && ::geteuid() != 0)
            QSKIP("files are given away by root only");
        writeRuns(1);
        QCOMPARE(QProcess::execute("/bin/sh", {"-c", QString("cd '%1' && %2").arg(directory(), spoil)}), 0);
        const auto before = everyFile();
        Writing writing(m_options);
        const RunStart start = startOf(1);
        QVERIFY(!writing.onDisk(writing.wholeRun(start)));
        QVERIFY2(writing.failures.join('|').contains(why), qPrintable(writing.failures.join('|')));
        writing.writer.putDevice(start.id, {"dev-0", Outcome::Done, 0, {}, {}}); // nobody needs to hear of it twice
        QVERIFY(!QTest::qWaitFor([&] { return writing.committed > 0 || writing.failures.size() > 1; }, 50));
        QCOMPARE(everyFile(), before);
        QString error;
        const bool isMissing = !QFileInfo(m_options.path).isFile() || spoil.contains("lock");
        QVERIFY(isMissing || (runs(&error).isEmpty() && !error.isEmpty()));
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
        QString error;
        QVERIFY(runs(&error).size() == 3 && error.isEmpty());
        if (page == "end")
            QVERIFY(QFile::resize(m_options.path, 4096 + 100));
        else
            overwritePageOf(page);
        overwrite(m_options.path + "-wal", 0); // nothing that SQLite takes for its own, and kept all the same
        QVERIFY(runs(&error).size() == 3 || isSeenInList);
        QCOMPARE(error.contains("history.db: it is damaged"), isSeenInList);
        const QMap<QString, QByteArray> before = everyFile();
        Writing writing(m_options);
        QVERIFY2(writing.onDisk(writing.wholeRun(startOf(2))), qPrintable(writing.failures.join('|')));
        const QStringList aside = filesLike("history.db.damaged-*[0-9]");
        QCOMPARE(aside.size(), 1);
        const QString asidePath = directory() + '/' + aside.first();
        QCOMPARE(everyFile().value(asidePath), before.value(m_options.path));
        QCOMPARE(everyFile().value(asidePath + "-wal"), before.value(m_options.path + "-wal"));
        QCOMPARE(writing.aside.size(), 1);
        QVERIFY(writing.aside.first().contains(m_options.path + ' ') && writing.aside.first().contains(aside.first()));
        QCOMPARE(runs().size(), 1);
        QCOMPARE(runs().first().counts, (Counts{{Outcome::Done, 2}}));
    }

    void fileThatGoesAwayEndsTheRun()
    {
        Writing writing(m_options);
        const RunStart start = startOf(2);
        QVERIFY(writing.onDisk(writing.writer.beginRun(start)));
        QVERIFY(QFile::rename(m_options.path, m_options.path + "-moved"));
        QVERIFY(!writing.onDisk(writing.writer.putExchange(start.id, {"dev-0", 0, "before", "sent", {}})));
        QVERIFY2(writing.failures.first().contains("renamed or removed"), qPrintable(writing.failures.first()));
        for (int i = 1; i < 3; ++i) { // between two runs it costs nothing
            QVERIFY(writing.onDisk(writing.wholeRun(startOf(1)), 1));
            QCOMPARE(runs().size(), 1);
            QVERIFY(QFile::rename(m_options.path, m_options.path + QString::number(i)));
        }
    }

    void fullOrReadOnlyDiskEndsTheRun()
    {
        QVERIFY(QDir().mkpath(directory()));
        const QByteArray place = QFile::encodeName(directory());
        if (::mount("tmpfs", place, "tmpfs", 0, "size=2m,mode=0700") != 0)
            QSKIP("a disk of its own is mounted by root only");
        {
            Writing writing(m_options);
            const RunStart start = startOf(200);
            quint64 onDisk = 0;
            writing.writer.beginRun(start);
            for (int i = 0; i < 200 && writing.failures.isEmpty(); ++i)
                if (writing.onDisk(
                        writing.writer.putExchange(start.id, {start.devIds.at(i), 0, QString(30000, 'b'), "sent", {}})))
                    ++onDisk;
            QCOMPARE(writing.failures.size(), 1);
            QVERIFY2(writing.failures.first().contains("history.db: the disk is full"),
                     qPrintable(writing.failures.first()));
            QVERIFY(onDisk > 10);
            QCOMPARE(quint64(HistoryReader(m_options).run(start.id)->exchanges.size()), onDisk);
            QCOMPARE(::mount("tmpfs", place, "tmpfs", MS_REMOUNT, "size=20m"), 0);
            QVERIFY(writing.onDisk(writing.wholeRun(startOf(1)), 1));
            QCOMPARE(runs().last().counts,
                     (Counts{{Outcome::Unknown, int(onDisk)}, {Outcome::Stopped, 200 - int(onDisk)}}));
        }
        QCOMPARE(::mount("tmpfs", place, "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr), 0);
        Writing writing(m_options);
        QVERIFY(!writing.onDisk(writing.writer.beginRun(startOf(1))));
        QVERIFY2(writing.failures.first().contains("Read-only"), qPrintable(writing.failures.first()));
    }

    void lockOfAnotherProcess_data()
    {
        columns<int, bool>({"held", "isWaitedFor"});
        row("short", 200, true);
        row("long", 60000, false);
    }

    void lockOfAnotherProcess()
    {
        QFETCH(int, held);
        QFETCH(bool, isWaitedFor);
        writeRuns(1);
        m_options.lockTimeout = isWaitedFor ? 10s : 300ms;
        Writing writing(m_options);
        {
            Other process({"lock", m_options.path, QString::number(held)});
            QVERIFY(process.waitForReadyRead());
            QCOMPARE(process.readAllStandardOutput(), QByteArray("locked\n"));
            QCOMPARE(writing.onDisk(writing.wholeRun(startOf(1))), isWaitedFor);
        }
        QCOMPARE(writing.failures.join('|').contains("history.db: another process has it locked"), !isWaitedFor);
        QVERIFY(writing.onDisk(writing.wholeRun(startOf(1)), 1));
        QCOMPARE(runs().size(), isWaitedFor ? 3 : 2);
    }

    void processesWriteAtOnce_data()
    {
        columns<QString>({"damage"});
        row("new file", "none");
        row("damaged file", "");
        row("damaged page", "devices");
    }

    void processesWriteAtOnce()
    {
        QFETCH(QString, damage);
        const bool isDamaged = damage != "none";
        if (isDamaged) {
            writeRuns(1);
            overwritePageOf(damage);
        }
        constexpr int each = 15;
        Other first({"write", m_options.path, QString::number(each)}),
            second({"write", m_options.path, QString::number(each)});
        writeRuns(each);
        for (Other *process : {&first, &second}) {
            QVERIFY(process->state() == QProcess::NotRunning || process->waitForFinished());
            QCOMPARE(process->exitCode(), 0);
        }
        QCOMPARE(filesLike("*damaged-*[0-9]").size(), isDamaged ? 1 : 0);
        QCOMPARE(filesLike("*.lock"), QStringList{"history.db.lock"});
        QString error;
        const QVector<RunRow> found = runs(&error);
        QCOMPARE(found.size(), 3 * each);
        for (const RunRow &run : found)
            QCOMPARE(run.counts, (Counts{{Outcome::Done, devicesOfRun}}));
    }

    void runOfALivingProgramIsLeftAlone()
    {
        auto first = std::make_unique<Writing>(m_options);
        const RunStart start = startOf(1);
        QVERIFY(first->onDisk(first->writer.beginRun(start)));
        m_options.keptDays = m_options.keptRuns = 0; // "old" from now on
        writeRuns(1);
        QCOMPARE(runs().last().ended, 0);
        first.reset();
        m_options.keptRuns = 20;
        writeRuns(1);
        QCOMPARE(runs().last().counts, (Counts{{Outcome::Stopped, 1}}));
    }

    void killedProcess_data() { seeds(20); }

    void killedProcess()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        int steps = 0;
        {
            Other process({"write", m_options.path, "1000000"});
            QVERIFY(process.waitForReadyRead());
            QTest::qWait(random.bounded(200));
            ::kill(pid_t(process.processId()), SIGKILL);
            QVERIFY(process.waitForFinished());
            steps = process.readAllStandardOutput().trimmed().split('\n').last().toInt();
        }
        QVERIFY(steps > 0);
        writeRuns(1);
        QCOMPARE(filesLike("*.lock"), QStringList{"history.db.lock"});
        QCOMPARE(sql(m_options.path, "PRAGMA integrity_check").toString(), QString("ok"));
        QVector<RunRow> found = runs();
        std::reverse(found.begin(), found.end());
        QVERIFY(found.size() > (steps - 1) / stepsOfRun + 1);
        for (int i = 0; i < found.size() - 1; ++i) {
            const RunDetails run = *HistoryReader(m_options).run(found.at(i).id);
            const int committed = std::min(steps - i * stepsOfRun, stepsOfRun);
            QVERIFY(run.exchanges.size() >= std::min(committed - 1, devicesOfRun));
            QVERIFY(run.run.counts.value(Outcome::Done) >= std::min(committed - 1 - devicesOfRun, devicesOfRun));
            QVERIFY(run.run.ended > 0);
            Counts counts;
            for (int device = 0; device < run.devices.size(); ++device) {
                const Outcome outcome = run.devices.at(device).outcome.value();
                QCOMPARE(outcome == Outcome::Stopped, device >= run.exchanges.size());
                ++counts[outcome];
            }
            QCOMPARE(run.run.counts, counts);
            QCOMPARE(run.devices.size(), devicesOfRun);
        }
    }

    void oldRunsAreRemoved_data()
    {
        columns<int, int, int, int>({"aged", "keptRuns", "keptKiB", "left"}); // of ten and a new one, of 80 KiB each
        row("young ones stay", 0, 1, 100000, 11);
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
        writeRuns(10, text);
        sql(m_options.path, QString("UPDATE runs SET began = 1 WHERE number <= %1").arg(aged));
        const qint64 before = QFileInfo(m_options.path).size();
        m_options.keptRuns = keptRuns;
        m_options.keptBytes = qint64(keptKiB) * 1024;
        writeRuns(1, text);
        const QVector<RunRow> found = runs();
        QCOMPARE(found.size(), left);
        QCOMPARE(sql(m_options.path, "SELECT min(number) FROM runs").toInt(), 12 - left); // the oldest went
        QCOMPARE(sql(m_options.path, "SELECT count(*) FROM exchanges").toInt(), left * devicesOfRun);
        const qint64 size = QFileInfo(m_options.path).size();
        QVERIFY2(size < before / 10 * (left + 1), qPrintable(QString("%1 of %2").arg(size).arg(before)));
    }

    void manyRunsAreListedAtOnce()
    {
        {
            Writing writing(m_options);
            for (int i = 0; i < 100; ++i)
                QVERIFY(writing.onDisk(writing.wholeRun(startOf(1000))));
        }
        QElapsedTimer timer;
        timer.start();
        const QVector<RunRow> found = runs();
        const qint64 took = timer.elapsed();
        qInfo("100 runs of 1,000 devices listed in %lld ms", took);
        QCOMPARE(found.size(), 100);
        QCOMPARE(found.first().counts, (Counts{{Outcome::Done, 1000}}));
        QVERIFY(took < 400);
    }
};

#include "history_test.moc"

int main(int argc, char *argv[])
{
    if (argc > 3) {
        QCoreApplication app(argc, argv);
        return other(QCoreApplication::arguments());
    }
    QCoreApplication app(argc, argv);
    HistoryTest test;
    return QTest::qExec(&test, argc, argv);
}
