#pragma once

#include <orda_data/Export.h>
#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/LinkTrouble.h>

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVector>

namespace orda_data {

using vms_sdk::DevInfo;

/// The device store: the records of all devices and their states. It takes the states from the SDK
/// (ClientSignals::signalDevStatusChanged), from the first call of instance() on, and why devices are not connected
/// (signalDevTroubled). It reports changes of the first through DataSignals. GUI thread only.
class ORDA_DATA_EXPORT DevsMgrData : public QObject
{
    Q_OBJECT

public:
    static DevsMgrData &instance();

    /// In the order in which the records were first added.
    QList<DevInfo> getAllDevs(bool onlineOnly) const;
    /// The number of records that getAllDevs() would return.
    int devCount(bool onlineOnly) const;
    /// When @p devId is unknown, a record whose id is empty.
    DevInfo getDevInfoById(const QString &devId) const;
    /// DevOffline when @p devId is unknown.
    vms_sdk::DevStatus getDevStatus(const QString &devId) const;
    /// Why the device is not connected, as the transport told it last; without a reason when it is online or unknown,
    /// or when the transport does not tell.
    vms_sdk::LinkTrouble getDevTrouble(const QString &devId) const;

    /// Adds new records as offline and replaces known ones, which keep their place and state. Raises
    /// signalUpdateDevs(devs, true, true). Call this before the transport gets the records, because the store ignores
    /// the states of devices that it does not know.
    void updateDevs(const QList<DevInfo> &devs);
    /// Removes records and states, and ignores unknown ids. Raises signalDeleteDevs(devIds, true).
    void deleteDevs(const QStringList &devIds);
    /// Ignores unknown ids. Raises signalDevStatusChanged only when the state changes.
    void setDevStatus(const QString &devId, vms_sdk::DevStatus status);
    /// Ignores unknown ids. A device that comes online loses it.
    void setDevTrouble(const QString &devId, const vms_sdk::LinkTrouble &trouble);
    /// Of a record that has none; others are left alone, as are unknown ids. Raises nothing: the device comes online
    /// next.
    void setSerialNumber(const QString &devId, const QString &serialNumber);

private:
    DevsMgrData();

    struct Entry
    {
        DevInfo info;
        vms_sdk::DevStatus status = vms_sdk::DevOffline;
        vms_sdk::LinkTrouble trouble = {};
    };

    const Entry *find(const QString &devId) const;

    QVector<Entry> m_entries; ///< in order of insertion
    QHash<QString, int> m_index; ///< id -> position in m_entries
};

} // namespace orda_data
