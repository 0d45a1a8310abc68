#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <deque>

namespace orda_batchCfg {

class ParamsCfgTask;

/// Listens to the SDK's answers and time-outs and to the store's status changes, and passes each on to the task that it
/// concerns. It also has the one timer for the pauses between the steps of tasks. Otherwise each of 10,000 tasks would
/// look at every answer, and Qt would search 10,000 timers to stop one of them. User-interface thread only.
class TaskRouter : public QObject
{
    Q_OBJECT

public:
    static TaskRouter &instance();

    /// From now on @p task gets what concerns its request id and its device. The router does not own it.
    void add(ParamsCfgTask *task);
    /// @p task gets nothing more. It need not have been added.
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
    std::deque<Pause> m_pauses; // sorted by their ends
    QElapsedTimer m_clock;
    QTimer m_timer; // until the end of the first pause
};

} // namespace orda_batchCfg
