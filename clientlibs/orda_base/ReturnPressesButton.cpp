#include "orda_base/ReturnPressesButton.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace orda_base {

ReturnPressesButton::ReturnPressesButton(QWidget *widget)
    : QObject(widget)
{
    widget->installEventFilter(this);
}

bool ReturnPressesButton::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    auto *button = qobject_cast<QAbstractButton *>(watched);
    if (!button)
        button = qobject_cast<QAbstractButton *>(static_cast<QWidget *>(watched)->focusWidget());
    if (!button || (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter))
        return QObject::eventFilter(watched, event);
    if (!key->isAutoRepeat())
        button->click(); // which may delete this object: nothing may follow
    return true;
}

} // namespace orda_base
