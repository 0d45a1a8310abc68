#include <orda_data/DataSignals.h>

namespace orda_data {

DataSignals &DataSignals::instance()
{
    static DataSignals signalsOfTheStore;
    return signalsOfTheStore;
}

} // namespace orda_data
