#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets the motion detection of one device's first channel.
class MotionParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    static const CfgFamily &family();

    /// @param values "bMotion", "sensitivity"; what the device does not report is left out
    MotionParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent);
};

} // namespace orda_batchCfg
