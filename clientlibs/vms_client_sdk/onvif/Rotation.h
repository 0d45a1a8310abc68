#pragma once

#include <vms_client_sdk/onvif/KeyLimit.h>

#include <QJsonValue>

namespace vms_sdk {

// How the picture of a video source is turned: "off", "both" for half a turn (upside down and left to right), and what
// only cameras ask for: "auto" and "rotate90" with the degrees. A mirror is no part of it and stays as it is.

/// @return undefined when the camera cannot turn the picture
QJsonValue rotationOf(const XmlElement &configuration, const KeyOptions &options);

/// @return why the camera would not allow it, printable; empty when it was set
QString setRotation(const QString &key, const QJsonValue &wanted, const KeyOptions &options, XmlElement *configuration);

} // namespace vms_sdk
