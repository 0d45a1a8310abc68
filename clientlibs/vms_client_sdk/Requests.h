#pragma once

#include <vms_client_sdk/Export.h>

#include <QString>

namespace vms_sdk {

/// Sends @p text to the device @p devId under @p requestId and (re)starts the id's waiting time. GUI thread only.
/// Answers come through ClientSignals::signalCommonRes, the end of the waiting time through signalRequestTimeout, both
/// from the event loop, never from inside this call. A request that cannot be sent ends by its time-out like one that
/// is not answered.
/// @p requestId must be free of line breaks and not empty.
VMS_CLIENT_SDK_EXPORT void common_req(const QString &requestId, const QString &devId, const QString &text);

/// Restarts the waiting time of a pending id; an unknown id, or one whose time-out is due, is left alone. GUI thread
/// only.
VMS_CLIENT_SDK_EXPORT void renewal_request_id(const QString &requestId);

} // namespace vms_sdk
