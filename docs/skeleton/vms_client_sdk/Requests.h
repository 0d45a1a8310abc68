#pragma once

#include <QString>

namespace vms_sdk {

/// Sends @p text to the device, and starts the waiting time of @p requestId anew. Called for each read and each write;
/// 10 ms lie between an answer and the device's next request, and one id serves all requests of one device in one run.
/// Must not block. The answer comes as ClientSignals::signalCommonRes, from the event loop, never from inside this
/// call; a request to a device that is offline ends by its time-out.
void common_req(const QString &requestId, const QString &devId, const QString &text);

/// Starts the waiting time of @p requestId anew; an id that is unknown or over is passed over. Called after each
/// result for every device that has none yet, so it must be cheap: 10,000 devices make 5 * 10^7 calls.
void renewal_request_id(const QString &requestId);

} // namespace vms_sdk
