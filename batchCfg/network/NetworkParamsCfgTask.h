#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets ONVIF discovery and the switches of the IP interface of one device.
class NetworkParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    /// What a task may do, one exchange each.
    enum Flag
    {
        Discovery = 1,
        IpInterface = 2
    };

    static const CfgFamily &family();

    /// @param values "discoveryflag" (1 or 0), "bIPLock" and "bSmartOnline" (booleans); what the device does not report
    /// is left out
    /// @param flags the Flags of the exchanges to run
    NetworkParamsCfgTask(const QString &devId, const QJsonObject &values, unsigned flags, QObject *parent);
};

} // namespace orda_batchCfg
