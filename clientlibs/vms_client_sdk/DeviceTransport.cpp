#include "DeviceTransport.h"

namespace vms_sdk {

DeviceTransport::DeviceTransport(QObject *parent)
    : QObject(parent)
{
}

DeviceTransport::~DeviceTransport() = default;

} // namespace vms_sdk
