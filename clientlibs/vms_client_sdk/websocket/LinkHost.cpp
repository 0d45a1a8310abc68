#include <vms_client_sdk/websocket/LinkHost.h>

#include <vms_client_sdk/websocket/DeviceLink.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <QThread>

#include <utility>

namespace vms_sdk {

LinkHost::LinkHost(SharedLimits &shared, int number, QObject *parent)
    : QObject(parent)
    , m_shared(shared)
    , m_number(number)
    , m_timer(this)
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

void LinkHost::queueForDialling(DeviceLink *link, DialPlaces::Turn turn)
{
    m_shared.places.queue(this, link, turn);
    dialWhoseTurnItIs();
}

bool LinkHost::makeRoom(DeviceLink *link)
{
    const bool hasRoom = m_shared.places.makeRoom(link);
    dialWhoseTurnItIs();
    return hasRoom;
}

void LinkHost::leave(DeviceLink *link)
{
    m_shared.places.leave(this, link);
    dialWhoseTurnItIs();
}

void LinkHost::releaseDialling()
{
    m_shared.places.release();
    dialWhoseTurnItIs();
}

void LinkHost::dialWhoseTurnItIs()
{
    // Dialling can fail at once and come back here: thousands of such failures must not pile up on the stack. A loop
    // and not a posted call: with many sockets one turn of the event loop costs as much as setting up a connection.
    if (std::exchange(m_isDialling, true))
        return;
    while (DeviceLink *link = m_shared.places.takeTurn(this))
        link->dial();
    m_isDialling = false;
}

void LinkHost::wake()
{
    if (QThread::currentThread() != thread())
        QMetaObject::invokeMethod(this, &LinkHost::catchUp, Qt::QueuedConnection);
}

void LinkHost::catchUp()
{
    cutWhatIsTooLarge();
    dialWhoseTurnItIs();
}

void LinkHost::holdReading()
{
    if (!std::exchange(m_isReadingHeld, true))
        emit readingHeld(true);
}

void LinkHost::goOnReading()
{
    if (!m_shared.backlog.isFull() && std::exchange(m_isReadingHeld, false))
        emit readingHeld(false);
}

void LinkHost::setUnfinished(DeviceLink *link, qint64 bytes)
{
    m_shared.unfinished.set(this, link, bytes);
    cutWhatIsTooLarge();
}

void LinkHost::setUnsent(DeviceLink *link, qint64 bytes)
{
    m_shared.unsent.set(this, link, bytes);
    cutWhatIsTooLarge();
}

void LinkHost::cutWhatIsTooLarge()
{
    if (std::exchange(m_isCutting, true)) // a link that is cut comes back here
        return;
    while (DeviceLink *link = m_shared.unfinished.takeTooLarge(this))
        link->cut(QStringLiteral("does not finish its message"));
    while (DeviceLink *link = m_shared.unsent.takeTooLarge(this))
        link->cut(QStringLiteral("does not take what is sent to it"));
    m_isCutting = false;
}

void LinkHost::closeConnection(WebSocketConnection *connection, int closeCode)
{
    connection->setParent(this); // deleted with this object when the thread ends before it is closed
    connect(connection, &WebSocketConnection::finished, connection, &QObject::deleteLater);
    QTimer::singleShot(options().closeLimit, connection, [connection] {
        connection->abort(); // closing waits without limit until all is sent
        connection->deleteLater();
    });
    connection->close(closeCode);
    if (connection->isFinished())
        connection->deleteLater();
}

} // namespace vms_sdk
