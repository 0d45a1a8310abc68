#pragma once

#include "fleet/FaultPlan.h"
#include "fleet/FleetOptions.h"

#include <vms_client_sdk/DevInfo.h>

#include <QHash>
#include <QJsonObject>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QTcpSocket;
class QThread;
QT_END_NAMESPACE

namespace vms_sdk {
class HttpHead;
}

namespace device_fleet {

class DeviceListener;
class FleetShard;
class OnvifSite;

/// Simulated devices behind one server socket. Those of the device protocol (docs/device-protocol.md) are told apart by
/// the path that is dialled; ONVIF cameras are in OnvifSite.
///
/// Its functions are called on one thread, where the server socket and the cameras are too; EmbeddedFleet brings such a
/// thread along. The devices of the device protocol are dealt out to shards, because Qt asks the system about all
/// sockets of a thread whenever one of them has something. A single shard is on that thread as well; where there are
/// several, each has a thread of its own, so that those who dial are let in however busy the devices are. The functions
/// block until the shards have done what they are asked.
class DeviceFleet : public QObject
{
    Q_OBJECT

public:
    explicit DeviceFleet(const FleetOptions &options, const FaultPlan &faults = {}, QObject *parent = nullptr);
    ~DeviceFleet() override;

    /// Opens the server socket. @return a text for the user, empty when the devices can be dialled
    QString start();
    /// Where the devices are: address or network, and port. Only after start().
    QString address() const;
    /// The devices as a client needs to know them, passwords included. Only after start().
    QList<vms_sdk::DevInfo> inventory() const;

    /// What every device has stored: {"devices": {"<id>": {"<object>": {…}}}}; of an ONVIF camera what dumpOf() has
    /// (StateDump.h). Holds no passwords. With several shards they are asked one after the other.
    QJsonObject dump() const;
    int connectedDevices() const; ///< signed on; of the device protocol only

    /// @param deviceId, method a name or FaultPlan::any(); a method of an ONVIF camera is the name of an operation
    void setFault(const QString &deviceId, const QString &method, const FaultRule &fault);
    void clearFaults();

    /// Offline: the connection is cut and no new one comes about. An unknown id does nothing.
    void setOnline(const QString &deviceId, bool online);

signals:
    /// Every request, before the device deals with it; raised on the thread of the device, which is another for other
    /// devices. @param method empty when the request has none
    void requestReceived(const QString &deviceId, const QString &method, const QString &text);
    /// An ONVIF camera was shown an account that is not the right one; not raised for a nonce that is used up.
    void signOnRefused(const QString &deviceId);

private:
    void makeShards();
    void makeDevices();
    void handOver(const QString &path, QTcpSocket *socket, const vms_sdk::HttpHead &head);
    void onEachShard(const std::function<void(FleetShard &)> &function) const;
    vms_sdk::DevInfo inventoryRecord(const vms_sdk::DevInfo &device) const;

    FleetOptions m_options;
    FaultPlan m_faults;
    DeviceListener *m_listener;
    OnvifSite *m_onvif;
    std::vector<std::unique_ptr<QThread>> m_threads; // of the shards, by their number; none when there is one shard
    std::vector<FleetShard *> m_shards; // never empty; deleted by their threads, a single one as a child
    // Not changed after the construction.
    std::vector<const vms_sdk::DevInfo *> m_records; // by the devices' numbers; the shards own them
    QHash<QString, FleetShard *> m_shardById;
};

} // namespace device_fleet
