#pragma once

#include <QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// Asks before devices are written to. Returns at once. Return and Esc cancel.
/// @param question how many devices, @param lines what else is to be known; shown as plain text
/// @param action text of the button that does it
void askBeforeRun(QWidget *parent, const QString &title, const QString &question, const QStringList &lines,
                  const QString &action, const std::function<void()> &accepted);

} // namespace orda_client
