#pragma once

#include "batch/DeviceCommand.h"
#include "engine/ReadJob.h"

namespace orda_batch {

/// The commands that change nothing: read, plan, verify.
class ReadingCommand : public DeviceCommand
{
    Q_OBJECT

public:
    ReadingCommand(const BatchOptions &options, const orda_journal::HistoryOptions &history, OutputThread *output);

private:
    void work() override;
    bool cancelWork() override;
    int exitCodeOf(const Summary &summary) const override;
    void take(const orda_engine::DeviceReading &reading);
    void end(const QString &error);

    orda_engine::ReadJob *m_job = nullptr; // its parent is this
    QHash<QString, DeviceResult> m_kept; // of a table, whose columns are known when the last device has been read
};

} // namespace orda_batch
