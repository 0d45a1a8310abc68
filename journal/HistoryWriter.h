#pragma once

#include "journal/HistoryOptions.h"
#include "journal/HistoryRows.h"

#include <QObject>

#include <memory>

namespace orda_journal {

/// Puts runs into the history: a SQLite file, written by a thread of its own, so that nobody waits for the disk. What
/// is handed over is written in that order; what is handed over within a few milliseconds shares a transaction. GUI
/// thread only (a QCoreApplication's main thread will do).
///
/// A file that cannot be written loses the run that is under way: signalFailed() is raised once, nothing more of that
/// run is written, and the next beginRun() tries again from the start. A damaged file is set aside under another name
/// and a new one begun (signalSetAside()).
class HistoryWriter : public QObject
{
    Q_OBJECT

public:
    explicit HistoryWriter(const HistoryOptions &options = {}, QObject *parent = nullptr);
    /// Writes what has been handed over, for at most ten seconds, and raises the signals about it.
    ~HistoryWriter() override;

    /// Each of these returns a ticket, larger than all before; signalCommitted() tells how far the disk has it.
    /// Rows of another run than the one that was begun last are dropped.
    /// Names, serial numbers and addresses of the devices are taken from the device store at this moment.
    quint64 beginRun(const RunStart &run);
    /// Replaces what the history has of this exchange, field by field: empty fields stay as they are.
    quint64 putExchange(const QString &runId, const ExchangeRow &row);
    /// Outcome, code and message of the device, unless the row has no outcome or the run has ended; and the late answer
    /// where there is one.
    quint64 putDevice(const QString &runId, const DeviceRow &row);
    /// After the outcomes of all its devices. Counts them, then removes runs that are too old or too many. A device
    /// without an outcome gets Unknown when something was sent to it, else Stopped; so does one of a run that never
    /// ended, because its program did, when the next run begins.
    quint64 endRun(const QString &runId);

signals:
    /// Everything up to @p ticket is on the disk.
    void signalCommitted(quint64 ticket);
    /// The run is not recorded beyond the last signalCommitted().
    /// @param why for the user: which file, and what is wrong with it
    void signalFailed(const QString &why, const QString &runId);
    /// A damaged history was renamed. @param what for the user: both names
    void signalSetAside(const QString &what);

private:
    class Thread;
    std::unique_ptr<Thread> m_thread;
};

} // namespace orda_journal
