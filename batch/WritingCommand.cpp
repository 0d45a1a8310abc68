#include "batch/WritingCommand.h"

#include "batch/BatchExit.h"
#include "batch/DeviceResults.h"
#include "batch/OutputThread.h"
#include "batch/Question.h"
#include "engine/ApplyJob.h"
#include "engine/Reach.h"
#include "engine/ReadJob.h"
#include "engine/UndoJob.h"
#include "journal/JournalTransport.h"

#include <QTimer>

#include <chrono>

namespace orda_batch {

using orda_engine::ReadJob;
using orda_engine::WriteJob;
using orda_journal::JournalTransport;
using orda_journal::Outcome;

namespace {

// With a disk that does not answer; as long as the history's own patience when a program ends.
constexpr std::chrono::seconds recordingLimit{10};

} // namespace

WritingCommand::WritingCommand(const BatchOptions &options, const orda_journal::HistoryOptions &history,
                               OutputThread *output)
    : DeviceCommand(options, history, output)
{
}

void WritingCommand::work()
{
    if (options().needsAll && refusesMissing())
        finish();
    else if (options().isConfirmed)
        writeUnasked();
    else
        look();
}

/// Whether a device is missing; then it is reported, and nothing is written to the others.
bool WritingCommand::refusesMissing()
{
    QVector<DeviceResult> results;
    for (const QString &devId : selection().devIds) {
        const orda_engine::Reach reach = orda_engine::reachOf(devId);
        const vms_sdk::DevInfo device = input().deviceOf(devId);
        m_isRefused = m_isRefused || !reach.canBeWritten;
        results.append(reach.canBeWritten ? stoppedResult(device, tr("not begun: not all devices are reached"))
                                          : notReachedResult(device, reach));
    }
    if (!m_isRefused)
        return false;
    beginResults({});
    for (const DeviceResult &result : qAsConst(results))
        report(result);
    return true;
}

void WritingCommand::writeUnasked()
{
    const QString gap = options().command == Command::Apply ? onvifGapText() : QString();
    if (!gap.isEmpty())
        note(gap);
    write();
}

void WritingCommand::look()
{
    progress()->begin(tr("Reading"), selection().devIds.size());
    m_reading = new ReadJob(journal(), selection(), this);
    connect(m_reading, &ReadJob::signalRead, this, &WritingCommand::takeOutlook);
    connect(m_reading, &ReadJob::signalProgress, progress(), &ProgressDisplay::setFinished);
    connect(m_reading, &ReadJob::signalFinished, this, &WritingCommand::ask);
    m_reading->start();
}

void WritingCommand::takeOutlook(const orda_engine::DeviceReading &reading)
{
    const vms_sdk::DevInfo device = input().deviceOf(reading.devId);
    const bool isUndo = options().command == Command::Undo;
    const DeviceResult result = isUndo ? undoPlanResult(device, reading, input().run(), options().isForced)
                                       : planResult(device, reading, selection());
    m_outlook.changes += result.changes.size();
    m_outlook.withLeft += isUndo && reading.isRead() && !result.message.isEmpty() ? 1 : 0;
    ++(result.outcome == Outcome::Differs      ? m_outlook.changing
       : result.outcome == Outcome::Unchanged  ? m_outlook.unchanged
       : result.outcome == Outcome::NotReached ? m_outlook.notReached
                                               : m_outlook.unread);
}

QString WritingCommand::question() const
{
    const bool isUndo = options().command == Command::Undo;
    QStringList lines;
    const QString gap = isUndo ? QString() : onvifGapText();
    if (!gap.isEmpty())
        lines.append(gap);
    lines.append(tr("%1: %n device(s) would change", nullptr, m_outlook.changing).arg(summary().family)
                 + tr(", in %n value(s)", nullptr, m_outlook.changes));
    if (m_outlook.unchanged > 0)
        lines.append(isUndo ? tr("%n device(s) with nothing to take back", nullptr, m_outlook.unchanged)
                            : tr("%n device(s) have these values already", nullptr, m_outlook.unchanged));
    if (m_outlook.withLeft > 0)
        lines.append(tr("%n device(s) keep something that was changed since, or that they did not have before", nullptr,
                        m_outlook.withLeft));
    if (m_outlook.unread > 0)
        lines.append(tr("%n device(s) could not be read", nullptr, m_outlook.unread));
    if (m_outlook.notReached > 0)
        lines.append(tr("%n device(s) are not reached", nullptr, m_outlook.notReached));
    if (!options().hasHistory)
        lines.append(tr("no history is kept: this run cannot be taken back"));
    return lines.join(QLatin1String("\n  ")) + QLatin1Char('\n') + (isUndo ? tr("Take it back?") : tr("Configure?"));
}

void WritingCommand::ask(const QString &error)
{
    m_reading->deleteLater();
    m_reading = nullptr;
    progress()->end();
    if (!error.isEmpty() || isStopped()) {
        finish(error);
        return;
    }
    auto *question = new Question(output(), this);
    connect(question, &Question::signalAnswered, this, [this](bool isYes) {
        m_isAsking = false;
        if (isStopped())
            return;
        if (isYes)
            write();
        else
            stop(tr("not confirmed"));
    });
    m_isAsking = true;
    question->ask(WritingCommand::question());
}

void WritingCommand::write()
{
    if (options().needsAll && refusesMissing()) { // once more: the answer to a question may take long
        finish();
        return;
    }
    if (options().command == Command::Undo)
        m_writing = new orda_engine::UndoJob(journal(), input().run(), selection().devIds, options().isForced,
                                             options().write, this);
    else
        m_writing = new orda_engine::ApplyJob(journal(), selection(), options().write, this);
    beginResults(options().hasHistory ? m_writing->runId() : QString());
    if (options().command == Command::Undo)
        summary().undoes = input().run().id();
    progress()->begin(options().command == Command::Undo ? tr("Taking back") : tr("Configuring"),
                      selection().devIds.size());
    connect(journal(), &JournalTransport::signalHistoryFailed, this, &WritingCommand::takeHistoryFailure);
    connect(journal(), &JournalTransport::signalRunRecorded, this, &WritingCommand::takeRecorded);
    connect(m_writing, &WriteJob::signalOutcome, this, &WritingCommand::takeOutcome);
    connect(m_writing, &WriteJob::signalStopped, this, [this](const QString &why) {
        if (!isStopped() && why != m_historyFailure)
            summary().stopped = why;
    });
    connect(m_writing, &WriteJob::signalFinished, this, &WritingCommand::endRun);
    m_writing->start();
}

bool WritingCommand::cancelWork()
{
    if (m_isAsking)
        output()->writeError("\n"); // the cursor stands behind the question
    if (m_reading)
        m_reading->cancel();
    if (m_writing)
        m_writing->cancel();
    return m_reading || m_writing;
}

void WritingCommand::takeOutcome(const orda_journal::Settled &settled)
{
    const vms_sdk::DevInfo device = input().deviceOf(settled.row.devId);
    report(options().command == Command::Undo ? writtenResult(device, settled)
                                              : appliedResult(device, settled, selection()));
}

void WritingCommand::endRun(const QString &error)
{
    m_hasEnded = true;
    m_error = error;
    QTimer::singleShot(recordingLimit, this, [this] {
        if (!m_isRecorded)
            takeHistoryFailure(tr("The disk did not take the history in time."));
    });
    conclude();
}

void WritingCommand::takeHistoryFailure(const QString &why)
{
    if (m_historyFailure.isEmpty())
        m_historyFailure = why;
    conclude();
}

void WritingCommand::takeRecorded(const QString &runId)
{
    m_isRecorded = m_isRecorded || runId == m_writing->runId();
    conclude();
}

/// When the devices have their outcomes, and the disk has these or will never have them.
void WritingCommand::conclude()
{
    if (m_hasEnded && (m_isRecorded || !m_historyFailure.isEmpty() || !m_error.isEmpty()))
        finish(m_error.isEmpty() ? m_historyFailure : m_error);
}

int WritingCommand::exitCodeOf(const Summary &summary) const
{
    if (!m_historyFailure.isEmpty())
        return ExitHistory;
    return m_isRefused ? int(ExitNotReached) : DeviceCommand::exitCodeOf(summary);
}

} // namespace orda_batch
