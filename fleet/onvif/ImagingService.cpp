#include "fleet/onvif/CameraServices.h"
#include "fleet/onvif/ConfigurationChecks.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

OnvifReply setSettings(const XmlElement &operation, CameraConfiguration *present)
{
    const XmlElement *sent = operation.child(timg, "ImagingSettings");
    if (!sent)
        return onvifFault({QStringLiteral("Sender"), QStringLiteral("InvalidArgs")},
                          QStringLiteral("ImagingSettings is missing"));
    const QString why = whyNotAllowed(QLatin1String(imagingKind), true, *sent, present->options);
    if (!why.isEmpty())
        return onvifFault(
            {QStringLiteral("Sender"), QStringLiteral("InvalidArgVal"), QStringLiteral("SettingsInvalid")}, why);
    present->element = renamed(vms_sdk::detached({&operation, sent}), tt, QStringLiteral("ImagingSettings"));
    return emptyReply(operation);
}

} // namespace

std::optional<OnvifReply> imagingServiceReply(CameraState &state, const XmlElement &operation)
{
    if (!imagingServiceOperations().contains(operation.name))
        return std::nullopt;
    const QString token = operation.textOf(timg, "VideoSourceToken");
    CameraConfiguration *present = findConfiguration(state, QLatin1String(imagingKind), token);
    if (!present)
        return unknownToken("NoSource", token);
    if (operation.name == QLatin1String("SetImagingSettings"))
        return setSettings(operation, present);
    OnvifReply reply = emptyReply(operation);
    if (operation.name == QLatin1String("GetImagingSettings"))
        reply.response.append(renamed(present->element, timg, QStringLiteral("ImagingSettings")));
    else if (operation.name == QLatin1String("GetOptions"))
        reply.response.append(renamed(present->options.at(0), timg, QStringLiteral("ImagingOptions")));
    else
        reply.response.append(XmlElement(timg, "MoveOptions")); // a lens that does not move
    return reply;
}

QStringList imagingServiceOperations()
{
    return {QStringLiteral("GetImagingSettings"), QStringLiteral("SetImagingSettings"), QStringLiteral("GetOptions"),
            QStringLiteral("GetMoveOptions")};
}

} // namespace device_fleet
