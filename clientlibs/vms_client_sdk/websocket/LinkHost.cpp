#include <vms_client_sdk/websocket/LinkHost.h>

#include <vms_client_sdk/websocket/DeviceLink.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <algorithm>

namespace vms_sdk {

namespace {

// For all devices together. Nearly all messages come and go in one piece. But a thousand devices that each hold back
// the end of the largest one, or do not read it, would take a gigabyte.
constexpr qint64 maxKeptBytes = 64 << 20;

} // namespace

LinkHost::LinkHost(const WebSocketOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_timer(this)
    , m_backlog([this] { QMetaObject::invokeMethod(this, &LinkHost::goOnReading, Qt::QueuedConnection); })
{
    m_clock.start();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &LinkHost::checkDeadlines);
}

void LinkHost::setDeadline(DeviceLink *link, std::chrono::milliseconds fromNow)
{
    clearDeadline(link);
    const qint64 deadline = m_clock.elapsed() + fromNow.count();
    m_deadlineOf.insert(link, deadline);
    const auto entry = m_deadlines.emplace(deadline, link).first;
    if (entry == m_deadlines.begin())
        startTimer();
}

void LinkHost::clearDeadline(DeviceLink *link)
{
    const auto known = m_deadlineOf.find(link);
    if (known == m_deadlineOf.end())
        return;
    m_deadlines.erase({*known, link});
    m_deadlineOf.erase(known);
}

void LinkHost::checkDeadlines()
{
    const qint64 now = m_clock.elapsed();
    while (!m_deadlines.empty() && m_deadlines.begin()->first <= now) {
        DeviceLink *link = m_deadlines.begin()->second;
        clearDeadline(link);
        link->deadlineReached();
    }
    startTimer();
}

void LinkHost::startTimer()
{
    if (!m_deadlines.empty())
        m_timer.start(int(qMax<qint64>(0, m_deadlines.begin()->first - m_clock.elapsed())));
}

void LinkHost::queueForDialling(DeviceLink *link, Turn turn)
{
    m_queues.at(std::size_t(turn)).enqueue(link);
    fillPlaces();
}

bool LinkHost::makeRoom(DeviceLink *link)
{
    if (m_waiting.size() >= m_options.maxWaiting)
        return false;
    m_settingUp.remove(link);
    m_waiting.insert(link);
    fillPlaces();
    return true;
}

void LinkHost::leave(DeviceLink *link)
{
    if (m_settingUp.remove(link) || m_waiting.remove(link)) {
        fillPlaces();
        return;
    }
    for (QQueue<DeviceLink *> &queue : m_queues)
        queue.removeOne(link);
}

void LinkHost::holdDialling()
{
    m_isFilling = true;
}

void LinkHost::goOnDialling()
{
    m_isFilling = false;
    fillPlaces();
}

void LinkHost::fillPlaces()
{
    // Dialling can fail at once and come back here: thousands of such failures must not pile up on the stack. A loop
    // and not a posted call: with thousands of sockets one turn of the event loop costs as much as setting up a
    // connection.
    if (std::exchange(m_isFilling, true))
        return;
    while (m_settingUp.size() < m_options.maxSettingUp) {
        QQueue<DeviceLink *> *queue = nextQueue();
        if (!queue)
            break;
        DeviceLink *link = queue->dequeue();
        m_settingUp.insert(link);
        link->dial();
    }
    m_isFilling = false;
}

QQueue<DeviceLink *> *LinkHost::nextQueue()
{
    const auto hasLinks = [](const QQueue<DeviceLink *> &queue) { return !queue.isEmpty(); };
    constexpr quint64 lastComesFirst = 4; // every fourth time, so that the last queue is not left waiting for ever
    if (++m_dialCount % lastComesFirst == 0) {
        const auto last = std::find_if(m_queues.rbegin(), m_queues.rend(), hasLinks);
        return last == m_queues.rend() ? nullptr : &*last;
    }
    const auto first = std::find_if(m_queues.begin(), m_queues.end(), hasLinks);
    return first == m_queues.end() ? nullptr : &*first;
}

void LinkHost::holdReading()
{
    if (!std::exchange(m_isReadingHeld, true))
        emit readingHeld(true);
}

void LinkHost::goOnReading()
{
    if (!m_backlog.isFull() && std::exchange(m_isReadingHeld, false))
        emit readingHeld(false);
}

void LinkHost::setUnfinished(DeviceLink *link, qint64 bytes)
{
    m_unfinished.set(link, bytes);
    while (m_unfinished.isTooMuch())
        m_unfinished.largest()->cut(QStringLiteral("does not finish its message"));
}

void LinkHost::setUnsent(DeviceLink *link, qint64 bytes)
{
    m_unsent.set(link, bytes);
    if (!m_unsent.isTooMuch())
        return;
    const QList<DeviceLink *> links = m_unsent.links();
    for (DeviceLink *known : links) // most devices have taken theirs meanwhile
        m_unsent.set(known, known->unsentBytes());
    while (m_unsent.isTooMuch())
        m_unsent.largest()->cut(QStringLiteral("does not take what is sent to it"));
}

void LinkHost::Kept::set(DeviceLink *link, qint64 bytes)
{
    m_bytes += bytes - m_parts.value(link);
    if (bytes > 0)
        m_parts.insert(link, bytes);
    else
        m_parts.remove(link);
}

bool LinkHost::Kept::isTooMuch() const
{
    return m_bytes > maxKeptBytes;
}

DeviceLink *LinkHost::Kept::largest() const
{
    return std::max_element(m_parts.begin(), m_parts.end()).key();
}

void LinkHost::closeConnection(WebSocketConnection *connection, int closeCode)
{
    connection->setParent(this); // deleted with this object when the thread ends before it is closed
    connect(connection, &WebSocketConnection::finished, connection, &QObject::deleteLater);
    QTimer::singleShot(m_options.closeLimit, connection, [connection] {
        connection->abort(); // closing waits without limit until all is sent
        connection->deleteLater();
    });
    connection->close(closeCode);
    if (connection->isFinished())
        connection->deleteLater();
}

} // namespace vms_sdk
