#pragma once

#include <orda_base/Export.h>

#include <QHash>
#include <QUuid>

namespace orda_base {

class DisabledWaitingWt;

/// Finds overlays by their ids, so that they can be destroyed without a pointer to them. GUI thread only.
class ORDA_BASE_EXPORT DisabledWaitingWtManager
{
public:
    static DisabledWaitingWtManager &instance();

    /// Hides the overlay at once and deletes it later. Ignores an id that is unknown, or whose overlay was deleted with
    /// its parent.
    void destroyDisabledWaitingWt(const QUuid &uuid);

private:
    friend class DisabledWaitingWt;

    DisabledWaitingWtManager() = default;
    void add(DisabledWaitingWt *overlay);
    void remove(const QUuid &uuid) { m_overlays.remove(uuid); }

    QHash<QUuid, DisabledWaitingWt *> m_overlays;
};

} // namespace orda_base
