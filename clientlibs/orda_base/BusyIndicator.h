#pragma once

#include <QElapsedTimer>
#include <QTimer>
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
    QTimer m_frames;
    QElapsedTimer m_shown;
};

} // namespace orda_base
