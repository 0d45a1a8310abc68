#pragma once

#include <QLoggingCategory>

namespace device_fleet {

/// "orda.fleet". Never gets passwords, nonces or proofs.
Q_DECLARE_LOGGING_CATEGORY(fleetLog)

} // namespace device_fleet
