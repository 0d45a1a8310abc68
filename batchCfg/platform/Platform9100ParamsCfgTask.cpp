#include "platform/Platform9100ParamsCfgTask.h"

namespace orda_batchCfg {

namespace {

// The two manual flags are never taken from the device: they are sent when the operator gave them.
QJsonObject writeParam(QJsonObject &values, const QJsonObject &device)
{
    values =
        completeFrom(values, device,
                     {QStringLiteral("bEnable"), QStringLiteral("onlineserverip"), QStringLiteral("onlineserverport"),
                      QStringLiteral("businessserverip"), QStringLiteral("businessserverport")});
    return values;
}

} // namespace

Platform9100ParamsCfgTask::Platform9100ParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(
        devId, values,
        {{QStringLiteral("alarmservice_get_cfg"), QStringLiteral("alarmservice_set_cfg"), QJsonObject(), writeParam,
          tr("Failed to get platform 9100 parameters(%1)"), tr("Failed to set platform 9100 parameters(%1)")}},
        tr("set platform 9100 parameters time out"), parent)
{
    start();
}

} // namespace orda_batchCfg
