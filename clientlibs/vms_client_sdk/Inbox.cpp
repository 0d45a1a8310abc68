#include "Inbox.h"

#include <QElapsedTimer>
#include <QPointer>

#include <chrono>

namespace vms_sdk {

namespace {

// About half a frame of a 60 Hz display.
constexpr qint64 sliceMs = 8;

} // namespace

Inbox::Inbox(std::function<void(const Item &)> consumer)
    : m_consumer(std::move(consumer))
{
    m_next.setSingleShot(true);
    m_next.setInterval(std::chrono::milliseconds(0));
    connect(&m_next, &QTimer::timeout, this, &Inbox::passOn);
}

void Inbox::put(Item item)
{
    const QMutexLocker lock(&m_mutex);
    m_arrived.push_back(std::move(item));
    if (m_arrived.size() == 1)
        QMetaObject::invokeMethod(this, &Inbox::wakeUp, Qt::QueuedConnection);
}

void Inbox::wakeUp()
{
    if (!m_next.isActive())
        m_next.start();
}

bool Inbox::takeArrived()
{
    const QMutexLocker lock(&m_mutex);
    m_items.swap(m_arrived);
    return !m_items.empty();
}

void Inbox::passOn()
{
    const QPointer<Inbox> self(this);
    QElapsedTimer slice;
    slice.start();
    while (!m_items.empty() || takeArrived()) {
        wakeUp(); // before the consumer, which may not come back for a while
        if (slice.elapsed() >= sliceMs)
            return;
        const Item item = std::move(m_items.front());
        m_items.pop_front();
        m_consumer(item);
        if (!self)
            return;
    }
    m_next.stop();
}

} // namespace vms_sdk
