#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QHash>
#include <QVector>

#include <utility>

namespace vms_sdk {

/// Slows down devices whose state changes without end: each change is work for the store, the list and the tasks. The
/// first changes within a second pass at once; those after them are merged into the last one, which passes when the
/// second is over. Knows no clock: the owner passes the time in, milliseconds on any steady scale.
class StatusChanges
{
public:
    static constexpr int maxPerSecond = 10; ///< a device that is set up, lost and set up again needs five

    using Change = std::pair<QString, DevStatus>;

    /// @return the changes that pass now: this one or none
    QVector<Change> add(const QString &devId, DevStatus status, qint64 now);
    /// The merged changes whose second is over. A device that was offline in between is reported offline first: what
    /// waits for its return must not miss that it was gone.
    QVector<Change> takeDue(qint64 now);
    /// False: takeDue() has nothing to give until something is added.
    bool isHolding() const { return m_heldCount > 0; }

private:
    struct Recent
    {
        qint64 since = 0; ///< the beginning of its second
        int passed = 0;
        bool isHeld = false;
        DevStatus held = DevOffline;
        bool wasOffline = false; ///< among the merged ones
    };

    QHash<QString, Recent> m_recent; ///< devices with a change in the last second, roughly
    qint64 m_sweptAt = 0;
    int m_heldCount = 0;
};

} // namespace vms_sdk
