#pragma once

#include <QHash>
#include <QQueue>
#include <QSet>

#include <array>
#include <map>
#include <mutex>
#include <utility>

namespace vms_sdk {

class DeviceLink;
class LinkHost;

/// The places for connections that are being set up, for the links of all network threads together: whose turn it is
/// does not depend on the thread. Knows the links as names only. Thread-safe.
class DialPlaces
{
public:
    /// @param maxSettingUp, maxWaiting as in WebSocketOptions
    DialPlaces(int maxSettingUp, int maxWaiting);

    /// Which links are dialled first when there are more links than places; among their like those who came first.
    enum class Turn
    {
        /// Thread by thread, and in a thread as they came, so that few threads go through all their sockets for them.
        /// Devices that a site gets later may so be dialled before older ones of the next thread.
        New,
        WasOnline, ///< lost, but it has worked before
        HasFailed ///< it has never worked, or was cut for exceeding its limits
    };
    // Whoever gets a place by one of these on another thread is woken (LinkHost::wake); the caller asks takeTurn().
    void queue(LinkHost *host, DeviceLink *link, Turn turn);
    /// The link is connected and only waits for its device: another one gets its place.
    /// @return false when too many wait in this way already: the link keeps its place
    bool makeRoom(DeviceLink *link);
    /// Gives up the place, or the place in the queue. The link is not mentioned after it.
    void leave(LinkHost *host, DeviceLink *link);

    /// A link of this host that has got a place and is to be dialled now; null: none, or dialling is held.
    DeviceLink *takeTurn(LinkHost *host);

    /// Nobody is dialled until release() was called as often as hold() asks for. Used to end many links: each would
    /// else hand its place to one that is to be ended next.
    void hold(int releases);
    void release();

private:
    using Order = std::pair<int, quint64>; ///< number of the thread where it counts, and of the call
    struct Waiting
    {
        LinkHost *host;
        DeviceLink *link;
    };
    using Queue = std::map<Order, Waiting>;
    struct Place
    {
        Turn turn;
        Order order;
    };

    void fill();
    Queue *nextQueue(); ///< null: all are empty

    const int m_maxSettingUp;
    const int m_maxWaiting;
    std::mutex m_mutex; ///< for all that follows
    std::array<Queue, 3> m_queues; ///< by Turn
    QHash<DeviceLink *, Place> m_queued; ///< where each of them is in the queues
    QHash<LinkHost *, QQueue<DeviceLink *>> m_turns; ///< have got a place and are not dialled yet
    QSet<DeviceLink *> m_settingUp; ///< those with a place
    QSet<DeviceLink *> m_waiting; ///< for their devices' sign-on, after makeRoom()
    int m_holds = 0;
    quint64 m_queueCount = 0;
    quint64 m_dialCount = 0;
};

} // namespace vms_sdk
