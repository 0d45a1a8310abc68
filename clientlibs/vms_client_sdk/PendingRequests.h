#pragma once

#include <QHash>
#include <QStringList>
#include <chrono>
#include <vector>

namespace vms_sdk {

/// The ids that are waiting, and until when. Has no clock: the owner passes the time in, in milliseconds since any
/// fixed moment.
///
/// Deadlines are rounded up to a tick, a tenth of the waiting time, so that ids sent together end together.
/// A run renews all its ids after each result, which is 5 * 10^7 renewals for 10,000 devices, always in the same order.
/// So the new deadline is computed once per advanceTo(), and each id remembers which one was renewed after it: the hash
/// is needed only when the order has changed, because an id has ended.
class PendingRequests
{
public:
    /// For requests and renewals from now on; at least 1 ms.
    void setTimeout(std::chrono::milliseconds timeout);
    std::chrono::milliseconds timeout() const { return std::chrono::milliseconds(m_timeout); }

    /// The time that add(), renew() and takeDue() go by, until the next call.
    void advanceTo(qint64 now);

    void add(const QString &id); ///< a pending id starts its waiting time again
    inline void renew(const QString &id); ///< an id that is not pending is left alone
    QStringList takeDue(); ///< removes what is due and returns it in the order of sending
    void clear();

    bool isEmpty() const { return m_entries.empty(); }
    qint64 untilNextTick() const; ///< milliseconds to the first moment at which something may be due

private:
    struct Entry
    {
        QString id;
        qint64 deadline;
        std::size_t next; ///< position of the id that was renewed after this one
    };

    /// Finds an id that is renewed out of order. @return false when it is not pending
    bool findOutOfOrder(const QString &id, std::size_t *position);

    qint64 m_timeout = 15'000;
    qint64 m_tick = 1'500;
    qint64 m_now = 0;
    qint64 m_newDeadline = 15'000;
    std::vector<Entry> m_entries; ///< in the order of sending
    QHash<QString, std::size_t> m_index; ///< id -> position in m_entries
    std::size_t m_last = 0; ///< position of the one renewed last; only while there are any
};

void PendingRequests::renew(const QString &id)
{
    if (m_entries.empty())
        return;
    std::size_t position = m_entries[m_last].next;
    // Copies of one id share their text, so that comparing the pointers is enough.
    if (m_entries[position].id.constData() != id.constData() && !findOutOfOrder(id, &position))
        return;
    m_entries[position].deadline = m_newDeadline;
    m_last = position;
}

} // namespace vms_sdk
