#pragma once

#include "batch/DeviceCommand.h"

namespace orda_engine {
struct DeviceReading;
class ReadJob;
class WriteJob;
} // namespace orda_engine
namespace orda_journal {
struct Settled;
}

namespace orda_batch {

/// The commands that write to devices: apply and undo. Looks at the devices and asks before, unless it is told not to.
class WritingCommand : public DeviceCommand
{
    Q_OBJECT

public:
    WritingCommand(const BatchOptions &options, const orda_journal::HistoryOptions &history, OutputThread *output);

private:
    /// What the devices are now, for the question.
    struct Outlook
    {
        int changing = 0; ///< devices
        int changes = 0;
        int unchanged = 0;
        int unread = 0;
        int notReached = 0;
        int withLeft = 0; ///< of an undo: devices of which something stays as it is
    };

    void work() override;
    bool cancelWork() override;
    int exitCodeOf(const Summary &summary) const override;
    bool refusesMissing();
    void writeUnasked();
    void look();
    void takeOutlook(const orda_engine::DeviceReading &reading);
    void ask(const QString &error);
    QString question() const;
    void write();
    void takeOutcome(const orda_journal::Settled &settled);
    void endRun(const QString &error);
    void takeHistoryFailure(const QString &why);
    void takeRecorded(const QString &runId);
    void conclude();

    Outlook m_outlook;
    orda_engine::ReadJob *m_reading = nullptr; // their parent is this
    orda_engine::WriteJob *m_writing = nullptr;
    QString m_historyFailure;
    QString m_error; // of the job
    bool m_isAsking = false; // and has no answer yet
    bool m_isRefused = false; // for devices that are missing
    bool m_hasEnded = false; // the job
    bool m_isRecorded = false;
};

} // namespace orda_batch
