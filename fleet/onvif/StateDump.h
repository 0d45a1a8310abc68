#pragma once

#include "fleet/onvif/CameraState.h"

#include <QJsonObject>

namespace device_fleet {

/// What a camera holds, flat, so that two dumps can be compared member by member:
///
///     {"VideoEncoderConfiguration": {"VideoEncoder_1": {"Resolution/Width": "1920", "@GovLength": "50",
///                                                       "vendor:Analytics/vendor:Zone[2]/@id": "2"}},
///      "DiscoveryMode": "Discoverable", …}
///
/// by kind and token of a configuration, and in it by the path of elements and attributes. A name has its namespace
/// before it unless it is that of the standard's schema or, with an attribute, none; the second of several elements of
/// one name has [2] behind it.
QJsonObject dumpOf(const CameraState &state);

} // namespace device_fleet
