#pragma once

#include <orda_data/Export.h>
#include <vms_client_sdk/DevInfo.h>

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVector>

namespace orda_data {

using vms_sdk::DevInfo;

/// The device store: the records that the client knows, and their states, which follow the SDK's
/// (ClientSignals::signalDevStatusChanged) from the first use on. GUI thread only. Changes are raised through
/// DataSignals.
class ORDA_DATA_EXPORT DevsMgrData : public QObject
{
    Q_OBJECT

public:
    static DevsMgrData &instance();

    /// In the order in which the records were first added.
    QList<DevInfo> getAllDevs(bool onlineOnly) const;
    /// As many as getAllDevs() has, without copying them.
    int devCount(bool onlineOnly) const;
    /// The record with an empty id when @p devId is unknown.
    DevInfo getDevInfoById(const QString &devId) const;
    /// DevOffline when @p devId is unknown.
    vms_sdk::DevStatus getDevStatus(const QString &devId) const;

    /// Adds new records, offline, and replaces known ones, which keep their place and state. Raises
    /// signalUpdateDevs(devs, true, true). Records go in here before they go to the transport: the state of an unknown
    /// device is not kept.
    void updateDevs(const QList<DevInfo> &devs);
    /// Forgets records and states; unknown ids are passed over. Raises signalDeleteDevs(devIds, true).
    void deleteDevs(const QStringList &devIds);
    /// Does nothing for an unknown id; raises signalDevStatusChanged on a change only.
    void setDevStatus(const QString &devId, vms_sdk::DevStatus status);

private:
    DevsMgrData();

    struct Entry
    {
        DevInfo info;
        vms_sdk::DevStatus status = vms_sdk::DevOffline;
    };

    const Entry *find(const QString &devId) const;

    QVector<Entry> m_entries; ///< in order of insertion
    QHash<QString, int> m_index; ///< id -> position in m_entries
};

} // namespace orda_data
