#include "engine/ReadTask.h"

namespace orda_engine {

ReadTask::ReadTask(const orda_batchCfg::CfgFamily &family, const QString &devId, const QJsonObject &values, int flags,
                   QObject *parent)
    : ParamsCfgTask(family, devId, values, flags, parent)
{
    dropUnaskedAnswers();
}

void ReadTask::handleDevParams(int exchange, const QJsonObject &device)
{
    m_objects.insert(exchange, device);
    goOnAfter(exchange);
}

} // namespace orda_engine
