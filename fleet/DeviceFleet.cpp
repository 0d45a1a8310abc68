#include "fleet/DeviceFleet.h"

#include "fleet/DeviceConnection.h"
#include "fleet/DeviceListener.h"
#include "fleet/Logging.h"
#include "fleet/Reaction.h"
#include "fleet/SimulatedDevice.h"
#include "fleet/Site.h"
#include "fleet/onvif/OnvifSite.h"
#include "fleet/onvif/ProbeResponder.h"

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <QJsonDocument>
#include <QPointer>
#include <QTimer>

#include <algorithm>

namespace device_fleet {

namespace {

// So many windows and scripts may use a site at a time. Older connections are those that their clients have lost.
constexpr int maxClients = 4;
constexpr int maxWaitingAnswers = 256; // of one connection; a task waits for one at a time

} // namespace

struct DeviceFleet::Device
{
    explicit Device(const SiteDevice &made)
        : info(made.info)
        , state(made.state)
        , isOnline(made.online)
        , simulated(made.info.id, made.parameters)
    {
    }

    vms_sdk::DevInfo info;
    vms_sdk::DevStatus state;
    bool isOnline;
    SimulatedDevice simulated;
    QList<DeviceConnection *> connections; // signed on, the oldest first
};

DeviceFleet::DeviceFleet(const FleetOptions &options, const FaultPlan &faults, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_faults(faults)
    , m_listener(new DeviceListener([this](const QString &path) { return admission(path); }, this))
    , m_onvif(new OnvifSite(options, m_faults, this))
{
    connect(m_listener, &DeviceListener::dialled, this, &DeviceFleet::greet);
    connect(m_listener, &DeviceListener::posted, m_onvif, &OnvifSite::takeOver);
    connect(m_onvif, &OnvifSite::requestReceived, this, &DeviceFleet::requestReceived);
    connect(m_onvif, &OnvifSite::signOnRefused, this, &DeviceFleet::signOnRefused);
    m_devices.reserve(std::size_t(options.devices));
    m_deviceById.reserve(options.devices);
    for (int i = 0; i < options.devices; ++i) {
        m_devices.push_back(std::make_unique<Device>(makeSiteDevice(options.seed, i)));
        m_deviceById.insert(m_devices.back()->info.id, m_devices.back().get());
    }
    const QStringList faultyIds = faults.deviceIds();
    for (const QString &id : faultyIds)
        if (!find(id) && !m_onvif->hasDevice(id))
            qCWarning(fleetLog).noquote()
                << tr("no device is called \"%1\": its faults have no effect").arg(vms_sdk::escaped(id));
}

DeviceFleet::~DeviceFleet() = default;

QString DeviceFleet::start()
{
    QString error = m_listener->start(m_options);
    if (!error.isEmpty())
        return error;
    m_onvif->setServer(m_listener->serverPort(), m_listener->fingerprint());
    return m_options.answersProbes ? (new ProbeResponder(*m_onvif, this))->start() : QString();
}

QString DeviceFleet::address() const
{
    const QString host =
        m_options.listenAddress.isNull() ? QStringLiteral("127.0.0.0/8") : m_options.listenAddress.toString();
    return QStringLiteral("%1:%2").arg(host).arg(m_listener->serverPort());
}

QList<vms_sdk::DevInfo> DeviceFleet::inventory() const
{
    QList<vms_sdk::DevInfo> records;
    records.reserve(int(m_devices.size()));
    for (const auto &device : m_devices)
        records.append(inventoryRecord(*device));
    return records + m_onvif->inventory();
}

vms_sdk::DevInfo DeviceFleet::inventoryRecord(const Device &device) const
{
    vms_sdk::DevInfo record = device.info;
    record.fingerprint = m_listener->fingerprint();
    const bool isSecure = !record.fingerprint.isEmpty();
    const QHostAddress shared =
        hasOwnAddresses(m_options) ? QHostAddress(QHostAddress::LocalHost) : m_options.listenAddress;
    if (record.ip.isEmpty()) {
        record.url = QStringLiteral("%1://%2:%3%4")
                         .arg(isSecure ? QStringLiteral("wss") : QStringLiteral("ws"), shared.toString())
                         .arg(m_listener->serverPort())
                         .arg(record.path);
        return record;
    }
    record.tls = isSecure;
    record.port = m_listener->serverPort();
    if (!hasOwnAddresses(m_options)) {
        record.ip = shared.toString();
        record.ipNumber = shared.toIPv4Address();
    }
    return record;
}

QJsonObject DeviceFleet::dump() const
{
    QJsonObject devices = m_onvif->dump();
    for (const auto &device : m_devices)
        devices.insert(device->info.id, device->simulated.parameters());
    return {{QStringLiteral("devices"), devices}};
}

int DeviceFleet::connectedDevices() const
{
    return int(std::count_if(m_devices.begin(), m_devices.end(),
                             [](const auto &device) { return !device->connections.isEmpty(); }));
}

void DeviceFleet::setFault(const QString &deviceId, const QString &method, const FaultRule &fault)
{
    m_faults.set(deviceId, method, fault);
}

void DeviceFleet::clearFaults()
{
    m_faults.clear();
}

void DeviceFleet::setOnline(const QString &deviceId, bool online)
{
    m_onvif->setOnline(deviceId, online);
    Device *device = find(deviceId);
    if (!device)
        return;
    device->isOnline = online;
    if (online)
        return;
    const QList<DeviceConnection *> connections = device->connections; // a copy: cutting one removes it from the list
    for (DeviceConnection *connection : connections)
        connection->cut();
}

DeviceFleet::Device *DeviceFleet::find(const QString &deviceId) const
{
    return m_deviceById.value(deviceId);
}

Admission DeviceFleet::admission(const QString &path) const
{
    const Device *device = find(path.mid(1));
    if (!device)
        return Admission::Unknown;
    return device->isOnline ? Admission::Welcome : Admission::OffLine;
}

void DeviceFleet::greet(const QString &path, vms_sdk::WebSocketConnection *webSocket)
{
    Device *device = find(path.mid(1));
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

void DeviceFleet::takeOver(Device &device, DeviceConnection *connection)
{
    device.connections.append(connection);
    if (device.connections.size() > maxClients)
        device.connections.constFirst()->cut();
    if (!device.isOnline) // it went offline after the handshake
        connection->cut();
}

void DeviceFleet::handleRequest(Device &device, DeviceConnection &connection, const vms_sdk::DeviceFrame &request)
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
    const auto answer = [connection = &connection, frames = reaction.frames] {
        for (const vms_sdk::DeviceFrame &frame : frames)
            connection->send(frame);
    };
    const auto delay = m_options.latency + reaction.delay;
    if (delay.count() == 0) {
        answer();
        return;
    }
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
    connect(timer, &QTimer::timeout, timer, [timer, answer] {
        answer();
        timer->deleteLater();
    });
    timer->start(delay);
}

} // namespace device_fleet
