#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/LinkTrouble.h>

#include <QHash>
#include <QVector>

namespace vms_sdk {

/// Limits how often one device's changes of state are reported, for each is work for the store, the list and the tasks.
/// The first changes within a second pass at once; those after them are merged into the last one, which passes when the
/// second is over. Has no clock: the owner passes the time in, in milliseconds since any fixed moment.
class StatusChanges
{
public:
    static constexpr int maxPerSecond = 10; ///< a device that is set up, lost and set up again needs five

    struct Change
    {
        QString devId;
        DevStatus status;
        LinkTrouble trouble = {}; ///< of a state that is not online

        friend bool operator==(const Change &a, const Change &b)
        {
            return a.devId == b.devId && a.status == b.status && a.trouble == b.trouble;
        }
    };

    /// @return the changes that pass now: this one or none
    QVector<Change> add(const Change &change, qint64 now);
    /// The merged changes whose second is over. A device that was offline in between is reported offline first, for
    /// those who wait until it has been away and is back.
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
        LinkTrouble trouble = {}; ///< the latest of the merged ones
    };

    QHash<QString, Recent> m_recent; ///< by device id; about the last second
    qint64 m_sweptAt = 0;
    int m_heldCount = 0;
};

} // namespace vms_sdk
