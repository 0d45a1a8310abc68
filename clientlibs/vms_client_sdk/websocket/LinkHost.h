#pragma once

#include <vms_client_sdk/websocket/SharedLimits.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <set>

namespace vms_sdk {

class DeviceLink;
class WebSocketConnection;

/// What the links of one network thread share: one timer for all their deadlines, the closing of connections, and their
/// way to the limits that they share with the links of other threads.
class LinkHost : public QObject
{
    Q_OBJECT

public:
    /// @param number of its thread, from 0
    LinkHost(SharedLimits &shared, int number, QObject *parent);

    int number() const { return m_number; }
    const WebSocketOptions &options() const { return m_shared.options; }
    Backlog &backlog() { return m_shared.backlog; }

    /// Calls DeviceLink::deadlineReached() once, after this time. A link has one deadline: a new one replaces it.
    void setDeadline(DeviceLink *link, std::chrono::milliseconds fromNow);
    void clearDeadline(DeviceLink *link);

    /// Calls DeviceLink::dial() as soon as a place is free, perhaps from inside this call. The link keeps the place
    /// until leave() or makeRoom().
    void queueForDialling(DeviceLink *link, DialPlaces::Turn turn);
    /// @return false: the link keeps its place
    bool makeRoom(DeviceLink *link);
    /// Gives up the place, or the place in the queue.
    void leave(DeviceLink *link);
    /// Ends one hold of the places.
    void releaseDialling();

    /// While the GUI thread is behind, no link reads.
    bool isReadingHeld() const { return m_isReadingHeld; }
    void holdReading();
    void goOnReading(); ///< if there is room now

    /// How much memory a link uses for a message that is not finished, or for what its device has not taken yet. When
    /// all links together use too much, those with the most are cut.
    void setUnfinished(DeviceLink *link, qint64 bytes);
    void setUnsent(DeviceLink *link, qint64 bytes);

    /// A link of this host has got a place, or is to be cut: the host looks for it soon. From any thread; does nothing
    /// on the host's own, which looks anyway.
    void wake();

    /// Takes over a connection that nobody listens to any more: closes it, aborts it if that takes too long, and
    /// deletes it.
    void closeConnection(WebSocketConnection *connection, int closeCode);

Q_SIGNALS:
    void readingHeld(bool isHeld);

private:
    void checkDeadlines();
    void startTimer();
    void catchUp();
    void dialWhoseTurnItIs();
    void cutWhatIsTooLarge();

    SharedLimits &m_shared;
    const int m_number;
    QElapsedTimer m_clock;
    QTimer m_timer;
    std::set<std::pair<qint64, DeviceLink *>> m_deadlines;
    QHash<DeviceLink *, qint64> m_deadlineOf;
    bool m_isDialling = false;
    bool m_isCutting = false;
    bool m_isReadingHeld = false;
};

} // namespace vms_sdk
