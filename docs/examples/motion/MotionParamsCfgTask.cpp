#include "motion/MotionParamsCfgTask.h"

namespace orda_batchCfg {

const CfgFamily &MotionParamsCfgTask::family()
{
    static const CfgFamily motion{
        QStringLiteral("motion"),
        &staticMetaObject,
        QT_TR_NOOP("Motion Parameters Configuration Result"),
        QT_TR_NOOP("set motion parameters time out"),
        {
            CfgExchange("motion_get_param", "motion_set_param", mergedUnder("attr"))
                .reading(channelZero())
                .failing(QT_TR_NOOP("Failed to get motion parameters(%1)"),
                         QT_TR_NOOP("Failed to set motion parameters(%1)")),
        },
        {
            CfgKey::switchOf("bMotion"),
            CfgKey::choice("sensitivity",
                           {{10, QT_TR_NOOP("Low")}, {50, QT_TR_NOOP("Medium")}, {90, QT_TR_NOOP("High")}}),
        },
        newTask<MotionParamsCfgTask>};
    return motion;
}

MotionParamsCfgTask::MotionParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(family(), devId, values, 0, parent)
{
}

} // namespace orda_batchCfg
