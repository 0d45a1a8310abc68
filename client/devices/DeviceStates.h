#pragma once

#include "client/devices/DeviceState.h"

#include <orda_base/DelayedCall.h>

#include <QHash>
#include <QObject>

namespace orda_client {

/// The states of all devices in the store, and since when they are as they are. Lives as long as the client, so that it
/// has seen each change. A device that stays off line and fails for another reason, or is dialled again, has not
/// changed its state: it is off line since it was last on line, or since it is known. User-interface thread.
class DeviceStates : public QObject
{
    Q_OBJECT

public:
    explicit DeviceStates(QObject *parent = nullptr);

    /// Of a device that the store does not have: not offered, because there is no such device.
    DeviceState of(const QString &devId) const { return m_states.value(devId); }

signals:
    /// Something has changed: raised once for all that happens within a fifth of a second, because thousands of devices
    /// come and go together. @param isListChanged devices were added, removed or got other records
    void signalChanged(bool isListChanged);

private:
    void look(const QString &devId);
    void lookAtAll();
    void handleUpdate(const QList<vms_sdk::DevInfo> &devs);
    void handleDelete(const QStringList &devIds);
    void tell();

    QHash<QString, DeviceState> m_states; // by device id
    bool m_isListChanged = false; // since signalChanged()
    orda_base::DelayedCall m_tell;
};

} // namespace orda_client
