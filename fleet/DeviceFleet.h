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

namespace vms_sdk {
class WebSocketConnection;
}

namespace device_fleet {

class DeviceConnection;
class DeviceListener;
class OnvifSite;
enum class Admission;

/// Simulated devices behind one server socket. Those of the device protocol (docs/device-protocol.md) are told apart by
/// the path that is dialled; ONVIF cameras are in OnvifSite. All of it lives on the thread on which it was made;
/// EmbeddedFleet brings a thread along.
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
    /// (StateDump.h). Holds no passwords.
    QJsonObject dump() const;
    int connectedDevices() const; ///< signed on; of the device protocol only

    /// @param deviceId, method a name or FaultPlan::any(); a method of an ONVIF camera is the name of an operation
    void setFault(const QString &deviceId, const QString &method, const FaultRule &fault);
    void clearFaults();

    /// Offline: the connection is cut and no new one comes about. An unknown id does nothing.
    void setOnline(const QString &deviceId, bool online);

signals:
    /// Every request, before the device deals with it. @param method empty when the request has none
    void requestReceived(const QString &deviceId, const QString &method, const QString &text);
    /// An ONVIF camera was shown an account that is not the right one; not raised for a nonce that is used up.
    void signOnRefused(const QString &deviceId);

private:
    struct Device;

    Admission admission(const QString &path) const;
    void greet(const QString &path, vms_sdk::WebSocketConnection *webSocket);
    void takeOver(Device &device, DeviceConnection *connection);
    void handleRequest(Device &device, DeviceConnection &connection, const vms_sdk::DeviceFrame &request);
    Device *find(const QString &deviceId) const;
    vms_sdk::DevInfo inventoryRecord(const Device &device) const;

    FleetOptions m_options;
    FaultPlan m_faults;
    DeviceListener *m_listener;
    OnvifSite *m_onvif;
    std::vector<std::unique_ptr<Device>> m_devices;
    QHash<QString, Device *> m_deviceById;
};

} // namespace device_fleet
