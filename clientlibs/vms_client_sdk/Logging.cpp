#include <vms_client_sdk/Logging.h>

namespace vms_sdk {

Q_LOGGING_CATEGORY(sdkLog, "orda.sdk", QtWarningMsg)

} // namespace vms_sdk
