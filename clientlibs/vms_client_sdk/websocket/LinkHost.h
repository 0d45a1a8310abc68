#pragma once

#include "../WebSocketOptions.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QQueue>
#include <QSet>
#include <QTimer>
#include <set>

class QWebSocket;

namespace vms_sdk {

class DeviceLink;

/// What the links of the network thread share: one timer for all their deadlines, the places for connections that are
/// being set up, and the end of sockets that are let go.
class LinkHost : public QObject
{
    Q_OBJECT

public:
    LinkHost(const WebSocketOptions &options, QObject *parent);

    const WebSocketOptions &options() const { return m_options; }

    /// DeviceLink::deadlineReached() is called once, that much later. A link has one deadline; the last one set holds.
    void setDeadline(DeviceLink *link, std::chrono::milliseconds fromNow);
    void clearDeadline(DeviceLink *link);

    /// DeviceLink::dial() is called as soon as one of the places is free, maybe from inside this call; the link keeps
    /// it until leave().
    void queueForDialling(DeviceLink *link);
    /// Gives up the place, or the place in the queue.
    void leave(DeviceLink *link);

    /// Nobody is dialled before goOnDialling(): for whoever ends many links, which would leave their places to each
    /// other.
    void holdDialling();
    void goOnDialling();

    /// Takes over a socket that nobody listens to any more: closes it, cuts it off if that takes too long, deletes it.
    void closeSocket(QWebSocket *socket, int closeCode);

private:
    void checkDeadlines();
    void startTimer();
    void fillPlaces();

    WebSocketOptions m_options;
    QElapsedTimer m_clock;
    QTimer m_timer;
    std::set<std::pair<qint64, DeviceLink *>> m_deadlines;
    QHash<DeviceLink *, qint64> m_deadlineOf;
    QQueue<DeviceLink *> m_queue;
    QSet<DeviceLink *> m_settingUp;
    bool m_isFilling = false;
};

} // namespace vms_sdk
