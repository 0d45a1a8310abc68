#pragma once

#include <orda_worker/EventConfirmInfo.h>

#include <QString>

namespace orda_worker {

/// The dialogs. Both calls come back at once, without waiting for the operator.
class SystemAssistant
{
public:
    static SystemAssistant &instance();

    /// Configure was pressed without parameters or devices, while a run goes on, or while another process has the
    /// record.
    void messageAlert(const QString &title, const QString &text);
    /// The summary of a run, with the buttons Detail and Cancel. The answer comes as
    /// AssistantSignals::signalEventConfirmOperBtClicked.
    void eventConfirm(const EventConfirmInfo &info);
};

} // namespace orda_worker
