#pragma once

#include <vms_client_sdk/WebSocketOptions.h>
#include <vms_client_sdk/websocket/Backlog.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QQueue>
#include <QSet>
#include <QTimer>

#include <array>
#include <set>

namespace vms_sdk {

class DeviceLink;
class WebSocketConnection;

/// What the links of the network thread share: one timer for all their deadlines, the places for connections that are
/// being set up, the memory for what has arrived, and the end of connections that are let go.
class LinkHost : public QObject
{
    Q_OBJECT

public:
    LinkHost(const WebSocketOptions &options, QObject *parent);

    const WebSocketOptions &options() const { return m_options; }

    /// DeviceLink::deadlineReached() is called once, that much later. A link has one deadline; the last one set holds.
    void setDeadline(DeviceLink *link, std::chrono::milliseconds fromNow);
    void clearDeadline(DeviceLink *link);

    /// Who is dialled first when there are more links than places.
    enum class Turn
    {
        New,
        WasOnline, ///< lost, but it has worked before
        HasFailed ///< it never worked, or did what it may not
    };
    /// DeviceLink::dial() is called as soon as one of the places is free, maybe from inside this call; the link keeps
    /// it until leave() or makeRoom().
    void queueForDialling(DeviceLink *link, Turn turn);
    /// The link's line is up, and it only waits for the device: somebody else may be dialled meanwhile.
    /// @return false when too many wait already: the link keeps its place
    bool makeRoom(DeviceLink *link);
    /// Gives up the place, or the place in the queue.
    void leave(DeviceLink *link);
    /// Nobody is dialled before goOnDialling(): for whoever ends many links, which would leave their places to each
    /// other.
    void holdDialling();
    void goOnDialling();

    Backlog &backlog() { return m_backlog; }
    /// While the GUI thread is behind, no link reads.
    bool isReadingHeld() const { return m_isReadingHeld; }
    void holdReading();

    /// What a link keeps of a message that is not finished, or what its device has not taken yet; 0: nothing. Cuts the
    /// links with the most when all links together keep too much.
    void setUnfinished(DeviceLink *link, qint64 bytes);
    void setUnsent(DeviceLink *link, qint64 bytes);

    /// Takes over a connection that nobody listens to any more: closes it, cuts it off if that takes too long, deletes
    /// it.
    void closeConnection(WebSocketConnection *connection, int closeCode);

signals:
    void readingHeld(bool isHeld);

private:
    /// Memory that links keep for their devices.
    class Kept
    {
    public:
        void set(DeviceLink *link, qint64 bytes);
        bool isTooMuch() const;
        DeviceLink *largest() const; ///< only while there is one
        QList<DeviceLink *> links() const { return m_parts.keys(); }

    private:
        QHash<DeviceLink *, qint64> m_parts;
        qint64 m_bytes = 0;
    };

    void checkDeadlines();
    void startTimer();
    void fillPlaces();
    QQueue<DeviceLink *> *nextQueue(); ///< null: all are empty
    void goOnReading();

    WebSocketOptions m_options;
    QElapsedTimer m_clock;
    QTimer m_timer;
    std::set<std::pair<qint64, DeviceLink *>> m_deadlines;
    QHash<DeviceLink *, qint64> m_deadlineOf;
    std::array<QQueue<DeviceLink *>, 3> m_queues; ///< by Turn
    QSet<DeviceLink *> m_settingUp;
    QSet<DeviceLink *> m_waiting; ///< for a device's handshake and sign-on, having made room
    bool m_isFilling = false;
    quint64 m_dialCount = 0;
    Backlog m_backlog;
    bool m_isReadingHeld = false;
    Kept m_unfinished;
    Kept m_unsent;
};

} // namespace vms_sdk
