#pragma once

#include "journal/HistoryRows.h"
#include "journal/TrackedRun.h"

#include <vms_client_sdk/DeviceTransport.h>

#include <QMultiHash>

#include <deque>
#include <memory>

namespace orda_journal {

class HistoryWriter;

/// A transport around the real ones, which sees what every program and every page sends. While a run goes on it keeps
/// the history of it: no write to a device of the run leaves before the history has what the device held and what it is
/// sent. It stops a run, and lets only one go on at a time, whoever starts it. GUI thread.
///
/// Requests that do not leave are answered in the device's place: with StoppedCode when the run was stopped, with
/// NotRecordedCode when the history cannot be written. The tasks then end as they do when a device refuses.
class JournalTransport : public vms_sdk::DeviceTransport
{
    Q_OBJECT

public:
    enum class Owner
    {
        Page, ///< results are taken from what goes over the wire
        Engine ///< results come by settle()
    };

    /// @param history null: nothing is recorded
    JournalTransport(std::unique_ptr<vms_sdk::DeviceTransport> transport, std::unique_ptr<HistoryWriter> history);
    /// Ends the run that is under way.
    ~JournalTransport() override;

    void send(const QString &requestId, const QString &devId, const QString &text) override;
    void passedOn(const QString &requestId, const QString &text) override;
    void setRequestTimeout(std::chrono::milliseconds timeout) override;
    void timedOut(const QString &requestId) override;

    /// Takes the turn for a run, and begins its record.
    /// @return why no run can begin now, for the user; empty when it has begun
    QString beginRun(const RunStart &run, Owner owner);
    /// Takes the turn for reading, which leaves no record. @return as beginRun()
    QString beginReading();
    /// Gives the turn back; devices of a run without an outcome get one. Nothing happens without a turn.
    void end();
    bool isBusy() const { return m_turn != Turn::Free; }

    /// What has not left yet does not leave any more; what has left is awaited.
    void stop();
    bool isStopped() const { return m_isStopped; }

    // For the owner of an engine's run, about its devices; the first two raise signalSettled().
    /// The result of the device's task. A device that has its outcome keeps it.
    void settle(const QString &devId, const QString &message, int code);
    void settleNotReached(const QString &devId, const QString &reason);
    /// Read again, a device that has its outcome holds something else than was written.
    void noteDiffers(const DeviceRow &row);

signals:
    void signalRunBegan(const orda_journal::RunStart &run);
    /// A device of the run has its outcome: once for each. What noteDiffers() makes of it later is not told here.
    void signalSettled(const orda_journal::Settled &settled);
    void signalRunEnded(const QString &runId);
    /// The history has everything of the run, its end included, and it is on the disk; without a history from the event
    /// loop, soon after the end. Once for each run, but never for one that the history lost: of that
    /// signalHistoryFailed() tells, before the run's end or after it. Whoever ends a program waits for one of them.
    void signalRunRecorded(const QString &runId);
    /// The history cannot be written: the run that is under way writes to no device any more.
    /// @param why for the user
    void signalHistoryFailed(const QString &why);
    void signalHistorySetAside(const QString &what);

private:
    enum class Turn
    {
        Free,
        Reading,
        Running
    };
    /// A run that has ended and waits until the history has its end.
    struct Ended
    {
        quint64 ticket;
        QString runId;
    };
    /// A write that waits until the history has it.
    struct Held
    {
        quint64 ticket;
        int device, exchange;
        QString requestId, devId, method, text;
    };

    QString takeTurn(Turn turn, Owner owner);
    void hold(const TrackedRun::Request &request, const QString &requestId, const QString &text);
    void letLeave(const Held &write);
    void letLeaveUpTo(quint64 ticket);
    void refuse(const TrackedRun::Request &request, const QString &requestId);
    void refuseHeld();
    void answerInstead(const QString &requestId, const QString &method, int code);
    void handleTimeout(const QString &requestId);
    void historyCommitted(quint64 ticket);
    void historyFailed(const QString &why, const QString &runId);
    void record(const Settled &settled);

    std::unique_ptr<vms_sdk::DeviceTransport> m_transport;
    std::unique_ptr<HistoryWriter> m_history;
    std::unique_ptr<TrackedRun> m_run; // kept after its end for late answers
    Turn m_turn = Turn::Free;
    Owner m_owner = Owner::Page;
    bool m_isStopped = false;
    bool m_hasFailed = false; // the history, since the run began
    std::deque<Held> m_held;
    std::deque<Ended> m_ended;
    QMultiHash<QString, QString> m_ownAnswers; // by request id, until they are passed on
};

} // namespace orda_journal

Q_DECLARE_METATYPE(orda_journal::Settled)
