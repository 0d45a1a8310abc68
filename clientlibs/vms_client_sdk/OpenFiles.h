#pragma once

#include <vms_client_sdk/Export.h>

#include <QtGlobal>

namespace vms_sdk {

/// Raises this process's soft limit of open files to the hard one and returns the limit that holds then: every device
/// connection is an open file. Called once at the start of a program.
VMS_CLIENT_SDK_EXPORT qint64 raiseOpenFileLimit();

} // namespace vms_sdk
