#include <vms_client_sdk/StatusChanges.h>

namespace vms_sdk {

namespace {

constexpr qint64 secondMs = 1000;

} // namespace

QVector<StatusChanges::Change> StatusChanges::add(const Change &change, qint64 now)
{
    if (now - m_sweptAt >= secondMs) { // forgets the devices that have been quiet
        m_sweptAt = now;
        for (auto it = m_recent.begin(); it != m_recent.end();)
            it = !it->isHeld && now - it->since >= secondMs ? m_recent.erase(it) : std::next(it);
    }
    Recent &recent = m_recent[change.devId];
    if (!recent.isHeld && now - recent.since >= secondMs)
        recent = {now};
    if (recent.passed < maxPerSecond) {
        ++recent.passed;
        return {change};
    }
    if (!isOnlineStatus(change.status)) {
        recent.wasOffline = true;
        recent.trouble = change.trouble;
    }
    m_heldCount += recent.isHeld ? 0 : 1;
    recent.isHeld = true;
    recent.held = change.status;
    return {};
}

QVector<StatusChanges::Change> StatusChanges::takeDue(qint64 now)
{
    QVector<Change> due;
    for (auto it = m_recent.begin(); it != m_recent.end(); ++it) {
        if (!it->isHeld || now - it->since < secondMs)
            continue;
        const bool isBack = it->wasOffline && isOnlineStatus(it->held);
        if (isBack)
            due.append({it.key(), DevOffline, it->trouble});
        due.append({it.key(), it->held, isOnlineStatus(it->held) ? LinkTrouble() : it->trouble});
        *it = {now, isBack ? 2 : 1};
        --m_heldCount;
    }
    return due;
}

} // namespace vms_sdk
