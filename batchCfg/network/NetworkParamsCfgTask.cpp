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

const CfgFamily &NetworkParamsCfgTask::family()
{
    static const CfgFamily network{
        QStringLiteral("network"),
        &staticMetaObject,
        QT_TR_NOOP("Network Parameters Configuration Result"),
        QT_TR_NOOP("set network parameters time out"),
        {
            CfgExchange("netservice_onvif_get_discoveryinfo", "netservice_onvif_set_discoveryinfo", discoveryParam)
                .failing(QT_TR_NOOP("Failed to get onvif discovery parameters(%1)"),
                         QT_TR_NOOP("Failed to set onvif discovery parameters(%1)"))
                .onlyWith(Discovery),
            CfgExchange("ifconfig_get_inet", "ifconfig_eth_set", interfaceParam)
                .failing(QT_TR_NOOP("Failed to get ip parameters(%1)"), QT_TR_NOOP("Failed to set ip parameters(%1)"))
                .foundIn("eth")
                .onlyWith(IpInterface),
        },
        {
            CfgKey::numberSwitch("discoveryflag", Discovery),
            CfgKey::switchOf("bIPLock", IpInterface),
            CfgKey::switchOf("bSmartOnline", IpInterface),
        },
        newTaskWithFlags<NetworkParamsCfgTask>};
    return network;
}

NetworkParamsCfgTask::NetworkParamsCfgTask(const QString &devId, const QJsonObject &values, unsigned flags,
                                           QObject *parent)
    : ParamsCfgTask(family(), devId, values, int(flags), parent)
{
}

} // namespace orda_batchCfg
