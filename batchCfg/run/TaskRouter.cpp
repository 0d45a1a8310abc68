#include "run/TaskRouter.h"

#include "run/Logging.h"
#include "run/ParamsCfgTask.h"

#include <orda_data/DataSignals.h>
#include <vms_client_sdk/ClientSignals.h>

#include <chrono>

namespace orda_batchCfg {

namespace {

using namespace std::chrono_literals;

// The next request leaves after the handling of the answer is over, never from inside it.
constexpr std::chrono::nanoseconds stepPause = 10ms;
// So long the steps of many tasks may hold up the event loop in one go: about half a frame of a 60 Hz display.
constexpr std::chrono::nanoseconds slice = 8ms;

} // namespace

TaskRouter &TaskRouter::instance()
{
    static TaskRouter router;
    return router;
}

TaskRouter::TaskRouter()
{
    m_clock.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &TaskRouter::takeSteps);
    const auto &sdk = vms_sdk::ClientSignals::instance();
    connect(&sdk, &vms_sdk::ClientSignals::signalCommonRes, this, &TaskRouter::handleAnswer);
    connect(&sdk, &vms_sdk::ClientSignals::signalRequestTimeout, this, &TaskRouter::handleTimeout);
    connect(&orda_data::DataSignals::instance(), &orda_data::DataSignals::signalDevStatusChanged, this,
            &TaskRouter::handleDevStatus);
}

void TaskRouter::add(ParamsCfgTask *task)
{
    m_taskByRequestId.insert(task->requestId(), task);
    m_tasksByDevId.insert(task->devId(), task);
}

void TaskRouter::remove(ParamsCfgTask *task)
{
    m_taskByRequestId.remove(task->requestId());
    m_tasksByDevId.remove(task->devId(), task);
}

void TaskRouter::callLater(const ParamsCfgTask *task, Step step, int exchange)
{
    m_pauses.push_back({m_clock.nsecsElapsed() + stepPause.count(), task->requestId(), step, exchange});
    if (!m_timer.isActive())
        startTimer();
}

void TaskRouter::startTimer()
{
    const std::chrono::nanoseconds left(m_pauses.front().end - m_clock.nsecsElapsed());
    m_timer.start(qMax(0ms, std::chrono::ceil<std::chrono::milliseconds>(left)));
}

void TaskRouter::takeSteps()
{
    const qint64 now = m_clock.nsecsElapsed();
    while (!m_pauses.empty() && m_pauses.front().end <= now && m_clock.nsecsElapsed() - now < slice.count()) {
        const Pause pause = std::move(m_pauses.front());
        m_pauses.pop_front();
        if (ParamsCfgTask *task = m_taskByRequestId.value(pause.requestId))
            (task->*pause.step)(pause.exchange);
    }
    if (!m_pauses.empty())
        startTimer();
}

void TaskRouter::handleAnswer(const QString &requestId, const QString &text)
{
    if (ParamsCfgTask *task = m_taskByRequestId.value(requestId))
        task->handleAnswer(text);
    else
        qCDebug(logRun) << requestId << "answer to a task that is not waiting dropped";
}

void TaskRouter::handleTimeout(const QString &requestId)
{
    if (ParamsCfgTask *task = m_taskByRequestId.value(requestId))
        task->handleTimeout();
}

void TaskRouter::handleDevStatus(const QString &devId, vms_sdk::DevStatus status)
{
    const QList<ParamsCfgTask *> tasks = m_tasksByDevId.values(devId);
    for (ParamsCfgTask *task : tasks)
        task->handleDevStatus(status);
}

} // namespace orda_batchCfg
