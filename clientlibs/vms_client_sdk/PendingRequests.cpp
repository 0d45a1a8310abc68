#include <vms_client_sdk/PendingRequests.h>

#include <algorithm>

namespace vms_sdk {

void PendingRequests::setTimeout(std::chrono::milliseconds timeout)
{
    m_timeout = std::max<qint64>(timeout.count(), 1);
    m_tick = std::max<qint64>(m_timeout / 10, 1);
    advanceTo(m_now);
}

void PendingRequests::advanceTo(qint64 now)
{
    m_now = now;
    m_newDeadline = (now + m_timeout + m_tick - 1) / m_tick * m_tick;
}

void PendingRequests::add(const QString &id)
{
    const auto known = m_index.constFind(id);
    if (known != m_index.constEnd()) {
        m_entries[*known].deadline = m_newDeadline;
        return;
    }
    const std::size_t position = m_entries.size();
    if (position > 0)
        m_entries.back().next = position; // which is most likely renewed next
    m_index.insert(id, position);
    m_entries.push_back({id, m_newDeadline, 0});
}

bool PendingRequests::findOutOfOrder(const QString &id, std::size_t *position)
{
    const auto known = m_index.constFind(id);
    if (known == m_index.constEnd())
        return false;
    *position = *known;
    m_entries[m_last].next = *known;
    return true;
}

QStringList PendingRequests::takeDue()
{
    const auto isWaiting = [this](const Entry &entry) { return entry.deadline > m_now; };
    const auto firstDue = std::stable_partition(m_entries.begin(), m_entries.end(), isWaiting);
    if (firstDue == m_entries.end())
        return {};

    QStringList due;
    due.reserve(int(m_entries.end() - firstDue));
    for (auto entry = firstDue; entry != m_entries.end(); ++entry) {
        m_index.remove(entry->id);
        due.append(entry->id);
    }
    m_entries.erase(firstDue, m_entries.end());
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        m_index[m_entries[i].id] = i;
        m_entries[i].next = (i + 1) % m_entries.size();
    }
    m_last = 0;
    return due;
}

void PendingRequests::clear()
{
    m_entries.clear();
    m_index.clear();
    m_last = 0;
}

qint64 PendingRequests::untilNextTick() const
{
    return m_tick - m_now % m_tick;
}

} // namespace vms_sdk
