#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_batchCfg {

/// Keeps the wheel from changing a page's editors by accident: what it stands over reacts only when it was clicked or
/// tabbed to before, and otherwise leaves the wheel to the page, which scrolls.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// @param page guarded with all the editors that it has now
    explicit WheelGuard(QWidget *page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace orda_batchCfg
