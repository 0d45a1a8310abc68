#include "client/preview/DeviceCells.h"

#include <orda_data/DevsMgrData.h>

namespace orda_client {

DeviceCells DeviceCells::of(const QString &devId)
{
    const vms_sdk::DevInfo device = orda_data::DevsMgrData::instance().getDevInfoById(devId);
    return {devId, device.name, device.serialNumber, device.ip, device.group};
}

QStringList DeviceCells::titles()
{
    return {tr("Name"), tr("Serial number"), tr("IP address"), tr("Group")};
}

QString DeviceCells::text(int column) const
{
    switch (column) {
    case Name:
        return name;
    case SerialNumber:
        return serialNumber;
    case Address:
        return ip;
    case Group:
        return group;
    default:
        return {};
    }
}

QString DeviceCells::shownName() const
{
    if (name.isEmpty())
        return serialNumber.isEmpty() ? devId : serialNumber;
    return serialNumber.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, serialNumber);
}

} // namespace orda_client
