#include "fleet/EmbeddedFleet.h"
#include "fleet/Site.h"
#include "journal/HistoryFile.h"
#include "support/Accounts.h"
#include "support/FleetOf.h"
#include "support/OrdaTest.h"

#include <csignal>

#include <vms_client_sdk/Inventory.h>

using namespace device_fleet;
using namespace orda_journal;
using namespace std::chrono_literals;

namespace {

constexpr int devices = 60;
constexpr int writable = 55; // of them, with the first seed

/// A fleet, and orda_batch in a directory of its own that has the inventory of it.
struct Site
{
    explicit Site(int seed = 1)
        : fleet(fleetOf(devices, quint32(seed)))
    {
        const QString error = fleet.start();
        if (!error.isEmpty())
            qFatal("%s", qPrintable(error));
        if (!vms_sdk::writeInventory(place.filePath("site.json"), fleet.inventory()).isEmpty())
            qFatal("no inventory");
        const QList<vms_sdk::DevInfo> all = fleet.inventory();
        for (const vms_sdk::DevInfo &device : all)
            (device.accessCode == 1 && QList{1, 6}.contains(device.kindCode) ? meant : others).append(device.id);
    }

    void start(const QString &command)
    {
        process = std::make_unique<QProcess>();
        process->setWorkingDirectory(place.path());
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_STATE_HOME", stateHome.isEmpty() ? place.path() : stateHome);
        environment.insert("PATH", QCoreApplication::applicationDirPath() + ":/usr/bin:/bin");
        process->setProcessEnvironment(environment);
        process->start("/bin/sh", {"-c", "exec " + QString(command).replace("SITE", "--inventory site.json")});
    }
    /// Waits for the end. @return the exit code
    int end()
    {
        if (!process->waitForFinished(60'000) || process->exitStatus() != QProcess::NormalExit)
            return -1;
        output = process->readAllStandardOutput();
        errors = process->readAllStandardError();
        return process->exitCode();
    }
    int run(const QString &command)
    {
        start(command);
        return end();
    }
    /// The lines of JSON output but the last, which is the summary.
    QVector<QJsonObject> lines()
    {
        QVector<QJsonObject> objects;
        const QList<QByteArray> texts = output.trimmed().split('\n');
        for (const QByteArray &text : texts)
            objects.append(QJsonDocument::fromJson(text).object());
        summary = objects.takeLast()["summary"].toObject();
        return objects;
    }
    QJsonObject dump() const { return fleet.dump()["devices"].toObject(); }
    QString nameOf(const QString &devId) const
    {
        return dump().value(devId).toObject()["osd"].toObject()["channelName"].toString();
    }
    int named(const QString &name) const
    {
        return int(std::count_if(meant.begin(), meant.end(),
                                 [&](auto &devId) { return nameOf(devId) == QString(name).replace("ID", devId); }));
    }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(place.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
    }
    HistoryOptions history() const
    {
        HistoryOptions options;
        options.path = place.filePath("orda/history.db");
        return options;
    }

    EmbeddedFleet fleet;
    QTemporaryDir place;
    QString stateHome; // of the program; empty: the directory
    QStringList meant, others; // device ids: those that "all" selects
    std::unique_ptr<QProcess> process;
    QByteArray output, errors;
    QJsonObject summary;
};

} // namespace

class BatchTest : public OrdaTest
{
    Q_OBJECT

    std::unique_ptr<Site> m_site; // of exitCodes(): a row may follow from those above it

private slots:
    void cleanupTestCase() { m_site.reset(); }

    void exitCodes_data()
    {
        columns<QString, QString>({"exitCode", "said"});
        rowsFrom("batch_exit_codes.txt");
    }

    void exitCodes()
    {
        if (!m_site)
            m_site = std::make_unique<Site>();
        Site &site = *m_site;
        QFETCH(QString, said);
        site.write("names.csv", "device,channelName\ndev-0001,One\nnobody,Two\n");
        const auto fails = [&site](const QString &devId, const QString &method) {
            site.fleet.setFault(devId, method, {Fault::ErrorCode, -5, 0ms});
        };
        fails("dev-0003", "chnosd_set_param");
        fails("dev-0004", "chnosd_get_param");
        QFETCH(QString, exitCode);
        const int code = site.run(QString("orda_batch ") + QTest::currentDataTag());
        QVERIFY2(QString::number(code) == exitCode, QByteArray::number(code) + site.output + site.errors);
        QVERIFY2((site.output + site.errors).contains(said.toUtf8()), site.output + site.errors);
    }

    void everyDeviceOnce_data() { seeds(8); }

