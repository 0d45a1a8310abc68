#include "orda_worker/SystemAssistant.h"

#include "orda_worker/AssistantSignals.h"
#include "orda_worker/EventDialog.h"

#include <QApplication>

namespace orda_worker {

namespace {

// Over whatever the operator looks at; never over another dialog, which may be gone before this one.
QWidget *parentWindow()
{
    const auto isFit = [](const QWidget *window) {
        return window && window->isVisible() && window->windowType() == Qt::Window;
    };
    QWidget *active = QApplication::activeWindow();
    while (active && active->parentWidget() && !isFit(active))
        active = active->parentWidget()->window();
    if (isFit(active))
        return active;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (isFit(window))
            return window;
    return nullptr;
}

} // namespace

SystemAssistant &SystemAssistant::instance()
{
    static SystemAssistant assistant;
    return assistant;
}

void SystemAssistant::messageAlert(const QString &title, const QString &text)
{
    auto *dialog = new EventDialog(title, text, {tr("OK")}, parentWindow());
    dialog->setObjectName(QStringLiteral("messageAlertDialog"));
    dialog->open();
    emit AssistantSignals::instance().signalMessageAlerted(title, text);
}

void SystemAssistant::eventConfirm(const EventConfirmInfo &info)
{
    auto *dialog = new EventDialog(info.title, info.text, info.buttons, parentWindow());
    dialog->setObjectName(QStringLiteral("eventConfirmDialog"));
    QObject::connect(dialog, &EventDialog::signalAnswered, &AssistantSignals::instance(),
                     [uuid = info.uuid](int button) {
                         emit AssistantSignals::instance().signalEventConfirmOperBtClicked(uuid, button);
                     });
    dialog->open();
    emit AssistantSignals::instance().signalEventConfirmRaised(info);
}

} // namespace orda_worker
