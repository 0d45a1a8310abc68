#include "image/ImageParamsCfgTask.h"

namespace orda_batchCfg {

const CfgFamily &ImageParamsCfgTask::family()
{
    static const CfgFamily image{
        QStringLiteral("image"),
        &staticMetaObject,
        QT_TR_NOOP("Image Parameters Configuration Result"),
        QT_TR_NOOP("set image parameters time out"),
        {
            CfgExchange("image_get_adjust_param", "image_set_adjust_param", mergedUnder("attr"))
                .reading(channelZero())
                .failing(QT_TR_NOOP("Failed to get image adjust parameters(%1)"),
                         QT_TR_NOOP("Failed to set image adjust parameters(%1)"))
                .onlyWith(Adjust),
            CfgExchange("image_get_dncut_param", "image_set_dncut_param", mergedUnder("attr"))
                .reading(channelZero())
                .failing(QT_TR_NOOP("Failed to get image day-night parameters(%1)"),
                         QT_TR_NOOP("Failed to set image day-night parameters(%1)"))
                .onlyWith(DayNight),
            CfgExchange("image_get_expertsetting_param", "image_set_expertsetting_param", mergedUnder("attr"))
                .reading(channelZero())
                .failing(QT_TR_NOOP("Failed to get image expert parameters(%1)"),
                         QT_TR_NOOP("Failed to set image expert parameters(%1)"))
                .onlyWith(Expert),
        },
        {
            CfgKey::choice("flip",
                           {{"off", QT_TR_NOOP("Off")},
                            {"horizontal", QT_TR_NOOP("Horizontal")},
                            {"vertical", QT_TR_NOOP("Vertical")},
                            {"both", QT_TR_NOOP("Rotate 180")}},
                           Adjust),
            CfgKey::choice("expertmode",
                           {{"auto", QT_TR_NOOP("Auto")},
                            {"indoor", QT_TR_NOOP("Indoor")},
                            {"outdoor", QT_TR_NOOP("Outdoor")},
                            {"backlight", QT_TR_NOOP("Backlight")}},
                           Expert),
            CfgKey::choice("lightmode",
                           {{"ir", QT_TR_NOOP("Infrared")},
                            {"white", QT_TR_NOOP("White Light")},
                            {"smart", QT_TR_NOOP("Smart Dual Light")},
                            {"off", QT_TR_NOOP("Off")}},
                           DayNight),
        },
        newTaskWithFlags<ImageParamsCfgTask>};
    return image;
}

ImageParamsCfgTask::ImageParamsCfgTask(const QString &devId, const QJsonObject &values, int flags, QObject *parent)
    : ParamsCfgTask(family(), devId, values, flags, parent)
{
}

} // namespace orda_batchCfg
