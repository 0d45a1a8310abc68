#include "platform/PlatformParamsCfgTask.h"

namespace orda_batchCfg {

namespace {

QJsonObject readParam(const QJsonObject &values)
{
    const QString type = QStringLiteral("qbcloud_type");
    return {{type, values.value(type).toString()}, {QStringLiteral("bdefault"), false}};
}

QJsonObject writeParam(const QJsonObject &values, const QJsonObject &device)
{
    return completeFrom(values, device, {QStringLiteral("qbcloud_en"), QStringLiteral("qbcloud_addr")});
}

} // namespace

const CfgFamily &PlatformParamsCfgTask::family()
{
    static const CfgFamily platform{
        QStringLiteral("platform"),
        &staticMetaObject,
        QT_TR_NOOP("Platform Parameters Configuration Result"),
        QT_TR_NOOP("set platform parameters time out"),
        {
            CfgExchange("ifconfig_qbcloud_get_param", "ifconfig_qbcloud_set_param", writeParam)
                .reading(readParam)
                .failing(QT_TR_NOOP("Failed to get platform parameters(%1)"),
                         QT_TR_NOOP("Failed to set platform parameters(%1)"))
                .takingFromValues({QStringLiteral("qbcloud_type")})
                .checkedWhenBack(cloudCheckLimit),
        },
        {
            CfgKey::switchOf("qbcloud_en").needing({QStringLiteral("qbcloud_type")}),
            CfgKey::text("qbcloud_addr").needing({QStringLiteral("qbcloud_type")}),
            CfgKey::choice("qbcloud_type",
                           {{"public", QT_TR_NOOP("Public Cloud")}, {"private", QT_TR_NOOP("Private Cloud")}}),
        },
        newTask<PlatformParamsCfgTask>};
    return platform;
}

PlatformParamsCfgTask::PlatformParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent,
                                             std::chrono::milliseconds checkLimit)
    : ParamsCfgTask(family(), devId, values, 0, parent)
{
    setCheckLimit(checkLimit);
}

} // namespace orda_batchCfg
