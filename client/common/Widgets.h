#pragma once

#include <QLabel>
#include <QPushButton>
#include <QVariant>

namespace orda_client {

/// A button as all windows have them. It is pressed by Return only while it has the focus, in dialogs too.
/// @param name object name
/// @param style "common_bt_style1" for the main action of a window, "common_bt_style2" for the others
inline QPushButton *styledButton(const QString &text, const char *name, const char *style = "common_bt_style2")
{
    auto *button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setProperty(style, true);
    button->setAutoDefault(false);
    return button;
}

/// A label for texts that may be other people's, in as many lines as they need. @param name object name
inline QLabel *plainLabel(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace orda_client
