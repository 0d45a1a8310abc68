#include "client/tables/TableView.h"

#include <orda_base/TableAccess.h>

#include <QHeaderView>

#include <algorithm>

namespace orda_client {

namespace {

constexpr int rowPixels = 28;
constexpr int cellPadding = 16;

} // namespace

TableView::TableView(QAbstractItemModel *model, const QVector<int> &digits, const QString &name, QWidget *parent)
    : QTableView(parent)
{
    setModel(model);
    orda_base::installTableAccess(this);
    setAccessibleName(name);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setTextElideMode(Qt::ElideMiddle); // the error code is at the end of a message
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowPixels);
    setSortingEnabled(true);
    sortByColumn(0, Qt::AscendingOrder);

    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStyleSheet(QStringLiteral("QHeaderView::section { padding-left: 6px; }"));
    setWidths(digits);
}

void TableView::setWidths(const QVector<int> &digits)
{
    ensurePolished(); // so that the font is the one that will be used
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    for (int column = 0; column < digits.size(); ++column)
        horizontalHeader()->resizeSection(
            column, std::max(digits.at(column) * digit, horizontalHeader()->sectionSizeHint(column) + cellPadding));
}

} // namespace orda_client
