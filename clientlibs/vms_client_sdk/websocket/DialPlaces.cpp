#include <vms_client_sdk/websocket/DialPlaces.h>

#include <vms_client_sdk/websocket/LinkHost.h>

#include <algorithm>

namespace vms_sdk {

DialPlaces::DialPlaces(int maxSettingUp, int maxWaiting)
    : m_maxSettingUp(maxSettingUp)
    , m_maxWaiting(maxWaiting)
{
}

void DialPlaces::queue(LinkHost *host, DeviceLink *link, Turn turn)
{
    const std::lock_guard lock(m_mutex);
    const Order order{turn == Turn::New ? host->number() : 0, ++m_queueCount};
    m_queues.at(std::size_t(turn)).emplace(order, Waiting{host, link});
    m_queued.insert(link, {turn, order});
    fill();
}

bool DialPlaces::makeRoom(DeviceLink *link)
{
    const std::lock_guard lock(m_mutex);
    if (m_waiting.size() >= m_maxWaiting)
        return false;
    m_settingUp.remove(link);
    m_waiting.insert(link);
    fill();
    return true;
}

void DialPlaces::leave(LinkHost *host, DeviceLink *link)
{
    const std::lock_guard lock(m_mutex);
    if (m_settingUp.remove(link) || m_waiting.remove(link)) {
        m_turns[host].removeOne(link);
        fill();
        return;
    }
    const auto queued = m_queued.find(link);
    if (queued == m_queued.end())
        return;
    m_queues.at(std::size_t(queued->turn)).erase(queued->order);
    m_queued.erase(queued);
}

DeviceLink *DialPlaces::takeTurn(LinkHost *host)
{
    const std::lock_guard lock(m_mutex);
    const auto turns = m_turns.find(host);
    if (m_holds > 0 || turns == m_turns.end() || turns->isEmpty())
        return nullptr;
    return turns->dequeue();
}

void DialPlaces::hold(int releases)
{
    const std::lock_guard lock(m_mutex);
    m_holds += releases;
}

void DialPlaces::release()
{
    const std::lock_guard lock(m_mutex);
    if (--m_holds > 0)
        return;
    for (auto turns = m_turns.cbegin(); turns != m_turns.cend(); ++turns)
        if (!turns->isEmpty())
            turns.key()->wake();
    fill();
}

void DialPlaces::fill()
{
    while (m_holds == 0 && m_settingUp.size() < m_maxSettingUp) {
        Queue *queue = nextQueue();
        if (!queue)
            return;
        const Waiting next = queue->begin()->second;
        queue->erase(queue->begin());
        m_queued.remove(next.link);
        m_settingUp.insert(next.link);
        m_turns[next.host].enqueue(next.link);
        next.host->wake(); // under the lock, so that its links cannot leave, nor the host end, before
    }
}

DialPlaces::Queue *DialPlaces::nextQueue()
{
    const auto hasLinks = [](const Queue &queue) { return !queue.empty(); };
    constexpr quint64 lastComesFirst = 4; // every fourth time, so that the last queue is not left waiting for ever
    if (++m_dialCount % lastComesFirst == 0) {
        const auto last = std::find_if(m_queues.rbegin(), m_queues.rend(), hasLinks);
        return last == m_queues.rend() ? nullptr : &*last;
    }
    const auto first = std::find_if(m_queues.begin(), m_queues.end(), hasLinks);
    return first == m_queues.end() ? nullptr : &*first;
}

} // namespace vms_sdk
