#pragma once

#include "fleet/FaultPlan.h"

#include <vms_client_sdk/DeviceProtocol.h>

#include <QJsonObject>

#include <vector>

namespace device_fleet {

class SimulatedDevice;

/// What a device does about one request.
struct Reaction
{
    std::vector<vms_sdk::DeviceFrame> frames; ///< to send, in this order
    std::chrono::milliseconds delay{0}; ///< before the frames
    bool isCut = false; ///< ends the connection instead
    std::chrono::milliseconds offLineFor{0}; ///< and cannot be dialled for so long
};

/// Lets the device handle a request, and spoils the outcome as the fault says.
Reaction reactTo(const QString &requestId, const QJsonObject &request, SimulatedDevice &device,
                 const std::optional<FaultRule> &fault);

} // namespace device_fleet
