#include "run/BatchCfgContact.h"

namespace orda_batchCfg {

BatchCfgContact &BatchCfgContact::instance()
{
    static BatchCfgContact contact;
    return contact;
}

} // namespace orda_batchCfg
