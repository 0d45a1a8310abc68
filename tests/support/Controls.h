#pragma once

#include <QAccessible>
#include <QComboBox>
#include <QWidget>

/// What a screen reader says: the caption that labels the control, else its own name. A combo box has none of its own.
inline QString spokenName(QWidget *widget)
{
    const QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
    const auto labels = access->relations(QAccessible::Label);
    if (!labels.isEmpty())
        return labels.constFirst().first->text(QAccessible::Name);
    return qobject_cast<QComboBox *>(widget) ? QString() : access->text(QAccessible::Name);
}

/// What of a window can be used now.
inline QList<QWidget *> shownControls(const QWidget *window)
{
    QList<QWidget *> controls;
    const auto widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        bool isControl = (widget->focusPolicy() & Qt::TabFocus) != 0;
        for (const char *type : {"QAbstractButton", "QLineEdit", "QComboBox", "QAbstractSlider", "QAbstractSpinBox"})
            isControl = isControl || (widget->inherits(type) && !widget->inherits("QScrollBar"));
        if (isControl && widget->isVisible() && widget->isEnabled() && !widget->parent()->inherits("QAbstractSpinBox"))
            controls.append(widget);
    }
    return controls;
}
