#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets the cloud service of one device. Where the device drops its connection while it applies the settings, it is
/// read again once it is back, and what it holds then decides.
class PlatformParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    /// @param values "qbcloud_type" always, "qbcloud_en" and "qbcloud_addr" where they are to change
    PlatformParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent);
};

} // namespace orda_batchCfg
