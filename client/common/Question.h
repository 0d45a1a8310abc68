#pragma once

#include <QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// Asks before something that cannot be taken back by a key, such as a run. Returns at once. Return and Esc cancel.
struct Question
{
    const char *name; ///< object name of the box; that of the button that does it is "confirm"
    QString title; ///< of the window
    QString text; ///< what is asked, on one line as a rule
    QStringList lines; ///< what else is to be known; these and the text are shown as plain text
    QString action; ///< of the button that does it

    /// @param accepted called when the button is pressed, and not after the parent has gone
    void ask(QWidget *parent, const std::function<void()> &accepted) const;
};

} // namespace orda_client
