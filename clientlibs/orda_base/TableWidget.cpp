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
    TableAccess::install(this);
    setSelectionBehavior(SelectRows);
    setVerticalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setItemDelegate(new PlainTextDelegate(this));
    // Rows of one fixed height: measuring contents would look at every row.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowPixels);
    setTabKeyNavigation(false); // Tab leaves the table; it would go through each of its cells first
}

void TableWidget::focusInEvent(QFocusEvent *event)
{
    XCOMMON::XTableWidget::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason || event->reason() == Qt::PopupFocusReason)
        return;
    // Else nothing would show where the keys go.
    int row = qMax(0, currentRow());
    if (row < rowCount() && isRowHidden(row))
        for (row = 0; row < rowCount() && isRowHidden(row);)
            ++row;
    if (row < rowCount() && (row != currentRow() || !selectionModel()->hasSelection()))
        selectRow(row);
}

} // namespace orda_base
