#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QHash>
#include <QVector>

namespace orda_batch {

/// Devices by what people call them: by id or serial number.
class DeviceIndex
{
public:
    explicit DeviceIndex(const QList<vms_sdk::DevInfo> &inventory);

    /// Places in the inventory; two when it is the id of one device and the serial number of another.
    QVector<int> find(const QString &idOrSerialNumber) const;
    /// -1 when there is none.
    int findId(const QString &devId) const { return m_byId.value(devId, -1); }

private:
    QHash<QString, int> m_byId;
    QHash<QString, int> m_bySerialNumber;
};

} // namespace orda_batch
