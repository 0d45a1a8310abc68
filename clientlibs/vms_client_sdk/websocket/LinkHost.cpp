#include "LinkHost.h"

#include "DeviceLink.h"

#include <QWebSocket>

namespace vms_sdk {

LinkHost::LinkHost(const WebSocketOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
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

void LinkHost::queueForDialling(DeviceLink *link)
{
    m_queue.enqueue(link);
    fillPlaces();
}

void LinkHost::leave(DeviceLink *link)
{
    if (m_settingUp.remove(link))
        fillPlaces();
    else
        m_queue.removeOne(link);
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
    // Dialling can fail at once and leave its place again: thousands of such failures must not pile up on the stack.
    // Not posted: with thousands of sockets each further turn of the event loop costs as much as a connection.
    if (std::exchange(m_isFilling, true))
        return;
    while (m_settingUp.size() < m_options.maxSettingUp && !m_queue.isEmpty()) {
        DeviceLink *link = m_queue.dequeue();
        m_settingUp.insert(link);
        link->dial();
    }
    m_isFilling = false;
}

void LinkHost::closeSocket(QWebSocket *socket, int closeCode)
{
    socket->setParent(this); // what is still closing when the thread ends goes with it
    if (socket->state() != QAbstractSocket::ConnectedState) {
        socket->abort();
        socket->deleteLater();
        return;
    }
    connect(socket, &QWebSocket::disconnected, socket, &QObject::deleteLater);
    QTimer::singleShot(m_options.closeLimit, socket, [socket] {
        socket->abort(); // close() drains what is unsent, without a limit of its own
        socket->deleteLater();
    });
    socket->close(QWebSocketProtocol::CloseCode(closeCode));
}

} // namespace vms_sdk
