#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QList>
#include <QObject>
#include <QStringList>

namespace orda_data {

/// Changes of the device store, each raised on the user-interface thread after the store has changed.
class DataSignals : public QObject
{
    Q_OBJECT

public:
    static DataSignals &instance();

signals:
    /// Adds the device to the list or takes it off, and lets a run look again at a device that has come back.
    void signalDevStatusChanged(const QString &devId, vms_sdk::DevStatus status);
    /// With @p recordsChanged: new texts for the rows of these devices. It adds no rows, for a device comes with its
    /// status. The third argument is not looked at.
    void signalUpdateDevs(const QList<vms_sdk::DevInfo> &devs, bool recordsChanged, bool listChanged);
    /// With @p recordsRemoved: the rows of these devices go.
    void signalDeleteDevs(const QStringList &devIds, bool recordsRemoved);
};

} // namespace orda_data
