#include "fleet/DeviceFleet.h"

#include "fleet/DeviceListener.h"
#include "fleet/FleetShard.h"
#include "fleet/Logging.h"
#include "fleet/Site.h"
#include "fleet/ThreadCall.h"
#include "fleet/onvif/OnvifSite.h"
#include "fleet/onvif/ProbeResponder.h"

#include <vms_client_sdk/ForeignText.h>

#include <QTcpSocket>
#include <QThread>

#include <algorithm>

namespace device_fleet {

namespace {

// Each turn of a thread's event loop costs about as much as its sockets, but several threads have more turns than one,
// which finds more to do in each of them.
constexpr int maxShards = 8;

} // namespace

DeviceFleet::DeviceFleet(const FleetOptions &options, const FaultPlan &faults, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_faults(faults)
    , m_listener(new DeviceListener([this](const QString &path) { return m_shardById.contains(path.mid(1)); }, this))
    , m_onvif(new OnvifSite(options, m_faults, this))
{
    connect(m_listener, &DeviceListener::dialled, this, &DeviceFleet::handOver);
    connect(m_listener, &DeviceListener::posted, m_onvif, &OnvifSite::takeOver);
    connect(m_onvif, &OnvifSite::requestReceived, this, &DeviceFleet::requestReceived);
    connect(m_onvif, &OnvifSite::signOnRefused, this, &DeviceFleet::signOnRefused);
    makeShards();
    makeDevices();
    for (const auto &thread : m_threads)
        thread->start();
    const QStringList faultyIds = faults.deviceIds();
    for (const QString &id : faultyIds)
        if (!m_shardById.contains(id) && !m_onvif->hasDevice(id))
            qCWarning(fleetLog).noquote()
                << tr("no device is called \"%1\": its faults have no effect").arg(vms_sdk::escaped(id));
}

DeviceFleet::~DeviceFleet()
{
    for (const auto &thread : m_threads)
        thread->quit();
    for (const auto &thread : m_threads)
        thread->wait();
}

void DeviceFleet::makeShards()
{
    const int perThread = m_options.devicesPerThread;
    const int shards = qBound(1, (m_options.devices + perThread - 1) / perThread, maxShards);
    for (int number = 1; number <= shards; ++number) {
        auto *shard = new FleetShard(m_options, m_faults);
        connect(shard, &FleetShard::requestReceived, this, &DeviceFleet::requestReceived, Qt::DirectConnection);
        m_shards.push_back(shard);
        if (shards == 1) {
            shard->setParent(this);
            break;
        }
        m_threads.push_back(std::make_unique<QThread>());
        QThread *thread = m_threads.back().get();
        thread->setObjectName(QStringLiteral("fleet %1").arg(number));
        shard->moveToThread(thread);
        connect(thread, &QThread::finished, shard, &QObject::deleteLater);
    }
}

void DeviceFleet::makeDevices()
{
    m_records.reserve(std::size_t(m_options.devices));
    m_shardById.reserve(m_options.devices);
    for (int i = 0; i < m_options.devices; ++i) {
        // Neighbours together: clients dial in the order of the inventory, and a turn of an event loop costs by all
        // sockets of its thread, so that few threads should have to do with those that are dialled.
        FleetShard *shard = m_shards[std::size_t(i) * m_shards.size() / std::size_t(m_options.devices)];
        m_records.push_back(&shard->add(makeSiteDevice(m_options.seed, i)));
        m_shardById.insert(m_records.back()->id, shard);
    }
}

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
    records.reserve(int(m_records.size()));
    for (const vms_sdk::DevInfo *device : m_records)
        records.append(inventoryRecord(*device));
    return records + m_onvif->inventory();
}

vms_sdk::DevInfo DeviceFleet::inventoryRecord(const vms_sdk::DevInfo &device) const
{
    vms_sdk::DevInfo record = device;
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

void DeviceFleet::handOver(const QString &path, QTcpSocket *socket, const vms_sdk::HttpHead &head)
{
    const QString id = path.mid(1);
    FleetShard *shard = m_shardById.value(id);
    socket->setParent(nullptr);
    socket->moveToThread(shard->thread());
    shard->handOver(id, std::unique_ptr<QTcpSocket>(socket), head);
}

void DeviceFleet::onEachShard(const std::function<void(FleetShard &)> &function) const
{
    for (FleetShard *shard : m_shards)
        callOnThreadOf(shard, [shard, &function] { function(*shard); });
}

QJsonObject DeviceFleet::dump() const
{
    QJsonObject devices = m_onvif->dump();
    onEachShard([&devices](FleetShard &shard) { shard.dumpTo(&devices); });
    return {{QStringLiteral("devices"), devices}};
}

int DeviceFleet::connectedDevices() const
{
    int count = 0;
    onEachShard([&count](FleetShard &shard) { count += shard.connectedDevices(); });
    return count;
}

void DeviceFleet::setFault(const QString &deviceId, const QString &method, const FaultRule &fault)
{
    m_faults.set(deviceId, method, fault);
    onEachShard([&](FleetShard &shard) { shard.setFault(deviceId, method, fault); });
}

void DeviceFleet::clearFaults()
{
    m_faults.clear();
    onEachShard([](FleetShard &shard) { shard.clearFaults(); });
}

void DeviceFleet::setOnline(const QString &deviceId, bool online)
{
    m_onvif->setOnline(deviceId, online);
    if (FleetShard *shard = m_shardById.value(deviceId))
        callOnThreadOf(shard, [&] { shard->setOnline(deviceId, online); });
}

} // namespace device_fleet
