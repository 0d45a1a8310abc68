#pragma once

#include <QString>

namespace orda_saas {

/// The operator's rights at the cloud service.
class SaasWorker
{
public:
    static SaasWorker &instance();

    /// Whether the operator may work on the device whatever its state and password. Called before a device without an
    /// IP address is listed: answers from memory.
    bool canOperateDevFreely(const QString &serialNumber) const;
};

} // namespace orda_saas
