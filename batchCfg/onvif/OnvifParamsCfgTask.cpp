#include "onvif/OnvifParamsCfgTask.h"

namespace orda_batchCfg {

namespace {

QJsonObject writeParam(const QJsonObject &values, const QJsonObject &device)
{
    const QString byDefault = QStringLiteral("bdefault");
    const QJsonObject completed = completeFrom(values, device, {QStringLiteral("discoveryflag")});
    return completeFrom(completed, {{byDefault, false}}, {byDefault});
}

} // namespace

const CfgFamily &OnvifParamsCfgTask::family()
{
    static const CfgFamily onvif{
        QStringLiteral("onvif"),
        &staticMetaObject,
        QT_TR_NOOP("Onvif Parameters Configuration Result"),
        QT_TR_NOOP("set onvif discovery parameters time out"),
        {
            CfgExchange("netservice_onvif_get_discoveryinfo", "netservice_onvif_set_discoveryinfo", writeParam)
                .reading([](const QJsonObject &) { return QJsonObject(); })
                .failing(QT_TR_NOOP("Failed to get onvif discovery parameters(%1)"),
                         QT_TR_NOOP("Failed to set onvif discovery parameters(%1)")),
        },
        {CfgKey::numberSwitch("discoveryflag")},
        newTask<OnvifParamsCfgTask>};
    return onvif;
}

OnvifParamsCfgTask::OnvifParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(family(), devId, values, 0, parent)
{
}

} // namespace orda_batchCfg