    // Whatever goes wrong, and whenever it is stopped.
    void everyDeviceOnce()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        Site site(seed);
        const auto oneOf = [&random](const QStringList &list) { return list.at(random.bounded(list.size())); };
        for (const QString &devId : qAsConst(site.meant))
            if (random.bounded(4) == 0)
                site.fleet.setFault(devId, oneOf({"chnosd_get_param", "chnosd_set_param"}),
                                    {Fault(random.bounded(int(Fault::DropAndReturn) + 1)), -5, 20ms});
        const QJsonObject before = site.dump();
        site.start("orda_batch apply osd SITE --set channelName=Gate --yes --format json --timeout 1 "
                   + oneOf({"", "--serial 7,50%", "--serial 20 --retries 1", "--verify", "--no-journal",
                            "--max-fail-percentage 10 --serial 20"}));
        if (random.bounded(2) == 0) {
            QThread::usleep(50'000 + random.bounded(400'000U)); // by then it heeds signals
            ::kill(pid_t(site.process->processId()), random.bounded(2) == 0 ? SIGINT : SIGTERM);
        }
        const int exitCode = site.end();
        QStringList reported;
        QMap<QString, int> outcomes;
        const QJsonObject after = site.dump();
        const QVector<QJsonObject> lines = site.lines();
        for (const QJsonObject &line : lines) {
            const QString devId = line["device"].toString(), outcome = line["outcome"].toString();
            reported.append(devId);
            ++outcomes[outcome];
            const bool mayDiffer = QStringList{"done", "unknown", "differs", "partly-written"}.contains(outcome);
            QVERIFY2(mayDiffer || after[devId] == before[devId], qPrintable(devId + outcome));
            QVERIFY2(outcome != "done" || site.nameOf(devId) == "Gate" || !line["changes"].toArray().isEmpty(),
                     qPrintable(devId));
        }
        reported.sort();
        if (!reported.isEmpty() || site.summary["devices"].toInt() > 0) // else stopped before it knew them
            QCOMPARE(reported, site.meant);
        for (auto outcome = outcomes.begin(); outcome != outcomes.end(); ++outcome)
            QCOMPARE(site.summary["outcomes"].toObject()[outcome.key()].toInt(), *outcome);
        QVERIFY2(exitCode == site.summary["exitCode"].toInt(), site.errors);
        QCOMPARE(exitCode, outcomes["stopped"] > 0 || site.summary.contains("stopped")                 ? 6
                           : outcomes["differs"] > 0                                                   ? 7
                           : outcomes["failed"] + outcomes["unknown"] + outcomes["partly-written"] > 0 ? 1
                           : outcomes["not-reached"] > 0                                               ? 5
                                                                                                       : 0);
    }

    void ownValuesAndBack()
    {
        Site site;
        const QJsonObject before = site.dump();
        QFile names(site.place.filePath("names.csv"));
        names.open(QIODevice::WriteOnly);
        names.write("\xEF\xBB\xBF"
                    "device;name;channelName;bShowOSD\r\n");
        const QList<vms_sdk::DevInfo> all = site.fleet.inventory();
        for (const vms_sdk::DevInfo &device : all)
            if (site.meant.contains(device.id))
                names.write(QString("%1;x;\"Tür; %2\";\r\n").arg(device.serialNumber, device.id).toUtf8());
        names.close();
        QCOMPARE(site.run("orda_batch apply osd SITE --values names.csv --yes --verify --shard 1/2") % 5, 0);
        QCOMPARE(site.run("orda_batch apply osd SITE --values names.csv --yes --verify --shard 2/2") % 5, 0);
        QCOMPARE(site.named("Tür; ID"), writable);
        QCOMPARE(site.run("orda_batch undo last SITE --yes"), 0);
        QCOMPARE(site.run("orda_batch history --format csv"), 0);
        const QString other = QString::fromUtf8(site.output).split('\n').at(3).section(',', 0, 0);
        QCOMPARE(site.run("orda_batch undo SITE --yes " + other), 0);
        QCOMPARE(site.dump(), before);
    }

    /// Of the simulated ONVIF cameras two have none in the inventory.
    void serialNumbersAreWhatDevicesTell()
    {
        Site site;
        QCOMPARE(site.run("orda_batch read onvif --demo 1 --onvif 24 --format json") % 5, 0);
        const QVector<QJsonObject> results = site.lines();
        QCOMPARE(results.size(), 25);
        for (const QJsonObject &result : results)
            QVERIFY2(!result["serialNumber"].toString().isEmpty(), qPrintable(result["device"].toString()));
    }

    void whateverBecomesOfTheOutput_data()
    {
        columns<QString, int>({"rest", "exitCode"});
        row("a reader that goes", "| head -1", 0);
        row("a reader that waits", "| (sleep 2; cat)", 0);
        row("a full disk", "> /dev/full", 5);
        row("nobody", ">&-", 5);
    }

