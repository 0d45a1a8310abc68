#pragma once

#include "batch/CommandInput.h"
#include "batch/DeviceResult.h"
#include "batch/ProgressDisplay.h"
#include "batch/ResultWriter.h"

#include <QSet>

#include <memory>

namespace orda_engine {
class DeviceSession;
}
namespace orda_journal {
class JournalTransport;
}

namespace orda_batch {

class OutputThread;

/// A command on devices, from its input to its summary: reads what it is about, connects, lets its subclass work, and
/// accounts for each selected device once. Used once; GUI thread, where a QCoreApplication is enough.
class DeviceCommand : public QObject
{
    Q_OBJECT

public:
    ~DeviceCommand() override;

    /// Returns at once; all signals come from the event loop.
    void start();
    /// As by Ctrl+C: what has not left yet does not leave, what has left is awaited.
    void stop(const QString &why);

signals:
    /// Last, and once; everything has been given to the output.
    void signalFinished(int exitCode);

protected:
    /// @param output must outlive the command
    DeviceCommand(const BatchOptions &options, const orda_journal::HistoryOptions &history, OutputThread *output);

    const BatchOptions &options() const { return m_options; }
    const CommandInput &input() const { return m_input; }
    const orda_engine::Selection &selection() const { return m_input.selection(); }
    orda_journal::JournalTransport *journal() const;
    OutputThread *output() const { return m_output; }
    ProgressDisplay *progress() { return &m_progress; }
    bool isStopped() const { return !m_summary.stopped.isEmpty(); }

    /// Devices are connected, as far as they can be. Ends with finish().
    virtual void work() = 0;
    /// Ends what work() has begun. @return false when nothing goes on that will finish by itself
    virtual bool cancelWork() = 0;
    /// What the outcomes mean for the caller. The first that holds is given.
    virtual int exitCodeOf(const Summary &summary) const;

    /// Before the first report(). @param runId of all lines; empty: there is none
    void beginResults(const QString &runId, const QStringList &valueColumns = {});
    /// What came of a device. Once for each; a second one is dropped.
    void report(const DeviceResult &result);
    /// Devices that are not reported yet are reported as stopped. @param error why it could not be done, for the user
    void finish(const QString &error = {});
    void note(const QString &text);
    /// What cannot be set on those of the devices that speak ONVIF; empty when there is nothing of that.
    QString onvifGapText() const;
    Summary &summary() { return m_summary; }
    const Summary &summary() const { return m_summary; }

private:
    void begin();
    void connectDevices();
    void beginWork();
    void takeSelection();
    void refuse();

    const BatchOptions m_options;
    OutputThread *m_output;
    CommandInput m_input; // with the demo devices, which outlive the session
    std::unique_ptr<orda_engine::DeviceSession> m_session;
    const orda_journal::HistoryOptions m_history;
    ResultWriter m_writer;
    ProgressDisplay m_progress;
    QSet<QString> m_unreported; // device ids
    Summary m_summary;
    bool m_hasBegunResults = false;
    bool m_isOver = false;
};

} // namespace orda_batch
