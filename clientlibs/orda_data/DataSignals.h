#pragma once

#include <orda_data/Export.h>
#include <vms_client_sdk/DevInfo.h>

#include <QObject>
#include <QStringList>

namespace orda_data {

/// Changes of the device store (DevsMgrData), raised on the GUI thread after the store has changed.
class ORDA_DATA_EXPORT DataSignals : public QObject
{
    Q_OBJECT

public:
    static DataSignals &instance();

Q_SIGNALS:
    void signalDevStatusChanged(const QString &devId, vms_sdk::DevStatus status);
    /// Records were added or replaced. The store sets both flags. Listeners need to look at the first one only.
    void signalUpdateDevs(const QList<vms_sdk::DevInfo> &devs, bool recordsChanged, bool listChanged);
    /// Records were removed. The store always sets the flag.
    void signalDeleteDevs(const QStringList &devIds, bool recordsRemoved);

private:
    DataSignals() = default;
};

} // namespace orda_data
