#include "orda_base/BusyIndicator.h"

#include <QPainter>

#include <chrono>

namespace orda_base {

namespace {

constexpr int diameter = 36;
constexpr qreal lineWidth = 4;
constexpr int turnMilliseconds = 1100;
constexpr std::chrono::milliseconds frameInterval{40}; // smooth enough; each frame draws what lies below as well
constexpr int degree = 16; // QPainter's unit of angles is a sixteenth of one
constexpr int arcDegrees = 100;

} // namespace

BusyIndicator::BusyIndicator(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(diameter, diameter);
    m_frames.setInterval(frameInterval);
    connect(&m_frames, &QTimer::timeout, this, qOverload<>(&QWidget::update));
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
    const int turned = int(m_shown.elapsed() % turnMilliseconds) * 360 / turnMilliseconds;
    painter.drawArc(circle, (360 - turned) * degree, arcDegrees * degree);
}

void BusyIndicator::showEvent(QShowEvent *)
{
    m_shown.start();
    m_frames.start();
}

void BusyIndicator::hideEvent(QHideEvent *)
{
    m_frames.stop();
}

} // namespace orda_base
