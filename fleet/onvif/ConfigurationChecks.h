#pragma once

#include "fleet/onvif/CameraState.h"

namespace device_fleet {

// Paths are local names of elements of tt: with "/" between them; an attribute's name, with "@" before it, may be last.

/// The texts at the path, in their order.
QStringList textsAt(const vms_sdk::XmlElement &element, const QString &path);

/// What in a configuration that a client sends is not allowed, for the reason of a fault; empty when it may be set.
/// @param kind of configuration; encoders of Media ver20 and ver10 are told apart by @p isVer20
QString whyNotAllowed(const QString &kind, bool isVer20, const vms_sdk::XmlElement &sent,
                      const std::vector<vms_sdk::XmlElement> &options);

} // namespace device_fleet
