#pragma once

#include "run/ParamsCfgTask.h"

#include <chrono>

namespace orda_batchCfg {

/// Three waiting times of the SDK: a device is back within seconds of applying its cloud settings, and one that is not
/// steady after that is not waited for by the others.
inline constexpr std::chrono::seconds cloudCheckLimit{45};

/// Sets the cloud service of one device. Where the device drops its connection while it applies the settings, it is
/// read again once it is back, and what it holds then decides.
class PlatformParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    static const CfgFamily &family();

    /// @param values "qbcloud_type" always, "qbcloud_en" and "qbcloud_addr" where they are to change
    /// @param checkLimit how long after the first reading again the device may take to hold still; 0: cloudCheckLimit
    PlatformParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent,
                          std::chrono::milliseconds checkLimit = std::chrono::milliseconds(0));
};

} // namespace orda_batchCfg
