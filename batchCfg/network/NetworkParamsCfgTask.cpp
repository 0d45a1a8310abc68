#include "network/NetworkParamsCfgTask.h"

namespace orda_batchCfg {

namespace {

QJsonObject discoveryParam(const QJsonObject &values, const QJsonObject &device)
{
    QJsonObject param = mergeKnownKeys(device, values);
    param.insert(QStringLiteral("bdefault"), false);
    return param;
}

QJsonObject interfaceParam(const QJsonObject &values, const QJsonObject &device)
{
    QJsonObject param = mergeKnownKeys(device, values);
    param.insert(QStringLiteral("clienttype"), QStringLiteral("web"));
    param.remove(QStringLiteral("speed"));
    return param;
}

} // namespace

NetworkParamsCfgTask::NetworkParamsCfgTask(const QString &devId, const QJsonObject &values, unsigned flags,
                                           QObject *parent)
    : ParamsCfgTask(
        devId, values,
        {{QStringLiteral("netservice_onvif_get_discoveryinfo"), QStringLiteral("netservice_onvif_set_discoveryinfo"),
          std::nullopt, discoveryParam, tr("Failed to get onvif discovery parameters(%1)"),
          tr("Failed to set onvif discovery parameters(%1)"), Discovery},
         {QStringLiteral("ifconfig_get_inet"), QStringLiteral("ifconfig_eth_set"), std::nullopt, interfaceParam,
          tr("Failed to get ip parameters(%1)"), tr("Failed to set ip parameters(%1)"), IpInterface,
          QStringLiteral("eth")}},
        tr("set network parameters time out"), parent, int(flags))
{
    start();
}

} // namespace orda_batchCfg
