#include "run/Logging.h"

namespace orda_batchCfg {

Q_LOGGING_CATEGORY(logRun, "orda.run", QtWarningMsg)

} // namespace orda_batchCfg
