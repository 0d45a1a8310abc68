#include "fleet/Logging.h"

namespace device_fleet {

Q_LOGGING_CATEGORY(fleetLog, "orda.fleet", QtWarningMsg)

} // namespace device_fleet
