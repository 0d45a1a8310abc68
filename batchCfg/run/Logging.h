#pragma once

#include <QLoggingCategory>

namespace orda_batchCfg {

/// "orda.run": at debug level a run can be followed request by request, by the requests' ids.
Q_DECLARE_LOGGING_CATEGORY(logRun)

} // namespace orda_batchCfg
