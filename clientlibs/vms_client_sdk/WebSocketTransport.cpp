#include <vms_client_sdk/WebSocketTransport.h>

#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/websocket/NetworkWorker.h>
#include <vms_client_sdk/websocket/SharedLimits.h>

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <algorithm>

namespace vms_sdk {

struct WebSocketTransport::Shard
{
    QThread thread;
    NetworkWorker *worker; ///< lives in the thread and is deleted there
    QList<DevInfo> devices; ///< only while setDevices() deals them out
    int deviceCount = 0;
    QVector<DeviceRequest> requests; ///< for the end of this turn of the GUI thread
};

WebSocketTransport::WebSocketTransport(QObject *parent, const WebSocketOptions &options)
    : DeviceTransport(parent)
{
    // The room comes back by passedOn(), on this thread.
    m_limits = std::make_unique<SharedLimits>(options, [this] {
        for (const auto &shard : m_shards)
            shard->worker->post([worker = shard->worker] { worker->goOnReading(); });
    });
    addShard();
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &WebSocketTransport::shutdown);
}

WebSocketTransport::~WebSocketTransport()
{
    shutdown();
}

void WebSocketTransport::addShard()
{
    m_shards.push_back(std::make_unique<Shard>());
    Shard &shard = *m_shards.back();
    shard.worker = new NetworkWorker(*m_limits, int(m_shards.size()) - 1);
    shard.worker->moveToThread(&shard.thread);
    connect(&shard.thread, &QThread::finished, shard.worker, &QObject::deleteLater);
    // Direct: whoever listens to a transport queues its signals anyway, and once is enough.
    connect(shard.worker, &NetworkWorker::answered, this, &DeviceTransport::answered, Qt::DirectConnection);
    connect(shard.worker, &NetworkWorker::devStatusChanged, this, &DeviceTransport::devStatusChanged,
            Qt::DirectConnection);
    connect(shard.worker, &NetworkWorker::linkTroubled, this, &DeviceTransport::linkTroubled, Qt::DirectConnection);
    shard.thread.setObjectName(QStringLiteral("vms_sdk net %1").arg(m_shards.size()));
    shard.thread.start();
}

void WebSocketTransport::send(const QString &requestId, const QString &devId, const QString &text)
{
    if (requestId.isEmpty() || requestId.contains(QLatin1Char('\n'))) {
        qCWarning(sdkLog) << "request to" << devId << "dropped: its id is empty or holds a line break";
        return;
    }
    Shard *shard = m_shardOf.value(devId);
    if (!shard) {
        qCDebug(sdkLog) << "request" << requestId << "dropped: device" << devId << "is unknown";
        return;
    }
    // A run asks thousands of devices in one turn of the event loop. Their answers would come in the middle of it, and
    // the network threads would take the processors from it that it needs to end.
    shard->requests.append({requestId, devId, text});
    // Before the drawing that the turn has asked for: the network goes on meanwhile.
    if (!std::exchange(m_hasWaiting, true))
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
}

bool WebSocketTransport::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return DeviceTransport::event(event);
    sendWaiting();
    return true;
}

void WebSocketTransport::sendWaiting()
{
    m_hasWaiting = false;
    for (const auto &shard : m_shards)
        if (!shard->requests.isEmpty())
            shard->worker->post(
                [worker = shard->worker, requests = std::exchange(shard->requests, {})] { worker->send(requests); });
}

void WebSocketTransport::passedOn(const QString &requestId, const QString &text)
{
    m_limits->backlog.passedOn(requestId, text.size());
}

void WebSocketTransport::setDevices(const QList<DevInfo> &devices)
{
    if (m_shards.empty())
        return;
    sendWaiting();
    for (const auto &shard : m_shards)
        shard->deviceCount = 0;
    for (const DevInfo &device : devices)
        if (Shard *shard = m_shardOf.value(device.id))
            ++shard->deviceCount;
    for (const DevInfo &device : devices)
        shardFor(device).devices.append(device);
    m_limits->places.hold(int(m_shards.size())); // released by each when it has ended what is gone
    for (const auto &shard : m_shards)
        shard->worker->post(
            [worker = shard->worker, own = std::exchange(shard->devices, {})] { worker->setDevices(own); });
}

WebSocketTransport::Shard &WebSocketTransport::shardFor(const DevInfo &device)
{
    if (Shard *known = m_shardOf.value(device.id))
        return *known;
    const auto fewest = [this] {
        return std::min_element(m_shards.begin(), m_shards.end(),
                                [](const auto &a, const auto &b) { return a->deviceCount < b->deviceCount; })
            ->get();
    };
    if (fewest()->deviceCount >= m_limits->options.devicesPerThread
        && int(m_shards.size()) < m_limits->options.maxThreads)
        addShard();
    Shard *shard = fewest();
    ++shard->deviceCount;
    m_shardOf.insert(device.id, shard);
    return *shard;
}

void WebSocketTransport::connectAgain()
{
    for (const auto &shard : m_shards)
        shard->worker->post([worker = shard->worker] { worker->connectAgain(); });
}

void WebSocketTransport::connectDevicesAgain(const QStringList &devIds)
{
    for (const auto &shard : m_shards)
        shard->worker->post([=, worker = shard->worker] { worker->connectDevicesAgain(devIds); });
}

void WebSocketTransport::shutdown()
{
    if (m_shards.empty())
        return;
    m_limits->places.hold(1); // for good: nobody is dialled in the going
    m_shardOf.clear();
    for (const auto &shard : m_shards)
        shard->thread.quit();
    for (const auto &shard : m_shards)
        shard->thread.wait();
    m_shards.clear();
}

} // namespace vms_sdk
