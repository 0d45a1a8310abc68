#include "orda_base/TableWidget.h"

#include "orda_base/PlainTextDelegate.h"
#include "orda_base/TableAccess.h"

#include <QFocusEvent>
#include <QHeaderView>

namespace orda_base {

namespace {

constexpr int rowPixels = 32;

} // namespace

TableWidget::TableWidget(QWidget *parent)
    : XCOMMON::XTableWidget(parent)
{
    installTableAccess(this);
    setSelectionBehavior(SelectRows);
    setVerticalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setItemDelegate(new PlainTextDelegate(this));
    // All rows have the same height, because measuring contents would look at every row.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowPixels);
    setTabKeyNavigation(false); // so that Tab leaves the table at once
}

void TableWidget::focusInEvent(QFocusEvent *event)
{
    XCOMMON::XTableWidget::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason || event->reason() == Qt::PopupFocusReason)
        return;
    // Without a selected row nothing would show where the focus is.
    int row = qMax(0, currentRow());
    if (row < rowCount() && isRowHidden(row))
        for (row = 0; row < rowCount() && isRowHidden(row);)
            ++row;
    if (row < rowCount() && (row != currentRow() || !selectionModel()->hasSelection()))
        selectRow(row);
}

} // namespace orda_base
