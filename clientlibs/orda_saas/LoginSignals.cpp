#include <orda_saas/LoginSignals.h>

namespace orda_saas {

LoginSignals &LoginSignals::instance()
{
    static LoginSignals signalsOfLogin;
    return signalsOfLogin;
}

} // namespace orda_saas
