#include "orda_worker/EventDialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

#include <algorithm>

namespace orda_worker {

namespace {

constexpr int minWidth = 480;
constexpr int margin = 24;
constexpr int buttonWidth = 96;
constexpr int widestMessage = 720;

} // namespace

EventDialog::EventDialog(const QString &title, const QString &text, const QStringList &buttons, QWidget *parent)
    : QDialog(parent)
    , m_texts(new QVBoxLayout)
    , m_answer(buttons.size() - 1)
{
    setWindowTitle(title);
    setAccessibleName(title);
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumWidth(minWidth);

    auto *caption = new QLabel(title, this);
    caption->setTextFormat(Qt::PlainText);
    caption->setProperty("dialog_caption", true);
    addText(text);

    auto *row = new QHBoxLayout;
    row->addStretch();
    for (int i = 0; i < buttons.size(); ++i) {
        auto *button = new QPushButton(buttons.at(i), this);
        button->setMinimumWidth(buttonWidth);
        button->setProperty(i == 0 ? "common_bt_style1" : "common_bt_style2", true);
        button->setDefault(i == 0);
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, [this, i] {
            m_answer = i;
            accept();
        });
        row->addWidget(button);
        if (i == 0)
            button->setFocus();
    }

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin / 2);
    layout->addWidget(caption);
    layout->addLayout(m_texts);
    layout->addSpacing(margin / 2);
    layout->addLayout(row);
    connect(this, &QDialog::finished, this, [this] {
        if (!std::exchange(m_isAnswered, true)) // a button may be clicked again before the dialog is deleted
            emit signalAnswered(m_answer);
    });
}

void EventDialog::addText(const QString &text)
{
    auto *message = new QLabel(text, this);
    message->setTextFormat(Qt::PlainText); // device names and file paths may look like mark-up
    message->setWordWrap(true);
    message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    message->ensurePolished(); // with the font that it will have
    // A wrapped line may end between a colon and its number; a text that fits on one line stays on it.
    message->setMinimumWidth(std::min(message->fontMetrics().size(0, text).width() + 1, widestMessage));
    m_texts->addWidget(message);
    const QString before = accessibleDescription(); // read out when the dialog opens
    setAccessibleDescription(before.isEmpty() ? text : before + QLatin1Char('\n') + text);
    if (isVisible()) {
        message->show();
        adjustSize();
    }
}

bool EventDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        // A key held down on the button that has led here is no answer.
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isAnswer =
            key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || key->key() == Qt::Key_Space;
        if (isAnswer && key->isAutoRepeat())
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace orda_worker
