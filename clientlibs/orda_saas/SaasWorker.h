#pragma once

#include <orda_saas/Export.h>

#include <QSet>
#include <QString>

namespace orda_saas {

/// The rights that the operator has at the cloud service. GUI thread only.
class ORDA_SAAS_EXPORT SaasWorker
{
public:
    static SaasWorker &instance();

    /// Whether the operator may configure this device whatever its state and password. False for every device until
    /// setFreelyOperable() was called.
    bool canOperateDevFreely(const QString &serialNumber) const;
    /// Replaces the set of devices that may be configured freely. Raises no signal: whoever calls it raises those of
    /// LoginSignals.
    void setFreelyOperable(const QSet<QString> &serialNumbers);

private:
    SaasWorker() = default;

    QSet<QString> m_freelyOperable;
};

} // namespace orda_saas
