#include "onvif/OnvifParamsCfgTask.h"

namespace orda_batchCfg {

namespace {

QJsonObject writeParam(QJsonObject &values, const QJsonObject &device)
{
    values = completeFrom(values, device, {QStringLiteral("discoveryflag")});
    values = completeFrom(values, {{QStringLiteral("bdefault"), false}}, {QStringLiteral("bdefault")});
    return values;
}

} // namespace

OnvifParamsCfgTask::OnvifParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(
        devId, values,
        {{QStringLiteral("netservice_onvif_get_discoveryinfo"), QStringLiteral("netservice_onvif_set_discoveryinfo"),
          QJsonObject(), writeParam, tr("Failed to get onvif discovery parameters(%1)"),
          tr("Failed to set onvif discovery parameters(%1)")}},
        tr("set onvif discovery parameters time out"), parent)
{
    start();
}

} // namespace orda_batchCfg
