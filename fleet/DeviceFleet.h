#pragma once

#include <FaultPlan.h>
#include <FleetOptions.h>

#include <vms_client_sdk/DevInfo.h>

#include <QHash>
#include <QJsonObject>
#include <QObject>

#include <memory>
#include <vector>

class QWebSocket;

namespace device_fleet {

class DeviceConnection;
class FleetServer;
class SimulatedDevice;

/// Simulated devices behind one server socket, told apart by the path of their address (docs/device-protocol.md). Everything
/// runs on the thread that it lives on.
class DeviceFleet : public QObject
{
    Q_OBJECT

public:
    explicit DeviceFleet(const FleetOptions &options, const FaultPlan &faults = {}, QObject *parent = nullptr);
    ~DeviceFleet() override;

    /// Opens the server socket. @return an error for the user, empty on success
    QString listen();

    /// What a client needs to reach the devices, their passwords included; complete after listen().
    QList<vms_sdk::DevInfo> inventory() const;

    /// {"devices": {"<id>": {"<object>": {…}}}}: every parameter of every device. No passwords.
    QJsonObject dump() const;

    /// A device that goes off line loses its connection and refuses new ones. An unknown id does nothing.
    void setOnline(const QString &devId, bool online);

    /// @param devId, method "*" for any
    void setFault(const QString &devId, const QString &method, const FaultRule &rule);

    /// Devices with a client signed on.
    int connectedDevices() const;

signals:
    /// A request has reached a device; raised before it is carried out and for faulty devices as well.
    void signalRequestReceived(const QString &devId, const QString &method, const QString &text);

private:
    struct Slot;

    Slot *slotOf(const QString &devId) const;
    void takeSocket(QWebSocket *socket);
    void signedOn(Slot &slot, DeviceConnection *connection);
    void takeRequest(Slot &slot, const QString &requestId, const QString &text);
    void misbehave(Slot &slot, const FaultRule &rule, const QString &requestId, const QJsonObject &request);
    void dropAndReturn(Slot &slot, int afterMs);
    void answerLater(Slot &slot, const QString &requestId, const QString &text, int delayMs);

    FleetOptions m_options;
    FaultPlan m_faults;
    std::unique_ptr<FleetServer> m_server;
    std::vector<std::unique_ptr<Slot>> m_slots; // in the order of the inventory
    QHash<QString, Slot *> m_slotsById;
};

} // namespace device_fleet
