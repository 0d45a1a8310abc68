#include "batch/ReadingCommand.h"

#include "batch/BatchExit.h"
#include "batch/DeviceResults.h"

namespace orda_batch {

using orda_engine::ReadJob;

ReadingCommand::ReadingCommand(const BatchOptions &options, const orda_journal::HistoryOptions &history,
                               OutputThread *output)
    : DeviceCommand(options, history, output)
{
}

void ReadingCommand::work()
{
    const bool isOfRun = options().command == Command::Verify && input().runDetails();
    if (options().command != Command::Read || options().format == Format::Json)
        beginResults(isOfRun ? input().run().id() : QString());
    const QString gap = options().command == Command::Plan ? onvifGapText() : QString();
    if (!gap.isEmpty())
        note(gap);
    progress()->begin(tr("Reading"), selection().devIds.size());
    m_job = new ReadJob(journal(), selection(), this);
    connect(m_job, &ReadJob::signalRead, this, &ReadingCommand::take);
    connect(m_job, &ReadJob::signalFinished, this, &ReadingCommand::end);
    m_job->start();
}

bool ReadingCommand::cancelWork()
{
    if (m_job)
        m_job->cancel();
    return m_job;
}

void ReadingCommand::take(const orda_engine::DeviceReading &reading)
{
    const vms_sdk::DevInfo device = input().deviceOf(reading.devId);
    if (options().command == Command::Plan) {
        report(planResult(device, reading, selection()));
    } else if (options().command == Command::Verify) {
        report(verifiedResult(device, reading, input()));
    } else {
        const DeviceResult result = heldResult(device, reading, input().keys(), options().isUnchecked);
        if (options().format == Format::Json) {
            report(result);
        } else {
            m_kept.insert(reading.devId, result);
            progress()->setFinished(m_kept.size());
        }
    }
}

void ReadingCommand::end(const QString &error)
{
    if (!m_kept.isEmpty()) {
        QSet<QString> members;
        for (const DeviceResult &result : qAsConst(m_kept)) {
            const QStringList held = result.values.keys();
            members.unite({held.begin(), held.end()});
        }
        QStringList columns(members.begin(), members.end());
        columns.sort();
        if (!options().isUnchecked)
            columns = input().keys().membersWithKey(columns);
        beginResults({}, columns.isEmpty() ? input().keys().names() : columns); // none when no device was read
        for (const QString &devId : selection().devIds)
            if (m_kept.contains(devId))
                report(m_kept.value(devId));
    }
    finish(error);
}

int ReadingCommand::exitCodeOf(const Summary &summary) const
{
    const int code = DeviceCommand::exitCodeOf(summary);
    return options().command == Command::Plan && code == ExitDiffers ? int(ExitWouldChange) : code;
}

} // namespace orda_batch
