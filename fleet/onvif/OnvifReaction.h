#pragma once

#include "fleet/FaultPlan.h"
#include "fleet/onvif/OnvifDevice.h"

namespace device_fleet {

/// What a camera does about one operation.
struct OnvifReaction
{
    QByteArray messages; ///< HTTP, to be sent in one go; empty: it says nothing
    std::chrono::milliseconds delay{0}; ///< before them
    bool isCut = false; ///< ends the connection instead
    std::chrono::milliseconds offLineFor{0}; ///< and cannot be reached for so long
};

/// A whole HTTP message with the reply in the camera's manner.
/// @param closes whether the connection ends behind it; a camera may say so by itself
QByteArray onvifMessage(const CameraTraits &traits, const OnvifReply &reply, bool closes);

/// Lets the camera carry the operation out, and spoils the outcome as the fault says.
OnvifReaction reactTo(const vms_sdk::XmlElement &operation, const QString &path, OnvifDevice &device, bool closes,
                      const std::optional<FaultRule> &fault);

} // namespace device_fleet
