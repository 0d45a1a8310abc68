#pragma once

#include <orda_saas/Export.h>

#include <QObject>

namespace orda_saas {

/// What happens to the operator's login at the cloud service. Raised on the GUI thread.
class ORDA_SAAS_EXPORT LoginSignals : public QObject
{
    Q_OBJECT

public:
    static LoginSignals &instance();

Q_SIGNALS:
    /// The operator has logged out: rights that came with the login are gone.
    void signalSaasLogoutSuccess();
    /// The enterprise that the operator works for, and with it the rights, may have changed. @param status the
    /// service's own code
    void signalEnterpriseStatus(int status);

private:
    LoginSignals() = default;
};

} // namespace orda_saas
