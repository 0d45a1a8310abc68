#include "osd/OSDParamsCfgTask.h"

namespace orda_batchCfg {

OSDParamsCfgTask::OSDParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(devId, values,
                    {{QStringLiteral("chnosd_get_param"), QStringLiteral("chnosd_set_param"), channelZero(),
                      mergedUnder(QStringLiteral("attr")), tr("Failed to get osd parameters(%1)"),
                      tr("Failed to set osd parameters(%1)")}},
                    tr("set osd parameters time out"), parent)
{
    start();
}

} // namespace orda_batchCfg
