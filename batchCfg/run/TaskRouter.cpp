#include "run/TaskRouter.h"

#include "run/Logging.h"
#include "run/ParamsCfgTask.h"

#include <orda_data/DataSignals.h>
#include <vms_client_sdk/ClientSignals.h>

namespace orda_batchCfg {

TaskRouter &TaskRouter::instance()
{
    static TaskRouter router;
    return router;
}

TaskRouter::TaskRouter()
{
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
