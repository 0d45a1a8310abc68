#pragma once

#include <QObject>

namespace orda_saas {

/// What happens to the operator's login, each raised on the user-interface thread after the rights have changed.
class LoginSignals : public QObject
{
    Q_OBJECT

public:
    static LoginSignals &instance();

signals:
    /// Takes off the list what may no longer be configured.
    void signalSaasLogoutSuccess();
    /// Adds to the list what may be configured now. The code is not looked at.
    void signalEnterpriseStatus(int status);
};

} // namespace orda_saas
