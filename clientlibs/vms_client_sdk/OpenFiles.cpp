#include <vms_client_sdk/OpenFiles.h>

#include <vms_client_sdk/Logging.h>

#include <sys/resource.h>

namespace vms_sdk {

qint64 raiseOpenFileLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) {
        qCWarning(sdkLog) << "cannot read the limit of open files:" << qt_error_string();
        return 0;
    }
    rlimit raised = limit;
    raised.rlim_cur = limit.rlim_max;
    if (setrlimit(RLIMIT_NOFILE, &raised) != 0) {
        qCWarning(sdkLog) << "cannot raise the limit of open files:" << qt_error_string();
        return qint64(limit.rlim_cur);
    }
    return qint64(raised.rlim_cur);
}

} // namespace vms_sdk
