#pragma once

#include <QLoggingCategory>

namespace vms_sdk {

/// Never gets passwords, proofs, nonces or the texts of requests and answers.
Q_DECLARE_LOGGING_CATEGORY(sdkLog)

} // namespace vms_sdk
