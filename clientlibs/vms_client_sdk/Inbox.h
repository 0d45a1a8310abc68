#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/LinkTrouble.h>

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <mutex>
#include <variant>

namespace vms_sdk {

/// Carries what a transport raises to the GUI thread, in the same order. Thousands of answers that arrive at once are
/// passed on in slices of a few milliseconds, so that the event loop handles timers, input and painting in between. A
/// status change waits until no other has come for 10 ms, and 40 ms at most, which nobody notices: when a site comes
/// online, the GUI thread is not woken for each device, and its list is drawn 25 times a second.
class Inbox : public QObject
{
    Q_OBJECT

public:
    struct Answer
    {
        QString requestId, text;
    };
    struct StatusChange
    {
        QString devId;
        DevStatus status;
    };
    struct Trouble
    {
        QString devId;
        LinkTrouble trouble;
    };
    struct Identity
    {
        QString devId, serialNumber;
    };
    using Item = std::variant<Answer, StatusChange, Trouble, Identity>;

    /// @param consumer called on the thread of this object, from its event loop. It may delete this object, and may
    /// wait in an event loop of its own: the items after it are then passed on from there.
    explicit Inbox(std::function<void(const Item &)> consumer);

    void put(Item item); ///< from any thread
    // How many items have been put in, and passed on, since the beginning.
    quint64 putCount();
    quint64 passedOnCount() const { return m_passedOn; }

private:
    void noticeArrived();
    void wakeUp(bool isUrgent);
    void passOnWhenQuiet();
    bool hasMoreToWaitFor();
    void passOn();
    bool takeArrived();

    std::function<void(const Item &)> m_consumer;
    std::mutex m_mutex;
    std::deque<Item> m_arrived; ///< under the mutex
    quint64 m_put = 0; ///< under the mutex
    bool m_isUrgent = false; ///< under the mutex: there is an answer among them
    std::deque<Item> m_items; ///< taken over from m_arrived
    quint64 m_passedOn = 0;
    quint64 m_putBefore = 0; ///< what m_put was when the status changes were looked at last
    int m_waits = 0; ///< how often they have waited for others
    QTimer m_next; ///< starts the next slice; posted events would leave the event loop no time for anything else
};

} // namespace vms_sdk
