#pragma once

#include "fleet/onvif/CameraState.h"

namespace device_fleet {

/// What a camera says to an operation.
struct OnvifReply
{
    vms_sdk::XmlElement response;
    QStringList faultCodes; ///< not empty: a fault; "Sender" or "Receiver", then codes of the standard's own
    QString reason;

    bool isFault() const { return !faultCodes.isEmpty(); }
};

inline OnvifReply onvifFault(const QStringList &codes, const QString &reason)
{
    return {{}, codes, reason};
}

/// A configuration, profile or other thing by a token that the camera does not know.
inline OnvifReply unknownToken(const char *code, const QString &token)
{
    return onvifFault({QStringLiteral("Sender"), QStringLiteral("InvalidArgVal"), QLatin1String(code)},
                      QStringLiteral("there is no \"%1\"").arg(token));
}

/// The same element under another name, such as a profile as one of GetProfilesResponse.
vms_sdk::XmlElement renamed(vms_sdk::XmlElement element, const char *ofNamespace, const QString &name);

/// The whole HTTP body: an envelope with the answer or the fault in it.
QByteArray soapDocument(const OnvifReply &reply, XmlStyle style);

} // namespace device_fleet
