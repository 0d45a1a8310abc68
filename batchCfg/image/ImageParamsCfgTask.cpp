#include "image/ImageParamsCfgTask.h"

namespace orda_batchCfg {

ImageParamsCfgTask::ImageParamsCfgTask(const QString &devId, const QJsonObject &values, int flags, QObject *parent)
    : ParamsCfgTask(
        devId, values,
        {{QStringLiteral("image_get_adjust_param"), QStringLiteral("image_set_adjust_param"), channelZero(),
          mergedUnder(QStringLiteral("attr")), tr("Failed to get image adjust parameters(%1)"),
          tr("Failed to set image adjust parameters(%1)"), Adjust},
         {QStringLiteral("image_get_dncut_param"), QStringLiteral("image_set_dncut_param"), channelZero(),
          mergedUnder(QStringLiteral("attr")), tr("Failed to get image day-night parameters(%1)"),
          tr("Failed to set image day-night parameters(%1)"), DayNight},
         {QStringLiteral("image_get_expertsetting_param"), QStringLiteral("image_set_expertsetting_param"),
          channelZero(), mergedUnder(QStringLiteral("attr")), tr("Failed to get image expert parameters(%1)"),
          tr("Failed to set image expert parameters(%1)"), Expert}},
        tr("set image parameters time out"), parent, flags)
{
    start();
}

} // namespace orda_batchCfg
