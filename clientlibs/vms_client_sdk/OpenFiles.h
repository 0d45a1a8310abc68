#pragma once

#include <QtGlobal>

namespace vms_sdk {

/// Raises this process's soft limit of open files to the hard one and returns the limit that holds then: every device
/// connection is an open file. Called once at the start of a program.
qint64 raiseOpenFileLimit();

} // namespace vms_sdk
