#include "orda_base/TableWidget.h"

#include "orda_base/RowHeader.h"

namespace orda_base {

namespace {

constexpr int rowPixels = 32;

} // namespace

TableWidget::TableWidget(QWidget *parent)
    : XCOMMON::XTableWidget(parent)
{
    setSelectionBehavior(SelectRows);
    setVerticalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setVerticalHeader(new RowHeader(this));
    // Rows of one fixed height: measuring contents would look at every row.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowPixels);
}

} // namespace orda_base
