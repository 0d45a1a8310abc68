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

    /// Whether the operator may work on this device whatever its state and password; nobody may until
    /// setFreelyOperable().
    bool canOperateDevFreely(const QString &serialNumber) const;
    /// Replaces the devices that may be operated freely. Raises nothing: LoginSignals says when rights have changed.
    void setFreelyOperable(const QSet<QString> &serialNumbers);

private:
    SaasWorker() = default;

    QSet<QString> m_freelyOperable;
};

} // namespace orda_saas
