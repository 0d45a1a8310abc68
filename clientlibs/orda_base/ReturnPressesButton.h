#pragma once

#include <orda_base/Export.h>

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_base {

/// Lets Return and Enter press a button that has the focus, once however long the key is held. Qt's buttons do so only
/// in dialogs, and there again with every repetition of the key.
///
/// The key goes no further then: a dialog around the widget would press a button of its own. GUI thread only.
class ORDA_BASE_EXPORT ReturnPressesButton : public QObject
{
    Q_OBJECT

public:
    /// @param widget a button, or a widget with buttons that leave the key to it; owns this object
    explicit ReturnPressesButton(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace orda_base
