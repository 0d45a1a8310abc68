#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets the on-screen display of one device's first channel.
class OSDParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    static const CfgFamily &family();

    /// @param values "bShowOSD", "timeFormat", "timePos", "channelName", "position", "bLargeOSD"; what the device does
    /// not report is left out
    OSDParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent);
};

} // namespace orda_batchCfg
