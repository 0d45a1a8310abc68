#include "XCOMMON/XTableWidget.h"

#include <chrono>

namespace XCOMMON {

namespace {

constexpr std::chrono::milliseconds frameInterval{100};
constexpr int maxChangesInFrame = 20; // more are drawn at the end of the frame

} // namespace

XTableWidget::XTableWidget(QWidget *parent)
    : XTableWidget(0, 0, parent)
{
}

XTableWidget::XTableWidget(int rows, int columns, QWidget *parent)
    : QTableWidget(rows, columns, parent)
{
    m_frame.setSingleShot(true);
    m_frame.setInterval(frameInterval);
    connect(&m_frame, &QTimer::timeout, this, [this] {
        m_changesInFrame = 0;
        viewport()->setUpdatesEnabled(true);
    });
}

void XTableWidget::setRowCount(int rows)
{
    if (rowCount() != rows) {
        QTableWidget::setRowCount(rows);
        emit signalRowsChanged();
    }
}

void XTableWidget::insertRow(int row)
{
    drawLater();
    QTableWidget::insertRow(row);
    emit signalRowsChanged();
}

void XTableWidget::removeRow(int row)
{
    drawLater();
    QTableWidget::removeRow(row);
    emit signalRowsChanged();
}

void XTableWidget::setRowHidden(int row, bool hide)
{
    if (isRowHidden(row) != hide) {
        QTableWidget::setRowHidden(row, hide);
        emit signalRowsChanged();
    }
}

void XTableWidget::drawLater()
{
    if (!m_frame.isActive())
        m_frame.start();
    if (++m_changesInFrame == maxChangesInFrame)
        viewport()->setUpdatesEnabled(false);
}

} // namespace XCOMMON
