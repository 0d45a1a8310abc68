#include "fleet/FleetShard.h"

#include "fleet/DeviceConnection.h"
#include "fleet/Logging.h"
#include "fleet/Reaction.h"
#include "fleet/SimulatedDevice.h"
#include "fleet/Site.h"

#include <vms_client_sdk/PostedCalls.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <QJsonDocument>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>

namespace device_fleet {

namespace {

// So many windows and scripts may use a site at a time. Older connections are those that their clients have lost.
constexpr int maxClients = 4;
constexpr int maxWaitingAnswers = 256; // of one connection; a task waits for one at a time

} // namespace

struct FleetShard::Device
{
    explicit Device(const SiteDevice &made)
        : info(made.info)
        , state(made.state)
        , isOnline(made.online)
        , simulated(made.info.id, made.parameters)
    {
    }

    const vms_sdk::DevInfo info;
    vms_sdk::DevStatus state;
    bool isOnline;
    SimulatedDevice simulated;
    QList<DeviceConnection *> connections; // signed on, the oldest first
};

FleetShard::FleetShard(const FleetOptions &options, const FaultPlan &faults, QObject *parent)
    : QObject(parent)
    , m_latency(options.latency)
    , m_calls(new vms_sdk::PostedCalls(this))
    , m_faults(faults)
{
}

FleetShard::~FleetShard() = default;

const vms_sdk::DevInfo &FleetShard::add(const SiteDevice &device)
{
    m_devices.push_back(std::make_unique<Device>(device));
    Device *added = m_devices.back().get();
    m_deviceById.insert(added->info.id, added);
    return added->info;
}

void FleetShard::handOver(const QString &deviceId, std::unique_ptr<QTcpSocket> socket, const vms_sdk::HttpHead &head)
{
    // The call owns the socket until it is carried out: a shard that ends before deletes both.
    const auto owned = std::make_shared<std::unique_ptr<QTcpSocket>>(std::move(socket));
    m_calls->post([this, deviceId, owned, head] { greet(deviceId, std::move(*owned), head); });
}

void FleetShard::greet(const QString &deviceId, std::unique_ptr<QTcpSocket> socket, const vms_sdk::HttpHead &head)
{
    Device *device = m_deviceById.value(deviceId);
    if (!device->isOnline) {
        socket->abort();
        return;
    }
    if (socket->state() != QAbstractSocket::ConnectedState) // the client has gone on the way here
        return;
    auto *webSocket = new vms_sdk::WebSocketConnection({}, this);
    connect(webSocket, &vms_sdk::WebSocketConnection::finished, webSocket, &QObject::deleteLater);
    if (!webSocket->accept(socket.release(), head))
        return;
    auto *connection = new DeviceConnection(webSocket, device->info, device->state, this);
    connect(connection, &DeviceConnection::closed, connection, [connection, device] {
        device->connections.removeOne(connection);
        connection->deleteLater();
    });
    connect(connection, &DeviceConnection::signedOn, this,
            [this, connection, device] { takeOver(*device, connection); });
    connect(connection, &DeviceConnection::requestReceived, this,
            [this, connection, device](const vms_sdk::DeviceFrame &request) {
                if (device->connections.contains(connection)) // not one that has been cut
                    handleRequest(*device, *connection, request);
            });
}

void FleetShard::takeOver(Device &device, DeviceConnection *connection)
{
    device.connections.append(connection);
    if (device.connections.size() > maxClients)
        device.connections.constFirst()->cut();
    if (!device.isOnline) // it went offline after the handshake
        connection->cut();
}

void FleetShard::handleRequest(Device &device, DeviceConnection &connection, const vms_sdk::DeviceFrame &request)
{
    const QJsonObject json = QJsonDocument::fromJson(request.text.toUtf8()).object();
    const QString method = json.value(QLatin1String("method")).toString();
    emit requestReceived(device.info.id, method, request.text);

    const Reaction reaction = reactTo(request.requestId, json, device.simulated, m_faults.find(device.info.id, method));
    if (reaction.isCut) {
        connection.cut();
        if (reaction.offLineFor.count() > 0) {
            setOnline(device.info.id, false);
            QTimer::singleShot(reaction.offLineFor, this, [this, id = device.info.id] { setOnline(id, true); });
        }
        return;
    }
    const auto delay = m_latency + reaction.delay;
    if (delay.count() > 0)
        return sendLater(device, connection, delay, reaction.frames);
    for (const vms_sdk::DeviceFrame &frame : reaction.frames)
        connection.send(frame);
}

void FleetShard::sendLater(Device &device, DeviceConnection &connection, std::chrono::milliseconds delay,
                           const std::vector<vms_sdk::DeviceFrame> &frames)
{
    if (connection.findChildren<QTimer *>(QStringLiteral("answer"), Qt::FindDirectChildrenOnly).size()
        >= maxWaitingAnswers) {
        qCWarning(fleetLog) << device.info.id << "cut a client that asks faster than it is answered";
        connection.cut();
        return;
    }
    // A child, so that waiting answers are deleted with their connection, which QTimer::singleShot() would not do.
    auto *timer = new QTimer(&connection);
    timer->setObjectName(QStringLiteral("answer"));
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, timer, [timer, connection = &connection, frames] {
        for (const vms_sdk::DeviceFrame &frame : frames)
            connection->send(frame);
        timer->deleteLater();
    });
    timer->start(delay);
}

void FleetShard::dumpTo(QJsonObject *devices) const
{
    for (const auto &device : m_devices)
        devices->insert(device->info.id, device->simulated.parameters());
}

int FleetShard::connectedDevices() const
{
    return int(std::count_if(m_devices.begin(), m_devices.end(),
                             [](const auto &device) { return !device->connections.isEmpty(); }));
}

void FleetShard::setFault(const QString &deviceId, const QString &method, const FaultRule &fault)
{
    m_faults.set(deviceId, method, fault);
}

void FleetShard::clearFaults()
{
    m_faults.clear();
}

void FleetShard::setOnline(const QString &deviceId, bool online)
{
    Device *device = m_deviceById.value(deviceId);
    if (!device)
        return;
    device->isOnline = online;
    if (online)
        return;
    const QList<DeviceConnection *> connections = device->connections; // a copy: cutting one removes it from the list
    for (DeviceConnection *connection : connections)
        connection->cut();
}

} // namespace device_fleet
