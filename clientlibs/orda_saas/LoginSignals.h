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
    /// The operator has logged out and has lost the rights that came with the login.
    void signalSaasLogoutSuccess();
    /// The operator's enterprise may have changed, and so may the rights. @param status the code as the service sent it
    void signalEnterpriseStatus(int status);

private:
    LoginSignals() = default;
};

} // namespace orda_saas
