#pragma once

#include <QString>
#include <QUuid>
#include <QWidget>

namespace orda_base {

/// Covers the form from before the first request of a run until after its summary. Lets no mouse, key or shortcut
/// through to its parent, or Configure could be pressed again and the values changed in mid-run; those of the window
/// around it work on.
class DisabledWaitingWt : public QWidget
{
    Q_OBJECT

public:
    /// @param parent the form @param description what is shown. The module gives no further arguments.
    DisabledWaitingWt(QWidget *parent, const QString &description, const QString &text = {}, bool flag = false);

    /// By which DisabledWaitingWtManager knows it.
    QUuid getUuid() const;
    /// Called after each result, with the number of results.
    void updateDescription(const QString &description);
};

} // namespace orda_base
