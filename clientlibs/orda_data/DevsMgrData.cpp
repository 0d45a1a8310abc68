#include <orda_data/DevsMgrData.h>

#include <orda_data/DataSignals.h>

#include <vms_client_sdk/ClientSignals.h>

#include <QSet>
#include <algorithm>

namespace orda_data {

DevsMgrData &DevsMgrData::instance()
{
    static DevsMgrData store;
    return store;
}

DevsMgrData::DevsMgrData()
{
    connect(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalDevStatusChanged, this,
            &DevsMgrData::setDevStatus);
    connect(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalDevTroubled, this,
            &DevsMgrData::setDevTrouble);
    connect(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalDevIdentified, this,
            &DevsMgrData::setSerialNumber);
}

QList<DevInfo> DevsMgrData::getAllDevs(bool onlineOnly) const
{
    QList<DevInfo> devs;
    devs.reserve(m_entries.size());
    for (const Entry &entry : m_entries)
        if (!onlineOnly || vms_sdk::isOnlineStatus(entry.status))
            devs.append(entry.info);
    return devs;
}

int DevsMgrData::devCount(bool onlineOnly) const
{
    if (!onlineOnly)
        return m_entries.size();
    return int(std::count_if(m_entries.begin(), m_entries.end(),
                             [](const Entry &entry) { return vms_sdk::isOnlineStatus(entry.status); }));
}

DevInfo DevsMgrData::getDevInfoById(const QString &devId) const
{
    const Entry *entry = find(devId);
    return entry ? entry->info : DevInfo();
}

vms_sdk::DevStatus DevsMgrData::getDevStatus(const QString &devId) const
{
    const Entry *entry = find(devId);
    return entry ? entry->status : vms_sdk::DevOffline;
}

vms_sdk::LinkTrouble DevsMgrData::getDevTrouble(const QString &devId) const
{
    const Entry *entry = find(devId);
    return entry ? entry->trouble : vms_sdk::LinkTrouble();
}

void DevsMgrData::updateDevs(const QList<DevInfo> &devs)
{
    for (const DevInfo &dev : devs) {
        const auto known = m_index.constFind(dev.id);
        if (known != m_index.constEnd()) {
            m_entries[*known].info = dev;
        } else {
            m_index.insert(dev.id, m_entries.size());
            m_entries.append({dev, vms_sdk::DevOffline});
        }
    }
    emit DataSignals::instance().signalUpdateDevs(devs, true, true);
}

void DevsMgrData::deleteDevs(const QStringList &devIds)
{
    const QSet<QString> gone(devIds.begin(), devIds.end());
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(),
                                   [&gone](const Entry &entry) { return gone.contains(entry.info.id); }),
                    m_entries.end());
    m_index.clear();
    for (int i = 0; i < m_entries.size(); ++i)
        m_index.insert(m_entries.at(i).info.id, i);
    emit DataSignals::instance().signalDeleteDevs(devIds, true);
}

void DevsMgrData::setDevStatus(const QString &devId, vms_sdk::DevStatus status)
{
    const auto known = m_index.constFind(devId);
    if (known == m_index.constEnd() || m_entries.at(*known).status == status)
        return;
    m_entries[*known].status = status;
    if (vms_sdk::isOnlineStatus(status))
        m_entries[*known].trouble = {};
    emit DataSignals::instance().signalDevStatusChanged(devId, status);
}

void DevsMgrData::setDevTrouble(const QString &devId, const vms_sdk::LinkTrouble &trouble)
{
    const auto known = m_index.constFind(devId);
    if (known != m_index.constEnd())
        m_entries[*known].trouble = trouble;
}

void DevsMgrData::setSerialNumber(const QString &devId, const QString &serialNumber)
{
    const auto known = m_index.constFind(devId);
    if (known != m_index.constEnd() && m_entries.at(*known).info.serialNumber.isEmpty())
        m_entries[*known].info.serialNumber = serialNumber;
}

const DevsMgrData::Entry *DevsMgrData::find(const QString &devId) const
{
    const auto known = m_index.constFind(devId);
    return known == m_index.constEnd() ? nullptr : &m_entries.at(*known);
}

} // namespace orda_data
