#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <deque>

namespace orda_batchCfg {

class ParamsCfgTask;

/// The one listener of the SDK's answers and time-outs and of the store's status changes, and the one timer of the
/// pauses between a task's steps. It hands each to the task that it concerns, so that 10,000 tasks do not each look at
/// every answer, and Qt not through 10,000 timers to stop one. User-interface thread only.
class TaskRouter : public QObject
{
    Q_OBJECT

public:
    static TaskRouter &instance();

    /// From here on @p task hears what concerns its request id and its device. The router does not own it.
    void add(ParamsCfgTask *task);
    /// @p task hears nothing more; one that is not listed is fine.
    void remove(ParamsCfgTask *task);

    using Step = void (ParamsCfgTask::*)(int exchange);
    /// Calls @p step after a pause of 10 ms, from the event loop, unless the task has been removed by then.
    void callLater(const ParamsCfgTask *task, Step step, int exchange);

private:
    TaskRouter();
    void handleAnswer(const QString &requestId, const QString &text);
    void handleTimeout(const QString &requestId);
    void handleDevStatus(const QString &devId, vms_sdk::DevStatus status);
    void takeSteps();
    void startTimer();

    struct Pause
    {
        qint64 end; // of m_clock, in nanoseconds
        QString requestId;
        Step step;
        int exchange;
    };

    QHash<QString, ParamsCfgTask *> m_taskByRequestId;
    QMultiHash<QString, ParamsCfgTask *> m_tasksByDevId;
    std::deque<Pause> m_pauses; // in the order of their ends
    QElapsedTimer m_clock;
    QTimer m_timer; // for the first of them
};

} // namespace orda_batchCfg
