#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets image flip, day-night light and expert mode of one device's first channel.
class ImageParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    /// What a task may do, one exchange each.
    enum Flag
    {
        Adjust = 1,
        DayNight = 2,
        Expert = 4
    };

    static const CfgFamily &family();

    /// @param values "flip", "lightmode", "expertmode"; what the device does not report is left out
    /// @param flags the Flags of the exchanges to run
    ImageParamsCfgTask(const QString &devId, const QJsonObject &values, int flags, QObject *parent);
};

} // namespace orda_batchCfg
