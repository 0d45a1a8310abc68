#pragma once

#include "fleet/FaultPlan.h"
#include "fleet/FleetOptions.h"

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/DeviceProtocol.h>

#include <QHash>
#include <QJsonObject>
#include <QObject>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QTcpSocket;
QT_END_NAMESPACE

namespace vms_sdk {
class HttpHead;
class PostedCalls;
} // namespace vms_sdk

namespace device_fleet {

class DeviceConnection;
struct SiteDevice;

/// The share of a fleet's devices of the device protocol that one thread has: what they have stored and their
/// connections. It lives on that thread, and all but add() and handOver() is called there; a device never changes its
/// shard.
class FleetShard : public QObject
{
    Q_OBJECT

public:
    /// @param faults copied: each shard looks into its own
    FleetShard(const FleetOptions &options, const FaultPlan &faults, QObject *parent = nullptr);
    ~FleetShard() override;

    /// Only before the shard's thread runs.
    /// @return the device's record without what depends on the server. It never changes, so any thread may read it as
    /// long as the shard is there.
    const vms_sdk::DevInfo &add(const SiteDevice &device);

    /// Someone has dialled a device of this shard: its connection begins, or is cut when the device is offline. From
    /// any thread.
    /// @param socket open or just closed; without parent, and moved to the shard's thread
    /// @param head the request's; what follows it is still in the socket
    void handOver(const QString &deviceId, std::unique_ptr<QTcpSocket> socket, const vms_sdk::HttpHead &head);

    /// Adds what each device has stored, by its id.
    void dumpTo(QJsonObject *devices) const;
    int connectedDevices() const; ///< signed on

    // As in DeviceFleet; an unknown id does nothing.
    void setFault(const QString &deviceId, const QString &method, const FaultRule &fault);
    void clearFaults();
    void setOnline(const QString &deviceId, bool online);

signals:
    void requestReceived(const QString &deviceId, const QString &method, const QString &text);

private:
    struct Device;

    void greet(const QString &deviceId, std::unique_ptr<QTcpSocket> socket, const vms_sdk::HttpHead &head);
    void takeOver(Device &device, DeviceConnection *connection);
    void handleRequest(Device &device, DeviceConnection &connection, const vms_sdk::DeviceFrame &request);
    void sendLater(Device &device, DeviceConnection &connection, std::chrono::milliseconds delay,
                   const std::vector<vms_sdk::DeviceFrame> &frames);

    const std::chrono::milliseconds m_latency;
    vms_sdk::PostedCalls *m_calls;
    FaultPlan m_faults;
    std::vector<std::unique_ptr<Device>> m_devices;
    QHash<QString, Device *> m_deviceById;
};

} // namespace device_fleet
