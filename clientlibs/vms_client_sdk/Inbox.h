#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <mutex>
#include <variant>

namespace vms_sdk {

/// What a transport raises, on its way to the GUI thread, in its order. Thousands of answers that come at once are
/// passed on in slices of a few milliseconds: between them the event loop serves timers, input and painting. Status
/// changes wait for company: nobody notices 10 ms, and a site that comes online does not wake the GUI thread for each
/// device.
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
    using Item = std::variant<Answer, StatusChange>;

    /// @param consumer called on the thread of this object, from its event loop. It may delete this object, and may
    /// wait in an event loop of its own: the items after it are then passed on from there.
    explicit Inbox(std::function<void(const Item &)> consumer);

    void put(Item item); ///< from any thread
    // How many have been put and passed on since the beginning.
    quint64 putCount();
    quint64 passedOnCount() const { return m_passedOn; }

private:
    void noticeArrived();
    void wakeUp(bool isUrgent);
    void passOn();
    bool takeArrived();

    std::function<void(const Item &)> m_consumer;
    std::mutex m_mutex;
    std::deque<Item> m_arrived; ///< under the mutex
    quint64 m_put = 0; ///< under the mutex
    bool m_isUrgent = false; ///< under the mutex: there is an answer among them
    std::deque<Item> m_items; ///< taken over from m_arrived
    quint64 m_passedOn = 0;
    QTimer m_next; ///< the next slice: a timer, for posted events go on until there are none
};

} // namespace vms_sdk
