#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QObject>
#include <QStringList>

namespace orda_data {

/// Changes of the device store (DevsMgrData), raised on the GUI thread after the store has changed.
class DataSignals : public QObject
{
    Q_OBJECT

public:
    static DataSignals &instance();

signals:
    void signalDevStatusChanged(const QString &devId, vms_sdk::DevStatus status);
    /// Records were added or replaced. The store sets both flags. Listeners need to look at the first one only.
    void signalUpdateDevs(const QList<vms_sdk::DevInfo> &devs, bool recordsChanged, bool listChanged);
    /// Records were removed. The store always sets the flag.
    void signalDeleteDevs(const QStringList &devIds, bool recordsRemoved);

private:
    DataSignals() = default;
};

} // namespace orda_data
