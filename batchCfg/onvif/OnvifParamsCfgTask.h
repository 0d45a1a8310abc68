#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets the ONVIF discovery of one device.
class OnvifParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    static const CfgFamily &family();

    /// @param values "discoveryflag" (1 or 0); without it the device keeps its own
    OnvifParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent);
};

} // namespace orda_batchCfg
