#pragma once

#include <vms_client_sdk/Export.h>

#include <QString>

namespace vms_sdk {

/// Error codes of answers that the SDK makes of what an ONVIF device says. No device sends them itself.
enum OnvifCode
{
    OnvifNotAllowed = -61021, ///< the device's options do not allow the value; nothing was written
    OnvifNotKnown = -61022, ///< the standard, or the device, has no counterpart for the request
    OnvifFault = -61023, ///< the device refused an operation; "message" has its codes and reason
    OnvifTrouble = -61024 ///< HTTP, TLS, or an answer that is none
};

/// What the code means, for the user; empty for any other number.
VMS_CLIENT_SDK_EXPORT QString onvifCodeText(int code);

/// Whether the standard has a counterpart for a method of the device protocol (docs/device-protocol.md, section 5). A
/// device may lack it all the same.
VMS_CLIENT_SDK_EXPORT bool isKnownToOnvif(const QString &method);

} // namespace vms_sdk
