#pragma once

#include <orda_worker/Export.h>
#include <orda_worker/EventConfirmInfo.h>

#include <QCoreApplication>

namespace orda_worker {

/// Shows dialogs over the active window. No call waits for the answer; several dialogs may be open at once. GUI thread
/// only.
class ORDA_WORKER_EXPORT SystemAssistant
{
    Q_DECLARE_TR_FUNCTIONS(SystemAssistant)

public:
    static SystemAssistant &instance();

    /// Shows a text with a button "OK".
    void messageAlert(const QString &title, const QString &text);
    /// Asks a question. The answer comes as AssistantSignals::signalEventConfirmOperBtClicked().
    void eventConfirm(const EventConfirmInfo &info);

private:
    SystemAssistant() = default;
};

} // namespace orda_worker
