#pragma once

#include <QUuid>

namespace orda_base {

/// Knows the overlays that live.
class DisabledWaitingWtManager
{
public:
    static DisabledWaitingWtManager &instance();

    /// The run is over, or its page is deleted. An id that is unknown, or of an overlay that is gone, is passed over.
    void destroyDisabledWaitingWt(const QUuid &uuid);
};

} // namespace orda_base
