#pragma once

#include <vms_client_sdk/onvif/OnvifFamily.h>

#include <initializer_list>

namespace vms_sdk {

// Profiles tie the configurations of a camera together. Kinds have the names of Media2: "VideoSource", "VideoEncoder",
// "AudioEncoder".

/// @param media one of both media services
/// @param kinds of configurations that are of interest
OnvifOperation profilesRead(OnvifService media, std::initializer_list<const char *> kinds);

/// The profiles of an answer, in its order.
std::vector<const XmlElement *> profilesOf(const XmlElement &answer, OnvifService media);

/// A profile's configuration; null when it has none of this kind.
const XmlElement *configurationOf(const XmlElement &profile, OnvifService media, const char *kind);

/// The configuration of the first profile that has one; null when none has.
const XmlElement *firstConfiguration(const XmlElement &answer, OnvifService media, const char *kind);

} // namespace vms_sdk
