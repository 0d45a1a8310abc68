#pragma once

#include <orda_base/Export.h>

#include <QHash>
#include <QUuid>

namespace orda_base {

class DisabledWaitingWt;

/// Knows the overlays that live, so that they can be destroyed by whoever has only their id. GUI thread only.
class ORDA_BASE_EXPORT DisabledWaitingWtManager
{
public:
    static DisabledWaitingWtManager &instance();

    /// Hides the overlay at once and deletes it later; an id that is unknown, or of an overlay that died with its
    /// parent, is fine.
    void destroyDisabledWaitingWt(const QUuid &uuid);

private:
    friend class DisabledWaitingWt;

    DisabledWaitingWtManager() = default;
    void add(DisabledWaitingWt *overlay);
    void remove(const QUuid &uuid) { m_overlays.remove(uuid); }

    QHash<QUuid, DisabledWaitingWt *> m_overlays;
};

} // namespace orda_base
