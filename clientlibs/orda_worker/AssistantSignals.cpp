#include <orda_worker/AssistantSignals.h>

namespace orda_worker {

AssistantSignals::AssistantSignals()
{
    qRegisterMetaType<EventConfirmInfo>();
}

AssistantSignals &AssistantSignals::instance()
{
    static AssistantSignals signalsOfDialogs;
    return signalsOfDialogs;
}

} // namespace orda_worker
