#include "XCOMMON/XTableWidget.h"

#include "XCOMMON/RowHeader.h"

namespace XCOMMON {

XTableWidget::XTableWidget(QWidget *parent)
    : QTableWidget(parent)
{
    setVerticalHeader(new RowHeader(this));
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
    QTableWidget::insertRow(row);
    emit signalRowsChanged();
}

void XTableWidget::removeRow(int row)
{
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

} // namespace XCOMMON
