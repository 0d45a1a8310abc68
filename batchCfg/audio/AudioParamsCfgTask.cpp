#include "audio/AudioParamsCfgTask.h"

namespace orda_batchCfg {

AudioParamsCfgTask::AudioParamsCfgTask(const QString &devId, const QJsonObject &values, int flags, QObject *parent)
    : ParamsCfgTask(devId, values,
                    {{QStringLiteral("ai_get_param"), QStringLiteral("ai_set_param"), channelZero(),
                      mergedUnder(QStringLiteral("audioAttr")), tr("Failed to get audio in parameters(%1)"),
                      tr("Failed to set audio in parameters(%1)"), AudioIn},
                     {QStringLiteral("ao_get_param"), QStringLiteral("ao_set_param"), channelZero(),
                      mergedUnder(QStringLiteral("audioAttr")), tr("Failed to get audio out parameters(%1)"),
                      tr("Failed to set audio out parameters(%1)"), AudioOut}},
                    tr("set audio parameters time out"), parent, flags)
{
    start();
}

} // namespace orda_batchCfg
