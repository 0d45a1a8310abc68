#include "client/app/DeviceTexts.h"

#include <vms_client_sdk/ForeignText.h>

namespace orda_client {

QString DeviceTexts::status(vms_sdk::DevStatus status)
{
    switch (status) {
    case vms_sdk::DevOffline:
        return tr("off line");
    case vms_sdk::DevOnline:
        return tr("online");
    case vms_sdk::DevConnecting:
        return tr("connecting");
    case vms_sdk::DevRefused:
        return tr("sign-on refused");
    case vms_sdk::DevDefaultPassword:
        return tr("online with the factory password");
    case vms_sdk::DevLocked:
        return tr("online, locked");
    }
    return {};
}

QString DeviceTexts::name(const vms_sdk::DevInfo &dev)
{
    return vms_sdk::displayText(dev.name.isEmpty() ? dev.serialNumber : dev.name);
}

} // namespace orda_client