    void whateverBecomesOfTheOutput()
    {
        QFETCH(QString, rest);
        Site site;
        site.fleet.setFault("dev-0001", FaultPlan::any(), {Fault::LateAnswer, 0, 300ms}); // after the reader has gone
        const QString command = "sh -c 'orda_batch apply osd SITE --set channelName=Gate --yes --format json' ";
        QTEST(site.run(QString(command).replace("SITE", "--inventory site.json") + rest), "exitCode");
        QCOMPARE(site.named("Gate"), writable);
    }

    void endsAtOnceTheSecondTime()
    {
        Site site;
        site.fleet.setFault("dev-0001", FaultPlan::any(), {Fault::NoAnswer, 0, 0ms});
        site.start("orda_batch apply osd SITE --set channelName=Gate --yes");
        QVERIFY(isReached([&] { return site.named("Gate") == writable - 1; }));
        const auto interrupt = [&site] { return ::kill(pid_t(site.process->processId()), SIGINT); };
        interrupt();
        QVERIFY(!site.process->waitForFinished(300)); // what has left is awaited
        interrupt();
        QCOMPARE(site.end(), 6);
    }

    void reportsOnceWhenStoppedBehindTheHistory()
    {
        Site site;
        site.fleet.setFault("dev-0001", "chnosd_set_param", {Fault::LateAnswer, 0, 1000ms});
        site.start("orda_batch apply osd SITE --set channelName=Gate --devices dev-0001,dev-0002 --yes --format json");
        QVERIFY(isReached([&] { return site.process->peek(9999).contains('\n'); }));
        HistoryFile locked(site.history());
        QVERIFY(locked.openToWrite(nullptr) && locked.begin());
        QVERIFY(isReached([&] { return site.process->peek(9999).count('\n') == 2; }));
        ::kill(pid_t(site.process->processId()), SIGINT);
        QThread::msleep(200);
        locked.rollBack();
        QCOMPARE(site.end(), 6);
        QCOMPARE(site.lines().size(), 2);
    }

    void takesNothingBackFromAnotherDevice()
    {
        Site site;
        QCOMPARE(site.run("orda_batch apply osd SITE --set channelName=Gate --devices dev-0001 --yes"), 0);
        auto inventory = site.fleet.inventory();
        for (vms_sdk::DevInfo &device : inventory)
            device.serialNumber += "x";
        vms_sdk::writeInventory(site.place.filePath("other.json"), inventory);
        QCOMPARE(site.run("orda_batch verify last --inventory other.json"), 3);
        QCOMPARE(site.run("orda_batch undo last --inventory other.json --yes"), 3);
        QVERIFY(site.errors.contains("it is another device"));
    }

    void writesNothingWithoutHistory()
    {
        Site site;
        site.stateHome = "/dev/null";
        QCOMPARE(site.run("orda_batch apply osd SITE --set channelName=Gate --yes --format json"), 8);
        QCOMPARE(site.named("Gate"), 0);
        QCOMPARE(site.run("orda_batch apply osd SITE --set channelName=Gate --yes --no-journal"), 5);
        QCOMPARE(site.named("Gate"), writable);
    }

    void speaksLanguagesToPeopleOnly()
    {
        Site site;
        const auto said = [&site](const char *options) {
            site.run(QString("env LANG=de_DE.UTF-8 LC_ALL= LANGUAGE= orda_batch read osd SITE --devices dev-0029 ")
                     + options);
            return site.output;
        };
        QVERIFY(said("--language de").contains("nicht erreicht"));
        QVERIFY(said("--language zh_CN").contains("未"));
        QVERIFY(said("--language de --format json").contains("\"message\":\"off line"));
    }

    void asksOnTheTerminal_data()
    {
        columns<QByteArray, QByteArray, int, int>({"before", "answer", "exitCode", "named"});
        row("yes", QByteArray(), QByteArray("y\n"), 5, writable);
        row("no", QByteArray(), QByteArray("n\n"), 6, 0);
        row("yes before the question", QByteArray("y\n"), QByteArray(), 6, 0);
    }

    void asksOnTheTerminal()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, answer);
        Site site;
        site.start("script -qec 'orda_batch apply osd SITE --set channelName=Gate' /dev/null");
        site.process->write(before);
        QVERIFY(isReached([&] { return site.process->peek(9999).contains("Configure? [y/N]"); }));
        site.process->write(answer);
        site.process->closeWriteChannel();
        QTEST(site.end(), "exitCode");
        QTEST(site.named("Gate"), "named");
    }
};

int main(int argc, char *argv[])
{
    qputenv("QT_NO_GLIB", "1");
    const QCoreApplication app(argc, argv);
    BatchTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "batch_test.moc"
