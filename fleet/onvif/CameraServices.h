#pragma once

#include "fleet/onvif/CameraState.h"
#include "fleet/onvif/OnvifReply.h"

#include <QDateTime>

#include <optional>

namespace device_fleet {

// The services of a camera: each answers its operations, and has no value for those that it does not know.

/// @param address of the camera, such as "http://127.20.0.1:8000"
/// @param now by the camera's clock
std::optional<OnvifReply> deviceServiceReply(CameraState &state, const vms_sdk::XmlElement &operation,
                                             const QString &address, const QDateTime &now);
std::optional<OnvifReply> mediaServiceReply(CameraState &state, const vms_sdk::XmlElement &operation,
                                            const QString &address);
/// The operations for screen texts, which both media services have.
std::optional<OnvifReply> osdReply(CameraState &state, const vms_sdk::XmlElement &operation);
std::optional<OnvifReply> imagingServiceReply(CameraState &state, const vms_sdk::XmlElement &operation);

QStringList deviceServiceOperations();
QStringList mediaServiceOperations();
QStringList osdOperations();
QStringList imagingServiceOperations();

/// The names of a camera for itself, for WS-Discovery and GetScopes.
QStringList scopesOf(const CameraState &state);

/// What answers an operation, without anything in it: an element of the operation's namespace.
inline OnvifReply emptyReply(const vms_sdk::XmlElement &operation)
{
    OnvifReply reply;
    reply.response.namespaceUri = operation.namespaceUri;
    reply.response.name = operation.name + QStringLiteral("Response");
    return reply;
}

} // namespace device_fleet
