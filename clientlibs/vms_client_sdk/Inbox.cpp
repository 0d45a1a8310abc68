#include <vms_client_sdk/Inbox.h>

#include <QElapsedTimer>
#include <QPointer>

#include <utility>

namespace vms_sdk {

namespace {

// About half a frame of a 60 Hz display.
constexpr qint64 sliceMs = 8;
constexpr int statusDelayMs = 10; // how long a status change waits for others
constexpr int maxStatusWaits = 4; // while others keep coming

} // namespace

Inbox::Inbox(std::function<void(const Item &)> consumer)
    : m_consumer(std::move(consumer))
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &Inbox::passOnWhenQuiet);
}

void Inbox::put(Item item)
{
    const std::lock_guard lock(m_mutex);
    const bool isUrgent = std::holds_alternative<Answer>(item);
    m_arrived.push_back(std::move(item));
    ++m_put;
    if (m_arrived.size() > 1 && (m_isUrgent || !isUrgent))
        return; // the GUI thread has been told already
    m_isUrgent = isUrgent;
    QMetaObject::invokeMethod(this, &Inbox::noticeArrived, Qt::QueuedConnection);
}

void Inbox::noticeArrived()
{
    std::unique_lock lock(m_mutex);
    const bool isUrgent = m_isUrgent;
    m_putBefore = m_put;
    lock.unlock();
    wakeUp(isUrgent);
}

void Inbox::wakeUp(bool isUrgent)
{
    if (!m_next.isActive() || (isUrgent && m_next.interval() > 0))
        m_next.start(isUrgent ? 0 : statusDelayMs);
}

quint64 Inbox::putCount()
{
    const std::lock_guard lock(m_mutex);
    return m_put;
}

void Inbox::passOnWhenQuiet()
{
    if (m_next.interval() > 0 && hasMoreToWaitFor())
        return m_next.start(statusDelayMs);
    m_waits = 0;
    passOn();
}

bool Inbox::hasMoreToWaitFor()
{
    const std::lock_guard lock(m_mutex);
    return !m_isUrgent && std::exchange(m_putBefore, m_put) != m_put && ++m_waits < maxStatusWaits;
}

bool Inbox::takeArrived()
{
    const std::lock_guard lock(m_mutex);
    m_items.swap(m_arrived);
    m_isUrgent = false;
    return !m_items.empty();
}

void Inbox::passOn()
{
    const QPointer<Inbox> self(this);
    QElapsedTimer slice;
    slice.start();
    while (!m_items.empty() || takeArrived()) {
        wakeUp(true); // before the consumer, which may run an event loop of its own
        if (slice.elapsed() >= sliceMs)
            return;
        const Item item = std::move(m_items.front());
        m_items.pop_front();
        ++m_passedOn;
        m_consumer(item);
        if (!self)
            return;
    }
    m_next.stop();
}

} // namespace vms_sdk
