#include "RunRecordView.h"

#include "RunRecordModel.h"

#include <QHeaderView>

#include <utility>

namespace {

constexpr int rowPixels = 28;

// Room for a column, in digits; the last one takes what is left.
constexpr std::pair<RunRecordModel::Column, int> widths[]{{RunRecordModel::Outcome, 14},
                                                          {RunRecordModel::Name, 19},
                                                          {RunRecordModel::SerialNumber, 17},
                                                          {RunRecordModel::Ip, 16},
                                                          {RunRecordModel::Time, 20}};

} // namespace

RunRecordView::RunRecordView(QAbstractItemModel *record, QWidget *parent)
    : QTableView(parent)
{
    setModel(record);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setTextElideMode(Qt::ElideMiddle); // messages differ in the code at their end
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowPixels);
    setSortingEnabled(true);
    sortByColumn(RunRecordModel::Outcome, Qt::AscendingOrder);

    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStyleSheet(QStringLiteral("QHeaderView::section { padding-left: 6px; }"));
    ensurePolished(); // with the font that it will have
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    for (const auto &[column, digits] : widths)
        horizontalHeader()->resizeSection(column, digits * digit);
}
