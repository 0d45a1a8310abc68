#include "batch/DeviceCommand.h"

#include "batch/BatchExit.h"
#include "batch/DeviceResults.h"
#include "batch/OutputThread.h"
#include "engine/Connecting.h"
#include "engine/DeviceSession.h"
#include "journal/HistoryWriter.h"
#include "journal/JournalTransport.h"

#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ForeignText.h>

#include <unistd.h>

#include <algorithm>
#include <utility>

namespace orda_batch {

using orda_journal::Outcome;

namespace {

bool showsColors()
{
    return ::isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

QString nameOf(Command command)
{
    switch (command) {
    case Command::Read:
        return QStringLiteral("read");
    case Command::Plan:
        return QStringLiteral("plan");
    case Command::Apply:
        return QStringLiteral("apply");
    case Command::Verify:
        return QStringLiteral("verify");
    case Command::Undo:
        return QStringLiteral("undo");
    default:
        return {}; // of the others none works on devices
    }
}

} // namespace

DeviceCommand::DeviceCommand(const BatchOptions &options, const orda_journal::HistoryOptions &history,
                             OutputThread *output)
    : m_options(options)
    , m_output(output)
    , m_input(options, history)
    , m_history(history)
    , m_writer(output, options.format, showsColors())
    , m_progress(output)
{
    m_summary.command = nameOf(options.command);
}

DeviceCommand::~DeviceCommand() = default;

void DeviceCommand::start()
{
    QMetaObject::invokeMethod(this, &DeviceCommand::begin, Qt::QueuedConnection);
}

orda_journal::JournalTransport *DeviceCommand::journal() const
{
    return m_session->journal();
}

void DeviceCommand::note(const QString &text)
{
    m_progress.clear();
    const QString line = QCoreApplication::applicationName() + QLatin1String(": ") + vms_sdk::escaped(text);
    m_output->writeError(line.toUtf8() + '\n');
}

QString DeviceCommand::onvifGapText() const
{
    const orda_engine::OnvifGap gap = selection().onvifGap();
    return gap.devices == 0 ? QString()
                            : tr("%n device(s) speak ONVIF, which does not know this: %1", nullptr, gap.devices)
                                  .arg(gap.keys.join(QLatin1String(", ")));
}

/// The input is wrong: nothing is done.
void DeviceCommand::refuse()
{
    if (std::exchange(m_isOver, true))
        return;
    m_progress.end();
    for (const QString &error : m_input.errors())
        note(error);
    emit signalFinished(m_input.exitCode());
}

void DeviceCommand::begin()
{
    if (m_isOver)
        return;
    const bool isRight = m_input.read();
    const QStringList notes = m_input.takeNotes();
    for (const QString &text : notes)
        note(text);
    if (isRight)
        connectDevices();
    else
        refuse();
}

void DeviceCommand::connectDevices()
{
    using orda_journal::JournalTransport;
    m_summary.family = selection().family->name;
    const bool writes = m_options.command == Command::Apply || m_options.command == Command::Undo;
    std::unique_ptr<orda_journal::HistoryWriter> history;
    if (writes && m_options.hasHistory)
        history = std::make_unique<orda_journal::HistoryWriter>(m_history);
    m_session = std::make_unique<orda_engine::DeviceSession>(std::move(history));
    vms_sdk::ClientSdk::instance().setRequestTimeout(m_options.requestTimeout);
    connect(journal(), &JournalTransport::signalHistorySetAside, this, &DeviceCommand::note);

    const QList<vms_sdk::DevInfo> &devices = m_input.devicesToConnect();
    QStringList devIds;
    for (const vms_sdk::DevInfo &device : devices)
        devIds.append(device.id);
    m_progress.begin(tr("Connecting"), devIds.size());
    auto *connecting = new orda_engine::Connecting(devIds, m_options.connectTimeout, this);
    connect(connecting, &orda_engine::Connecting::signalProgress, &m_progress, &ProgressDisplay::setFinished);
    connect(connecting, &orda_engine::Connecting::signalDone, this, &DeviceCommand::beginWork);
    m_session->setDevices(devices);
}

void DeviceCommand::beginWork()
{
    if (m_isOver)
        return;
    m_progress.end();
    const bool isRight = m_input.select();
    const QStringList notes = m_input.takeNotes();
    for (const QString &text : notes)
        note(text);
    if (!isRight) {
        refuse();
        return;
    }
    takeSelection();
    if (selection().devIds.isEmpty())
        finish(); // a share of few devices may be empty: that is no run, and not the last one
    else
        work();
}

void DeviceCommand::takeSelection()
{
    const QStringList &devIds = selection().devIds;
    m_unreported = {devIds.begin(), devIds.end()};
    m_summary.devices = m_unreported.size();
    m_summary.leftOut = m_input.leftOut();
}

void DeviceCommand::beginResults(const QString &runId, const QStringList &valueColumns)
{
    m_hasBegunResults = true;
    m_summary.runId = runId;
    QList<vms_sdk::DevInfo> devices;
    for (const QString &devId : selection().devIds)
        devices.append(m_input.deviceOf(devId));
    m_writer.begin(devices, runId, valueColumns);
}

void DeviceCommand::report(const DeviceResult &result)
{
    if (!m_unreported.remove(result.devId))
        return;
    ++m_summary.outcomes[result.outcome];
    if (m_output->isTerminal())
        m_progress.clear();
    m_writer.add(result);
    m_progress.take(result.outcome, result.message);
}

void DeviceCommand::stop(const QString &why)
{
    if (m_isOver || isStopped())
        return;
    m_summary.stopped = why;
    if (m_session && m_summary.devices == 0 && m_input.select())
        takeSelection(); // stopped while it connected
    if (!cancelWork())
        finish();
    else if (!m_isOver)
        note(tr("nothing more is sent; what has left is awaited (once more ends at once)"));
}

void DeviceCommand::finish(const QString &error)
{
    if (std::exchange(m_isOver, true))
        return;
    if (!m_hasBegunResults)
        beginResults({});
    const QSet<QString> unreported = m_unreported;
    const QString why = error.isEmpty() ? m_summary.stopped : error;
    for (const QString &devId : selection().devIds)
        if (unreported.contains(devId))
            report(stoppedResult(m_input.deviceOf(devId), why));
    m_progress.end();
    if (!error.isEmpty())
        m_summary.error = error;
    m_summary.exitCode = exitCodeOf(m_summary);
    m_writer.end(m_summary);
    emit signalFinished(m_summary.exitCode);
}

int DeviceCommand::exitCodeOf(const Summary &summary) const
{
    const auto has = [&summary](Outcome outcome) { return summary.outcomes.value(outcome) > 0; };
    if (!summary.stopped.isEmpty() || has(Outcome::Stopped))
        return ExitStopped;
    if (has(Outcome::Differs))
        return ExitDiffers;
    if (!summary.error.isEmpty() || has(Outcome::Failed) || has(Outcome::Unknown) || has(Outcome::PartlyWritten))
        return orda_programs::ExitSomeFailed;
    return has(Outcome::NotReached) ? int(ExitNotReached) : int(orda_programs::ExitOk);
}

} // namespace orda_batch
