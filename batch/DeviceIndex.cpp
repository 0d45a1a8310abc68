#include "batch/DeviceIndex.h"

namespace orda_batch {

DeviceIndex::DeviceIndex(const QList<vms_sdk::DevInfo> &inventory)
{
    for (int i = 0; i < inventory.size(); ++i) {
        m_byId.insert(inventory.at(i).id, i);
        if (!inventory.at(i).serialNumber.isEmpty())
            m_bySerialNumber.insert(inventory.at(i).serialNumber, i);
    }
}

QVector<int> DeviceIndex::find(const QString &idOrSerialNumber) const
{
    QVector<int> places;
    for (const QHash<QString, int> *index : {&m_byId, &m_bySerialNumber}) {
        const int place = index->value(idOrSerialNumber, -1);
        if (place >= 0 && !places.contains(place))
            places.append(place);
    }
    return places;
}

} // namespace orda_batch
