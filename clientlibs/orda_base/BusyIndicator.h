#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace orda_base {

/// A turning arc: something goes on, nobody knows for how long.
class BusyIndicator : public QWidget
{
    Q_OBJECT

public:
    explicit BusyIndicator(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QVariantAnimation m_turn; // the arc's begin, in degrees
};

} // namespace orda_base
