#include <orda_base/DisabledWaitingWtManager.h>

#include <orda_base/DisabledWaitingWt.h>

namespace orda_base {

DisabledWaitingWtManager &DisabledWaitingWtManager::instance()
{
    static DisabledWaitingWtManager manager;
    return manager;
}

void DisabledWaitingWtManager::add(DisabledWaitingWt *overlay)
{
    m_overlays.insert(overlay->getUuid(), overlay);
}

void DisabledWaitingWtManager::destroyDisabledWaitingWt(const QUuid &uuid)
{
    if (DisabledWaitingWt *overlay = m_overlays.take(uuid)) {
        overlay->hide();
        overlay->deleteLater();
    }
}

} // namespace orda_base
