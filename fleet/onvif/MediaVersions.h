#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <optional>

namespace device_fleet {

// A camera with Media ver20 keeps its encoders as that has them; its Media ver10 shows the same in the older form.

/// @return none for what ver10 cannot say: encodings other than H.264 and JPEG
std::optional<vms_sdk::XmlElement> videoEncoderToVer10(const vms_sdk::XmlElement &encoder);
/// @param present what the camera holds: ver10 cannot say all of it
vms_sdk::XmlElement videoEncoderToVer20(const vms_sdk::XmlElement &encoder, const vms_sdk::XmlElement &present);
/// @param options of H.264
vms_sdk::XmlElement videoOptionsToVer10(const vms_sdk::XmlElement &options);

vms_sdk::XmlElement audioEncoderToVer10(const vms_sdk::XmlElement &encoder);
vms_sdk::XmlElement audioEncoderToVer20(const vms_sdk::XmlElement &encoder);
/// @return none for PCMA, which ver10 does not tell from PCMU
std::optional<vms_sdk::XmlElement> audioOptionsToVer10(const vms_sdk::XmlElement &options);

} // namespace device_fleet
