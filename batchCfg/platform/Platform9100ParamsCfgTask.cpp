#include "platform/Platform9100ParamsCfgTask.h"

namespace orda_batchCfg {

namespace {

constexpr int highestPort = 65535;

// The two manual flags are never taken from the device: they are sent when the operator gave them.
QJsonObject writeParam(const QJsonObject &values, const QJsonObject &device)
{
    return completeFrom(values, device,
                        {QStringLiteral("bEnable"), QStringLiteral("onlineserverip"),
                         QStringLiteral("onlineserverport"), QStringLiteral("businessserverip"),
                         QStringLiteral("businessserverport")});
}

} // namespace

const CfgFamily &Platform9100ParamsCfgTask::family()
{
    static const CfgFamily platform9100{
        QStringLiteral("platform_9100"),
        &staticMetaObject,
        QT_TR_NOOP("Platform 9100 Parameters Configuration Result"),
        QT_TR_NOOP("set platform 9100 parameters time out"),
        {
            CfgExchange("alarmservice_get_cfg", "alarmservice_set_cfg", writeParam)
                .reading([](const QJsonObject &) { return QJsonObject(); })
                .failing(QT_TR_NOOP("Failed to get platform 9100 parameters(%1)"),
                         QT_TR_NOOP("Failed to set platform 9100 parameters(%1)"))
                .takingFromValues({QStringLiteral("bManualcfgonline"), QStringLiteral("bManualcfgbussiness")}),
        },
        {
            CfgKey::switchOf("bEnable"),
            CfgKey::switchOf("bManualcfgonline"),
            CfgKey::text("onlineserverip"),
            CfgKey::number("onlineserverport", 0, highestPort, 15030),
            CfgKey::switchOf("bManualcfgbussiness"),
            CfgKey::text("businessserverip"),
            CfgKey::number("businessserverport", 0, highestPort, 8081),
        },
        newTask<Platform9100ParamsCfgTask>};
    return platform9100;
}

Platform9100ParamsCfgTask::Platform9100ParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(family(), devId, values, 0, parent)
{
}

} // namespace orda_batchCfg
