#include "client/tables/TableView.h"

#include <orda_base/TableAccess.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <algorithm>

namespace orda_client {

namespace {

constexpr int rowPixels = 28;
constexpr int cellPadding = 16;

class EndElidingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideRight;
    }
};

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

void TableView::keyPressEvent(QKeyEvent *event)
{
    const bool isUp = event->key() == Qt::Key_Up;
    if ((event->modifiers() & Qt::AltModifier) == 0 || (!isUp && event->key() != Qt::Key_Down)) {
        QTableView::keyPressEvent(event);
        return;
    }
    if (currentIndex().isValid())
        sortByColumn(currentIndex().column(), isUp ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void TableView::elideAtEnd(const QVector<int> &columns)
{
    auto *delegate = new EndElidingDelegate(this);
    for (const int column : columns)
        setItemDelegateForColumn(column, delegate);
}

} // namespace orda_client
