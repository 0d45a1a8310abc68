#include "client/record/RunRecordView.h"

#include "client/record/RunRecordModel.h"

#include <QFontMetrics>
#include <QHeaderView>

#include <algorithm>
#include <utility>

namespace orda_client {

namespace {

constexpr int rowPixels = 28;

constexpr int cellPadding = 16;

// Widths in digits. The column of the outcome is as wide as its texts, the message takes the rest.
constexpr std::pair<RunRecordModel::Column, int> widths[]{{RunRecordModel::Name, 19},
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
    setTextElideMode(Qt::ElideMiddle); // the error code is at the end of a message
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
    ensurePolished(); // so that the font is the one that will be used
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    for (const auto &[column, digits] : widths)
        horizontalHeader()->resizeSection(column, digits * digit);
    QFont bold = font();
    bold.setBold(true);
    int outcomeWidth = horizontalHeader()->sectionSizeHint(RunRecordModel::Outcome);
    for (const RunEntry::Outcome outcome : {RunEntry::Failed, RunEntry::Unreadable, RunEntry::Succeeded}) {
        const int textWidth = QFontMetrics(bold).horizontalAdvance(RunRecordModel::outcomeText(outcome));
        outcomeWidth = std::max(outcomeWidth, textWidth + cellPadding);
    }
    horizontalHeader()->resizeSection(RunRecordModel::Outcome, outcomeWidth);
}

} // namespace orda_client
