#pragma once

#include <vms_client_sdk/Backlog.h>
#include <vms_client_sdk/WebSocketOptions.h>

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
/// being set up, the limits of memory, and the closing of connections.
class LinkHost : public QObject
{
    Q_OBJECT

public:
    LinkHost(const WebSocketOptions &options, QObject *parent);

    const WebSocketOptions &options() const { return m_options; }

    /// Calls DeviceLink::deadlineReached() once, after this time. A link has one deadline: a new one replaces it.
    void setDeadline(DeviceLink *link, std::chrono::milliseconds fromNow);
    void clearDeadline(DeviceLink *link);

    /// Which links are dialled first when there are more links than places.
    enum class Turn
    {
        New,
        WasOnline, ///< lost, but it has worked before
        HasFailed ///< it has never worked, or was cut for exceeding its limits
    };
    /// Calls DeviceLink::dial() as soon as a place is free, perhaps from inside this call. The link keeps the place
    /// until leave() or makeRoom().
    void queueForDialling(DeviceLink *link, Turn turn);
    /// Gives the place to another link, because this one is connected and only waits for its device.
    /// @return false when too many wait in this way already: the link keeps its place
    bool makeRoom(DeviceLink *link);
    /// Gives up the place, or the place in the queue.
    void leave(DeviceLink *link);
    /// No link is dialled until goOnDialling(). Used to end many links: each would else hand its place to one that is
    /// to be ended next.
    void holdDialling();
    void goOnDialling();

    Backlog &backlog() { return m_backlog; }
    /// While the GUI thread is behind, no link reads.
    bool isReadingHeld() const { return m_isReadingHeld; }
    void holdReading();

    /// How much memory a link uses for a message that is not finished, or for what its device has not taken yet. When
    /// all links together use too much, those with the most are cut.
    void setUnfinished(DeviceLink *link, qint64 bytes);
    void setUnsent(DeviceLink *link, qint64 bytes);

    /// Takes over a connection that nobody listens to any more: closes it, aborts it if that takes too long, and
    /// deletes it.
    void closeConnection(WebSocketConnection *connection, int closeCode);

Q_SIGNALS:
    void readingHeld(bool isHeld);

private:
    /// Memory that links use for their devices.
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
    QSet<DeviceLink *> m_waiting; ///< for their devices' sign-on, after makeRoom()
    bool m_isFilling = false;
    quint64 m_dialCount = 0;
    Backlog m_backlog;
    bool m_isReadingHeld = false;
    Kept m_unfinished;
    Kept m_unsent;
};

} // namespace vms_sdk
