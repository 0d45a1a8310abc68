#include <vms_client_sdk/onvif/OnvifWorker.h>

#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/onvif/OnvifHost.h>
#include <vms_client_sdk/onvif/OnvifLink.h>
#include <vms_client_sdk/onvif/OnvifRequest.h>

#include <algorithm>
#include <utility>

namespace vms_sdk {

namespace {

// So long before the waiting time is over a request ends: its answer, which says what was written, still counts. Of
// short waiting times it is a quarter.
constexpr std::chrono::milliseconds answerMargin{2'000};

} // namespace

OnvifWorker::OnvifWorker(const OnvifOptions &options)
    : m_options(options)
    , m_backlog([this] { QMetaObject::invokeMethod(this, &OnvifWorker::beginRequests, Qt::QueuedConnection); })
    , m_states(new StatusRelay(this))
{
    connect(m_states, &StatusRelay::devStatusChanged, this, &OnvifWorker::devStatusChanged);
    connect(m_states, &StatusRelay::linkTroubled, this, &OnvifWorker::linkTroubled);
}

OnvifWorker::~OnvifWorker() = default;

void OnvifWorker::setDevices(const QList<DevInfo> &devices)
{
    if (!m_host) {
        m_host = new OnvifHost(m_options, m_backlog, this);
        connect(m_host, &OnvifHost::placeFree, this, &OnvifWorker::beginRequests);
    }
    Links previous = std::exchange(m_links, {});
    for (const DevInfo &device : devices) {
        const auto known = previous.find(device.id);
        if (known != previous.end() && known->second->takeOver(device))
            m_links.insert(previous.extract(known));
    }
    for (const auto &[id, link] : previous)
        link->end();
    previous.clear();
    for (const DevInfo &device : devices) {
        std::unique_ptr<OnvifLink> &link = m_links[device.id];
        if (!link) {
            link = makeLink(device);
            link->start();
        }
    }
}

std::unique_ptr<OnvifLink> OnvifWorker::makeLink(const DevInfo &device)
{
    auto link = std::make_unique<OnvifLink>(device, *m_host);
    connect(link.get(), &OnvifLink::answered, this, &OnvifWorker::answered);
    connect(link.get(), &OnvifLink::identified, this, &OnvifWorker::identified);
    connect(link.get(), &OnvifLink::statusChanged, m_states, &StatusRelay::add);
    return link;
}

void OnvifWorker::connectAgain()
{
    for (const auto &[id, link] : m_links)
        link->connectAgain();
}

void OnvifWorker::connectDevicesAgain(const QStringList &devIds)
{
    for (const QString &devId : devIds) {
        const auto known = m_links.find(devId);
        if (known != m_links.end())
            known->second->connectNow();
    }
}

void OnvifWorker::passedOn(const QString &requestId, int characters)
{
    m_backlog.passedOn(requestId, characters);
}

void OnvifWorker::setRequestTimeout(std::chrono::milliseconds timeout)
{
    const std::lock_guard lock(m_mutex);
    m_requestTimeout = timeout;
}

void OnvifWorker::send(const QString &requestId, const QString &devId, const QString &text)
{
    const std::lock_guard lock(m_mutex);
    m_requests.append({requestId, devId, text, m_requestTimeout - qMin(answerMargin, m_requestTimeout / 4)});
    if (m_requests.size() == 1)
        QMetaObject::invokeMethod(this, &OnvifWorker::takeRequests, Qt::QueuedConnection);
}

void OnvifWorker::timedOut(const QString &requestId)
{
    const std::lock_guard lock(m_mutex);
    m_timedOut.insert(requestId);
    if (m_timedOut.size() == 1)
        QMetaObject::invokeMethod(this, &OnvifWorker::takeRequests, Qt::QueuedConnection);
}

void OnvifWorker::takeRequests()
{
    std::unique_lock lock(m_mutex);
    const QVector<Request> requests = std::exchange(m_requests, {});
    const QSet<QString> timedOut = std::exchange(m_timedOut, {});
    lock.unlock();
    for (const Request &request : requests)
        (OnvifRequest::isWrite(request.text) ? m_writes : m_reads).push_back(request);
    if (!timedOut.isEmpty()) {
        const auto isTimedOut = [&](const Request &request) { return timedOut.contains(request.requestId); };
        for (std::deque<Request> *queue : {&m_writes, &m_reads})
            queue->erase(std::remove_if(queue->begin(), queue->end(), isTimedOut), queue->end());
        for (const auto &[id, link] : m_links)
            link->endTimedOut(timedOut);
    }
    beginRequests();
}

void OnvifWorker::beginRequests()
{
    // Not before the window has caught up with the answers that wait for it.
    while (!(m_writes.empty() && m_reads.empty()) && m_host && m_host->hasPlace() && !m_backlog.isFull()) {
        std::deque<Request> &queue = m_writes.empty() ? m_reads : m_writes;
        const Request request = std::move(queue.front());
        queue.pop_front();
        const auto known = m_links.find(request.devId);
        if (known != m_links.end())
            known->second->send(request.requestId, request.text, request.limit);
        else
            qCDebug(sdkLog) << "request" << request.requestId << "dropped: device" << request.devId << "is unknown";
    }
}

} // namespace vms_sdk
