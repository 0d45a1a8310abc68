#include <vms_client_sdk/websocket/KeptMemory.h>

#include <vms_client_sdk/websocket/LinkHost.h>

#include <algorithm>

namespace vms_sdk {

void KeptMemory::set(LinkHost *host, DeviceLink *link, qint64 bytes)
{
    const std::lock_guard lock(m_mutex);
    if (bytes == 0)
        m_tooLarge.remove(host, link);
    m_bytes -= m_parts.take(link).bytes;
    if (bytes == 0 || m_tooLarge.contains(host, link))
        return;
    m_parts.insert(link, {host, bytes});
    m_bytes += bytes;
    while (m_bytes > maxBytes) {
        const auto largest = std::max_element(m_parts.begin(), m_parts.end(),
                                              [](const Part &a, const Part &b) { return a.bytes < b.bytes; });
        m_bytes -= largest->bytes;
        m_tooLarge.insert(largest->host, largest.key());
        largest->host->wake(); // under the lock, so that the host cannot end before
        m_parts.erase(largest);
    }
}

DeviceLink *KeptMemory::takeTooLarge(LinkHost *host)
{
    const std::lock_guard lock(m_mutex);
    const auto link = m_tooLarge.find(host);
    if (link == m_tooLarge.end())
        return nullptr;
    DeviceLink *taken = *link;
    m_tooLarge.erase(link);
    return taken;
}

} // namespace vms_sdk
