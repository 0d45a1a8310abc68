#include "orda_base/BusyIndicator.h"

#include <QPainter>

namespace orda_base {

namespace {

constexpr int diameter = 36;
constexpr qreal lineWidth = 4;
constexpr int turnMilliseconds = 1100;
constexpr int degree = 16; // QPainter's unit of angles is a sixteenth of one
constexpr int arcDegrees = 100;

} // namespace

BusyIndicator::BusyIndicator(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(diameter, diameter);
    m_turn.setStartValue(360);
    m_turn.setEndValue(0);
    m_turn.setDuration(turnMilliseconds);
    m_turn.setLoopCount(-1);
    connect(&m_turn, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void BusyIndicator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal inset = lineWidth / 2;
    const QRectF circle = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    QColor track = palette().color(QPalette::Highlight);
    QPen pen(track, lineWidth, Qt::SolidLine, Qt::RoundCap);
    track.setAlphaF(0.2);
    painter.setPen(QPen(track, lineWidth));
    painter.drawEllipse(circle);
    painter.setPen(pen);
    painter.drawArc(circle, m_turn.currentValue().toInt() * degree, arcDegrees * degree);
}

void BusyIndicator::showEvent(QShowEvent *)
{
    m_turn.start();
}

void BusyIndicator::hideEvent(QHideEvent *)
{
    m_turn.stop();
}

} // namespace orda_base
