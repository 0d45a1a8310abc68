#pragma once

#include <QHash>

#include <mutex>

namespace vms_sdk {

class DeviceLink;
class LinkHost;

/// Memory that links use for their devices, over all network threads. When it is too much, the links with the most are
/// to be cut; until their threads have done so, they have a little time in which others may fill the room. Knows the
/// links as names only. Thread-safe.
class KeptMemory
{
public:
    /// For all devices together. Nearly all messages come and go in one piece. But a thousand devices that each hold
    /// back the end of the largest one, or do not read it, would take a gigabyte.
    static constexpr qint64 maxBytes = 64 << 20;

    /// Hosts of other threads whose links are to be cut are woken (LinkHost::wake); the caller asks takeTooLarge().
    void set(LinkHost *host, DeviceLink *link, qint64 bytes);
    /// A link of this host that is to be cut now; null: none.
    DeviceLink *takeTooLarge(LinkHost *host);

private:
    struct Part
    {
        LinkHost *host;
        qint64 bytes;
    };

    std::mutex m_mutex; ///< for all that follows
    QHash<DeviceLink *, Part> m_parts;
    qint64 m_bytes = 0; ///< of the parts
    QMultiHash<LinkHost *, DeviceLink *> m_tooLarge; ///< not among the parts any more
};

} // namespace vms_sdk
