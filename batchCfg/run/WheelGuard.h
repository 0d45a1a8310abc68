#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_batchCfg {

/// Keeps the mouse wheel from changing a page's editors by accident: an editor reacts to the wheel only when it has the
/// focus. Otherwise the page scrolls.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// @param page all editors that it has now are guarded
    explicit WheelGuard(QWidget *page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace orda_batchCfg
