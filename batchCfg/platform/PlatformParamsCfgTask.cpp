#include "platform/PlatformParamsCfgTask.h"

namespace orda_batchCfg {

namespace {

QJsonObject readParam(const QJsonObject &values)
{
    const QString type = QStringLiteral("qbcloud_type");
    return {{type, values.value(type).toString()}, {QStringLiteral("bdefault"), false}};
}

QJsonObject writeParam(QJsonObject &values, const QJsonObject &device)
{
    values = completeFrom(values, device, {QStringLiteral("qbcloud_en"), QStringLiteral("qbcloud_addr")});
    return values;
}

} // namespace

PlatformParamsCfgTask::PlatformParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent,
                                             std::chrono::milliseconds checkLimit)
    : ParamsCfgTask(devId, values,
                    {{QStringLiteral("ifconfig_qbcloud_get_param"), QStringLiteral("ifconfig_qbcloud_set_param"),
                      readParam(values), writeParam, tr("Failed to get platform parameters(%1)"),
                      tr("Failed to set platform parameters(%1)"), 0, QString(), true, checkLimit}},
                    tr("set platform parameters time out"), parent)
{
    start();
}

} // namespace orda_batchCfg
