#pragma once

#include <orda_worker/EventConfirmInfo.h>
#include <orda_worker/Export.h>

#include <QObject>

namespace orda_worker {

/// What happens at the assistant's dialogs. Raised on the GUI thread.
class ORDA_WORKER_EXPORT AssistantSignals : public QObject
{
    Q_OBJECT

public:
    static AssistantSignals &instance();

Q_SIGNALS:
    /// Once for every dialog that the operator answers. @param index of the button
    void signalEventConfirmOperBtClicked(const QString &uuid, int index);
    /// For those who follow along: the dialog is on the screen.
    void signalMessageAlerted(const QString &title, const QString &text);
    void signalEventConfirmRaised(const orda_worker::EventConfirmInfo &info);

private:
    AssistantSignals();
};

} // namespace orda_worker
