#pragma once

#include <orda_worker/Export.h>
#include <orda_worker/EventConfirmInfo.h>

#include <QObject>

namespace orda_worker {

/// Signals of the dialogs of SystemAssistant. Raised on the GUI thread.
class ORDA_WORKER_EXPORT AssistantSignals : public QObject
{
    Q_OBJECT

public:
    static AssistantSignals &instance();

Q_SIGNALS:
    /// Raised once for each question that the operator answers. @param index the index of the button
    void signalEventConfirmOperBtClicked(const QString &uuid, int index);
    /// The dialog was shown.
    void signalMessageAlerted(const QString &title, const QString &text);
    void signalEventConfirmRaised(const orda_worker::EventConfirmInfo &info);

private:
    AssistantSignals();
};

} // namespace orda_worker
