#include <vms_client_sdk/OnvifCode.h>

#include <vms_client_sdk/onvif/OnvifFamilies.h>

#include <QCoreApplication>

namespace vms_sdk {

namespace {

struct OnvifCodeTexts
{
    Q_DECLARE_TR_FUNCTIONS(OnvifCode)
};

} // namespace

QString onvifCodeText(int code)
{
    switch (code) {
    case OnvifNotAllowed:
        return OnvifCodeTexts::tr("The device does not allow this value");
    case OnvifNotKnown:
        return OnvifCodeTexts::tr("The device has no counterpart for this in ONVIF");
    case OnvifFault:
        return OnvifCodeTexts::tr("The device refused it");
    case OnvifTrouble:
        return OnvifCodeTexts::tr("The connection to the device failed, or its answer was of no use");
    default:
        return {};
    }
}

bool isKnownToOnvif(const QString &method)
{
    return familyOf(method) != nullptr;
}

} // namespace vms_sdk
