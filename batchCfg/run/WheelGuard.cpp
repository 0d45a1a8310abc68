#include "run/WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace orda_batchCfg {

WheelGuard::WheelGuard(QWidget *page)
    : QObject(page)
{
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus)
            continue; // such as a scroll bar: it has no value of its own
        if (widget->focusPolicy() == Qt::WheelFocus)
            widget->setFocusPolicy(Qt::StrongFocus);
        widget->installEventFilter(this);
    }
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (event->type() == QEvent::Wheel && widget && !widget->hasFocus()) {
        event->ignore(); // so that it goes on to the parent
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orda_batchCfg
