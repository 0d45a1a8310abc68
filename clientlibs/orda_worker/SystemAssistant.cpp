#include "orda_worker/SystemAssistant.h"

#include "orda_worker/AssistantSignals.h"

#include <orda_base/ReturnPressesButton.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVariant>

#include <algorithm>

namespace orda_worker {

namespace {

constexpr int margin = 12;
constexpr int buttonWidth = 96;
constexpr int minTextWidth = 400;
constexpr int maxTextWidth = 720;

// The window that the operator looks at. Never another dialog: a box would be deleted together with it.
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

QMessageBox *makeBox(const QString &title, const QString &text, const QStringList &buttons)
{
    auto *box = new QMessageBox(parentWindow());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setContentsMargins(0, margin, margin, margin); // its layout leaves more room on the left
    box->setWindowTitle(title);
    box->setText(title);
    box->setInformativeText(text);
    const auto labels = box->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        label->setTextFormat(Qt::PlainText); // device names and file paths may look like mark-up
        if (label->text() == title)
            label->setProperty("dialog_caption", true);
        else
            label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        label->ensurePolished(); // with the font that it will have
        // A wrapped line may end between a colon and its number; a text that fits on one line stays on it.
        const int lineWidth = label->fontMetrics().size(0, label->text()).width() + 1;
        label->setMinimumWidth(std::clamp(lineWidth, minTextWidth, maxTextWidth));
    }
    for (const QString &caption : buttons) {
        auto *button = new QPushButton(caption);
        const bool isFirst = box->buttons().isEmpty();
        button->setProperty(isFirst ? "common_bt_style1" : "common_bt_style2", true);
        button->setMinimumWidth(buttonWidth);
        new orda_base::ReturnPressesButton(button); // a key still held from the press before is no answer
        box->addButton(button, QMessageBox::ActionRole); // one role for all, or the desktop would choose their order
        if (isFirst)
            box->setDefaultButton(button);
        box->setEscapeButton(button); // in the end the last one
    }
    return box;
}

} // namespace

SystemAssistant &SystemAssistant::instance()
{
    static SystemAssistant assistant;
    return assistant;
}

void SystemAssistant::messageAlert(const QString &title, const QString &text)
{
    QMessageBox *box = makeBox(title, text, {tr("OK")});
    box->setObjectName(QStringLiteral("messageAlertDialog"));
    box->open();
    emit AssistantSignals::instance().signalMessageAlerted(title, text);
}

void SystemAssistant::eventConfirm(const EventConfirmInfo &info)
{
    QMessageBox *box = makeBox(info.title, info.text, info.buttons);
    box->setObjectName(QStringLiteral("eventConfirmDialog"));
    auto &events = AssistantSignals::instance();
    QObject::connect(box, &QMessageBox::finished, &events, [box, info, &events] {
        box->disconnect(&events); // a button may be clicked again before the box is deleted
        const int last = info.buttons.size() - 1;
        const int button = box->clickedButton() ? box->buttons().indexOf(box->clickedButton()) : last;
        emit events.signalEventConfirmOperBtClicked(info.uuid, button);
    });
    box->open();
    emit events.signalEventConfirmRaised(info);
}

} // namespace orda_worker
