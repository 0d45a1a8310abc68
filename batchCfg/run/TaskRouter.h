#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QHash>
#include <QObject>

namespace orda_batchCfg {

class ParamsCfgTask;

/// The one listener of the SDK's answers and time-outs and of the store's status changes. It hands each to the task
/// that it concerns, so that 10,000 tasks do not each look at every answer. User-interface thread only.
class TaskRouter : public QObject
{
    Q_OBJECT

public:
    static TaskRouter &instance();

    /// From here on @p task hears what concerns its request id and its device. The router does not own it.
    void add(ParamsCfgTask *task);
    /// @p task hears nothing more; one that is not listed is fine.
    void remove(ParamsCfgTask *task);

private:
    TaskRouter();
    void handleAnswer(const QString &requestId, const QString &text);
    void handleTimeout(const QString &requestId);
    void handleDevStatus(const QString &devId, vms_sdk::DevStatus status);

    QHash<QString, ParamsCfgTask *> m_taskByRequestId;
    QMultiHash<QString, ParamsCfgTask *> m_tasksByDevId;
};

} // namespace orda_batchCfg
