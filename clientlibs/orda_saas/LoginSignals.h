#pragma once

#include <QObject>

namespace orda_saas {

/// What happens to the operator's login at the cloud service. Raised on the GUI thread.
class LoginSignals : public QObject
{
    Q_OBJECT

public:
    static LoginSignals &instance();

signals:
    /// The operator has logged out: rights that came with the login are gone.
    void signalSaasLogoutSuccess();
    /// The enterprise that the operator works for, and with it the rights, may have changed. @param status the
    /// service's own code
    void signalEnterpriseStatus(int status);

private:
    LoginSignals() = default;
};

} // namespace orda_saas
