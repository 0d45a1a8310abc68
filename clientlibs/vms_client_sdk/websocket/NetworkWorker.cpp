#include <vms_client_sdk/websocket/NetworkWorker.h>

#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/websocket/DeviceLink.h>
#include <vms_client_sdk/websocket/LinkHost.h>

#include <utility>

namespace vms_sdk {

NetworkWorker::NetworkWorker(SharedLimits &shared, int number)
    : m_calls(new PostedCalls(this))
    , m_states(new StatusRelay(this))
    , m_host(new LinkHost(shared, number, this))
{
    connect(m_states, &StatusRelay::devStatusChanged, this, &NetworkWorker::devStatusChanged);
    connect(m_states, &StatusRelay::linkTroubled, this, &NetworkWorker::linkTroubled);
    connect(m_host, &LinkHost::readingHeld, this, [this](bool isHeld) { setReading(!isHeld); });
}

NetworkWorker::~NetworkWorker() = default;

void NetworkWorker::setDevices(const QList<DevInfo> &devices)
{
    Links previous = std::exchange(m_links, {});
    for (const DevInfo &device : devices) {
        const auto known = previous.find(device.id);
        if (known != previous.end() && known->second->device() == device)
            m_links.insert(previous.extract(known));
    }
    for (const auto &[id, link] : previous)
        link->end();
    previous.clear();
    m_host->releaseDialling();
    for (const DevInfo &device : devices) {
        std::unique_ptr<DeviceLink> &link = m_links[device.id];
        if (!link) {
            link = makeLink(device);
            link->start();
        }
    }
}

std::unique_ptr<DeviceLink> NetworkWorker::makeLink(const DevInfo &device)
{
    auto link = std::make_unique<DeviceLink>(device, *m_host);
    connect(link.get(), &DeviceLink::answered, this, &NetworkWorker::answered);
    connect(link.get(), &DeviceLink::statusChanged, m_states, &StatusRelay::add);
    return link;
}

void NetworkWorker::setReading(bool isReading)
{
    // What a link reads here may make all links stop reading again.
    for (const auto &[id, link] : m_links)
        link->setReading(isReading && !m_host->isReadingHeld());
}

void NetworkWorker::goOnReading()
{
    m_host->goOnReading();
}

void NetworkWorker::connectAgain()
{
    for (const auto &[id, link] : m_links)
        link->connectAgain();
}

void NetworkWorker::connectDevicesAgain(const QStringList &devIds)
{
    for (const QString &devId : devIds) {
        const auto known = m_links.find(devId);
        if (known != m_links.end())
            known->second->dialNow();
    }
}

void NetworkWorker::send(const QVector<DeviceRequest> &requests)
{
    for (const DeviceRequest &request : requests) {
        const auto known = m_links.find(request.devId);
        if (known != m_links.end())
            known->second->send(request.requestId, request.text);
        else
            qCDebug(sdkLog) << "request" << request.requestId << "dropped: device" << request.devId << "is unknown";
    }
}

} // namespace vms_sdk
