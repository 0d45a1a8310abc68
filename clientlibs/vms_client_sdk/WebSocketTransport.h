#pragma once

#include <vms_client_sdk/DeviceTransport.h>
#include <vms_client_sdk/Export.h>
#include <vms_client_sdk/WebSocketOptions.h>

#include <QHash>
#include <QStringList>

#include <memory>
#include <vector>

namespace vms_sdk {

struct SharedLimits;

/// One WebSocket per device, kept up in network threads, one for about a thousand devices (docs/device-protocol.md).
/// The public functions are called on the GUI thread and do not block; the signals come from the network threads, those
/// of one device always from the same. The programs set QT_NO_GLIB=1 before the application object: GLib's dispatcher
/// checks every socket on every wake-up.
class VMS_CLIENT_SDK_EXPORT WebSocketTransport final : public DeviceTransport
{
    Q_OBJECT

public:
    explicit WebSocketTransport(QObject *parent = nullptr, const WebSocketOptions &options = {});
    ~WebSocketTransport() override;

    /// Requests leave when the present turn of the event loop ends, those of a device in their order. One to a device
    /// that is not online then is dropped, never sent later.
    void send(const QString &requestId, const QString &devId, const QString &text) override;

    void passedOn(const QString &requestId, const QString &text) override;
    /// The devices to keep connections to, all of them, whatever their access and kind codes. Unchanged records keep
    /// their connection, changed ones connect anew, missing ones are dropped and reported offline.
    void setDevices(const QList<DevInfo> &devices);

    /// Devices that refused the sign-on are tried once more.
    void connectAgain();
    /// These are dialled now as far as they are not connected: after a refused sign-on, and in place of the rest of the
    /// pause after a loss. Unknown ids, and devices that are being dialled, stay as they are.
    void connectDevicesAgain(const QStringList &devIds);

    /// Closes all connections and ends the network threads; no signal comes after it. Called when the application is
    /// about to quit and by the destructor; every call after the first does nothing.
    void shutdown();

protected:
    bool event(QEvent *event) override;

private:
    struct Shard; ///< a thread and its devices

    Shard &shardFor(const DevInfo &device);
    void addShard();
    void sendWaiting();

    std::unique_ptr<SharedLimits> m_limits; ///< of all shards
    std::vector<std::unique_ptr<Shard>> m_shards; ///< one at least; none after shutdown()
    /// By device id, those that are gone too: a device that comes back is reported by the thread that has said it was
    /// gone, in this order.
    QHash<QString, Shard *> m_shardOf;
    bool m_hasWaiting = false; ///< requests
};

} // namespace vms_sdk
