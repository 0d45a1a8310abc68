#include <vms_client_sdk/onvif/OnvifHost.h>

#include <vms_client_sdk/onvif/OnvifLink.h>
#include <vms_client_sdk/onvif/OnvifRequest.h>

#include <algorithm>
#include <utility>

namespace vms_sdk {

namespace {

// Of the answers that requests hold while they wait for the next ones. Read, these take eight times the memory. A
// request to most cameras holds under 50 KiB.
constexpr qint64 maxHeld = 24 << 20;

} // namespace

OnvifHost::OnvifHost(const OnvifOptions &options, Backlog &backlog, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_backlog(backlog)
{
}

void OnvifHost::queueForSignOn(OnvifLink *link, bool hasFailed)
{
    (hasFailed ? m_failed : m_queue).enqueue(link);
    fillLater();
}

void OnvifHost::leave(OnvifLink *link)
{
    m_queue.removeOne(link);
    m_failed.removeOne(link);
    if (m_signingOn.remove(link))
        fillLater();
}

OnvifHost::Place OnvifHost::takePlace()
{
    ++m_requests;
    return {nullptr, [this](void *) {
                --m_requests;
                if (!std::exchange(m_willTell, true))
                    QMetaObject::invokeMethod(
                        this,
                        [this] {
                            m_willTell = false;
                            emit placeFree();
                        },
                        Qt::QueuedConnection);
            }};
}

void OnvifHost::hold(OnvifRequest *request, qint64 bytes)
{
    if (!request)
        return;
    m_held[request] += bytes;
    m_heldInAll += bytes;
    if (m_heldInAll <= maxHeld)
        return;
    const auto most = std::max_element(m_held.cbegin(), m_held.cend());
    static_cast<OnvifRequest *>(most.key())->endNow(QStringLiteral("its answers are the longest of too many at once"));
}

void OnvifHost::release(QObject *request)
{
    m_heldInAll -= m_held.take(request);
}

void OnvifHost::fillLater()
{
    // Not at once: the caller may be about to end many links, each of which would hand its place to the next.
    if (!std::exchange(m_willFill, true))
        QMetaObject::invokeMethod(this, &OnvifHost::fillPlaces, Qt::QueuedConnection);
}

void OnvifHost::fillPlaces()
{
    m_willFill = false;
    while (m_signingOn.size() < m_options.maxSigningOn && !(m_queue.isEmpty() && m_failed.isEmpty())) {
        OnvifLink *link = (m_queue.isEmpty() ? m_failed : m_queue).dequeue();
        m_signingOn.insert(link);
        link->signOn();
    }
}

} // namespace vms_sdk
