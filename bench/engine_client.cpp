#include "OsdExchange.h"
#include "ProcessMemory.h"

#include <engine/ApplyJob.h>
#include <engine/ReadJob.h>
#include <families/Families.h>
#include <journal/HistoryReader.h>
#include <journal/HistoryWriter.h>
#include <journal/JournalTransport.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <run/CfgRun.h>
#include <run/ParamsCfgTask.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/OpenFiles.h>
#include <vms_client_sdk/SiteTransport.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
#include <QTimer>
#include <QUuid>

#include <chrono>
#include <ctime>
#include <memory>

// The OSD of all devices of an inventory by the engine, without a form: prints what it took as JSON, and ends.
//   engine_client plan|apply|apply-unrecorded|tasks|connect INVENTORY [BITRATE]
// "apply" has the history (in XDG_STATE_HOME), "apply-unrecorded" the engine without it, "tasks" the tasks alone, as a
// page starts them, with nothing between SDK and network; "connect" only waits for all devices. With a bit rate, the
// first stream of the video gets that instead.
//   engine_client history RUNS DEVICES
// Writes so many runs over so many devices into the history and reads the list of them.

namespace {

using namespace std::chrono_literals;
using orda_batchCfg::CfgRun;
using orda_engine::ApplyJob;
using orda_engine::ReadJob;
using orda_engine::Selection;
using orda_journal::JournalTransport;

Selection osdOf(const QList<vms_sdk::DevInfo> &devices)
{
    Selection selection;
    selection.family = orda_batchCfg::Families::find(QStringLiteral("osd"));
    for (const vms_sdk::DevInfo &dev : devices)
        selection.devIds.append(dev.id);
    selection.values = {{QStringLiteral("bShowOSD"), false},
                        {QStringLiteral("timeFormat"), QStringLiteral("YYYY-MM-DD hh:mm:ss")},
                        {QStringLiteral("timePos"), QStringLiteral("left_top")},
                        {QStringLiteral("channelName"), QStringLiteral("HD IPC")},
                        {QStringLiteral("position"), QStringLiteral("left_top")},
                        {QStringLiteral("bLargeOSD"), false}};
    return selection;
}

Selection videoOf(const QList<vms_sdk::DevInfo> &devices, int bitRate)
{
    Selection selection = osdOf(devices);
    selection.family = orda_batchCfg::Families::find(QStringLiteral("video"));
    const QJsonObject stream{{QStringLiteral("streamid"), 0}, {QStringLiteral("bitRate"), bitRate}};
    selection.values = {{QStringLiteral("streams"), QJsonArray{stream}}};
    return selection;
}

int entriesOf(const char *directory)
{
    return QDir(QLatin1String(directory)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

class Measurement : public QObject
{
public:
    /// @param sinceStart begun with the program
    Measurement(const QString &mode, const QList<vms_sdk::DevInfo> &devices, const Selection &selection,
                const QElapsedTimer &sinceStart)
        : m_mode(mode)
        , m_selection(selection)
        , m_sinceStart(sinceStart)
    {
        auto network = std::make_unique<vms_sdk::SiteTransport>();
        vms_sdk::SiteTransport *connections = network.get();
        std::unique_ptr<vms_sdk::DeviceTransport> transport = std::move(network);
        if (mode != QLatin1String("tasks")) {
            auto history = mode == QLatin1String("apply") ? std::make_unique<orda_journal::HistoryWriter>() : nullptr;
            auto journal = std::make_unique<JournalTransport>(std::move(transport), std::move(history));
            m_journal = journal.get();
            transport = std::move(journal);
        }
        vms_sdk::ClientSdk::instance().setTransport(std::move(transport));
        connect(&orda_data::DataSignals::instance(), &orda_data::DataSignals::signalDevStatusChanged, this,
                [this](const QString &, vms_sdk::DevStatus status) {
                    if (vms_sdk::isOnlineStatus(status) && ++m_online == m_selection.devIds.size())
                        onConnected();
                });
        QTimer::singleShot(120s, this, [] { qFatal("not all devices are online, or not all have ended"); });
        orda_data::DevsMgrData::instance().updateDevs(devices);
        connections->setDevices(devices);
    }

private:
    void onConnected()
    {
        m_figures = {{QStringLiteral("connectMs"), double(m_sinceStart.nsecsElapsed()) / 1e6},
                     {QStringLiteral("connectedKiB"), processMemoryKiB("VmHWM")},
                     {QStringLiteral("memoryKiB"), processMemoryKiB("VmRSS")},
                     {QStringLiteral("threads"), entriesOf("/proc/self/task")},
                     {QStringLiteral("openFiles"), entriesOf("/proc/self/fd")}};
        if (m_mode == QLatin1String("connect"))
            printAndEnd();
        QTimer::singleShot(200ms, this, &Measurement::begin);
    }

    void begin()
    {
        m_cpu = std::clock();
        m_clock.start();
        if (m_mode == QLatin1String("plan"))
            plan();
        else if (m_mode == QLatin1String("tasks"))
            runTasks();
        else
            apply();
    }

    void plan()
    {
        auto *job = new ReadJob(m_journal, m_selection, this);
        connect(job, &ReadJob::signalRead, this, [this](const orda_engine::DeviceReading &reading) {
            const auto plan = m_selection.planOf(reading.devId, reading.held);
            m_good += reading.isRead() && plan.changes.size() + plan.alreadySo > 0 ? 1 : 0;
        });
        connect(job, &ReadJob::signalFinished, this, &Measurement::end);
        job->start();
    }

    void apply()
    {
        auto *job = new ApplyJob(m_journal, m_selection, {}, this);
        connect(job, &ApplyJob::signalOutcome, this,
                [this](const orda_journal::Settled &settled) { m_good += settled.row.code == 0 ? 1 : 0; });
        connect(job, &ApplyJob::signalFinished, this, &Measurement::end);
        job->start();
    }

    void runTasks()
    {
        m_run = std::make_unique<CfgRun>(m_selection.devIds.size());
        connect(m_run.get(), &CfgRun::signalResult, this, [this](const QString &, const QString &, int code) {
            m_good += code == 0 ? 1 : 0;
            if (m_run->isOver())
                end();
        });
        m_run->start(m_selection.devIds, [this](const QString &devId) {
            return m_selection.family->createTask(devId, m_selection.values, 0, this);
        });
    }

    void end()
    {
        const double runMs = double(m_clock.nsecsElapsed()) / 1e6;
        const double cpuMs = double(std::clock() - m_cpu) * 1e3 / CLOCKS_PER_SEC; // of all threads
        if (m_good != m_selection.devIds.size())
            qFatal("only %d of %d devices", m_good, m_selection.devIds.size());
        m_figures.insert(QStringLiteral("runMs"), runMs);
        m_figures.insert(QStringLiteral("cpuMs"), cpuMs);
        m_figures.insert(QStringLiteral("openFilesAfter"), entriesOf("/proc/self/fd"));
        m_figures.insert(QStringLiteral("peakKiB"), processMemoryKiB("VmHWM"));
        if (m_mode == QLatin1String("apply"))
            vms_sdk::ClientSdk::instance().setTransport(nullptr); // the history is whole
        printAndEnd();
    }

    [[noreturn]] void printAndEnd() const
    {
        QTextStream(stdout) << QJsonDocument(m_figures).toJson(QJsonDocument::Compact) << Qt::endl;
        std::_Exit(0); // closing thousands of sockets is not measured
    }

    QString m_mode;
    Selection m_selection;
    QElapsedTimer m_sinceStart;
    QJsonObject m_figures;
    JournalTransport *m_journal = nullptr;
    std::unique_ptr<CfgRun> m_run;
    QElapsedTimer m_clock;
    std::clock_t m_cpu = 0;
    int m_online = 0;
    int m_good = 0;
};

void listHistory(int runs, int devices)
{
    {
        orda_journal::HistoryWriter writer;
        for (int run = 0; run < runs; ++run) {
            orda_journal::RunStart start;
            start.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
            start.family = QStringLiteral("osd");
            start.kind = QStringLiteral("apply");
            for (int device = 0; device < devices; ++device)
                start.devIds.append(QStringLiteral("dev-%1").arg(device));
            writer.beginRun(start);
            for (const QString &devId : qAsConst(start.devIds)) {
                writer.putExchange(start.id, {devId, 0, osd_exchange::readAnswer(), osd_exchange::readAnswer(), {}});
                orda_journal::DeviceRow row;
                row.devId = devId;
                row.outcome = orda_journal::Outcome::Done;
                writer.putDevice(start.id, row);
            }
            writer.endRun(start.id);
        }
    }
    QElapsedTimer clock;
    clock.start();
    orda_journal::HistoryReader reader;
    const QVector<orda_journal::RunRow> rows = reader.runs();
    const double listMs = double(clock.nsecsElapsed()) / 1e6;
    if (rows.size() != runs || rows.constFirst().counts.value(orda_journal::Outcome::Done) != devices)
        qFatal("the history has %d runs: %s", rows.size(), qPrintable(reader.error()));
    QTextStream(stdout) << QJsonDocument(QJsonObject{{QStringLiteral("listMs"), listMs}}).toJson(QJsonDocument::Compact)
                        << Qt::endl;
}

} // namespace

int main(int argc, char *argv[])
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    qputenv("QT_NO_GLIB", "1"); // as the programs do
    const QCoreApplication app(argc, argv);
    vms_sdk::raiseOpenFileLimit();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("history")) {
        listHistory(arguments.value(2).toInt(), arguments.value(3).toInt());
        return 0;
    }
    const vms_sdk::Inventory inventory = vms_sdk::readInventory(arguments.value(2));
    if (!inventory.error.isEmpty() || inventory.devices.isEmpty())
        qFatal("engine_client MODE INVENTORY [BITRATE]: %s", qPrintable(inventory.error));
    const int bitRate = arguments.value(3).toInt();
    const Selection selection = bitRate > 0 ? videoOf(inventory.devices, bitRate) : osdOf(inventory.devices);
    const Measurement measurement(arguments.value(1), inventory.devices, selection, sinceStart);
    return QCoreApplication::exec();
}
