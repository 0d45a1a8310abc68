#include <vms_client_sdk/DeviceTransport.h>

namespace vms_sdk {

DeviceTransport::DeviceTransport(QObject *parent)
    : QObject(parent)
{
}

DeviceTransport::~DeviceTransport() = default;

void DeviceTransport::passedOn(const QString &, const QString &) { }

void DeviceTransport::setRequestTimeout(std::chrono::milliseconds) { }

void DeviceTransport::timedOut(const QString &) { }

} // namespace vms_sdk
