#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets the 9100 alarm service of one device.
class Platform9100ParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    static const CfgFamily &family();

    /// @param values "bEnable", and for either server its manual flag with address and port ("bussiness" in the
    /// flag and "business" in address and port is how devices spell them)
    Platform9100ParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent);
};

} // namespace orda_batchCfg
