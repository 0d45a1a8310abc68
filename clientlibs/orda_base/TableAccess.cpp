#include "orda_base/TableAccess.h"

#include "orda_base/TableParts.h"

#include <QTableView>

namespace orda_base {

namespace {

QAccessibleInterface *makeTableAccess(const QString &className, QObject *object)
{
    if (className == QLatin1String("orda_base::TableWidget"))
        return new TableAccess(qobject_cast<QTableView *>(object));
    return nullptr;
}

} // namespace

TableAccess::TableAccess(QTableView *view)
    : QAccessibleWidget(view, QAccessible::Table)
    , m_view(view)
    , m_changes(QObject::connect(
          view->model(), &QAbstractItemModel::dataChanged, view,
          [this](const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles) {
              if (roles.contains(Qt::CheckStateRole))
                  reportCheckStates(topLeft, bottomRight);
          }))
{
    m_forgetSoon.setSingleShot(true);
    QObject::connect(&m_forgetSoon, &QTimer::timeout, &m_forgetSoon, [this] { forgetWhatIsGone(); });
}

TableAccess::~TableAccess()
{
    QObject::disconnect(m_changes);
    for (const QAccessible::Id id : qAsConst(m_cells))
        QAccessible::deleteAccessibleInterface(id);
    for (const QAccessible::Id id : qAsConst(m_headers))
        QAccessible::deleteAccessibleInterface(id);
}

void TableAccess::install(QTableView *view)
{
    QAccessible::installFactory(makeTableAccess); // does nothing when it is there already
    // The base class has told whoever listens of its model by now, which has made it known as a plain table.
    if (QAccessible::isActive())
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(view)));
}

void *TableAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

int TableAccess::rowCount() const
{
    return m_view->model()->rowCount();
}

int TableAccess::columnCount() const
{
    return m_view->model()->columnCount();
}

int TableAccess::childCount() const
{
    return (rowCount() + 1) * (columnCount() + 1);
}

QAccessibleInterface *TableAccess::child(int number) const
{
    if (number < 0 || number >= childCount())
        return nullptr;
    const int row = number / (columnCount() + 1) - 1;
    const int column = number % (columnCount() + 1) - 1;
    if (row < 0)
        return header(Qt::Horizontal, column);
    return column < 0 ? header(Qt::Vertical, row) : cellAt(row, column);
}

QAccessibleInterface *TableAccess::header(Qt::Orientation orientation, int section) const
{
    const int number = orientation == Qt::Horizontal ? section + 1 : (section + 1) * (columnCount() + 1);
    if (!m_headers.contains(number))
        m_headers.insert(number,
                         QAccessible::registerAccessibleInterface(makeTableHeader(m_view, orientation, section)));
    return QAccessible::accessibleInterface(m_headers.value(number));
}

QAccessibleInterface *TableAccess::cellAt(int row, int column) const
{
    const QModelIndex index = m_view->model()->index(row, column);
    if (!index.isValid())
        return nullptr;
    if (!m_cells.contains(index))
        m_cells.insert(index, QAccessible::registerAccessibleInterface(makeTableCell(m_view, index)));
    return QAccessible::accessibleInterface(m_cells.value(index));
}

QAccessibleInterface *TableAccess::childAt(int x, int y) const
{
    const QModelIndex index = m_view->indexAt(m_view->viewport()->mapFromGlobal(QPoint(x, y)));
    return cellAt(index.row(), index.column());
}

QAccessibleInterface *TableAccess::focusChild() const
{
    const QModelIndex index = m_view->currentIndex();
    return m_view->hasFocus() ? cellAt(index.row(), index.column()) : nullptr;
}

int TableAccess::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child->isValid() && child->parent() == this ? tablePartNumber(child) : -1;
}

int TableAccess::selectedCellCount() const
{
    return m_view->selectionModel()->selectedIndexes().size();
}

QList<QAccessibleInterface *> TableAccess::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    const QModelIndexList selected = m_view->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected)
        cells.append(cellAt(index.row(), index.column()));
    return cells;
}

QString TableAccess::columnDescription(int column) const
{
    return m_view->model()->headerData(column, Qt::Horizontal).toString();
}

QString TableAccess::rowDescription(int row) const
{
    return m_view->model()->headerData(row, Qt::Vertical).toString();
}

QList<int> TableAccess::selectedColumns() const
{
    QList<int> columns;
    for (int column = 0; column < columnCount(); ++column)
        if (isColumnSelected(column))
            columns.append(column);
    return columns;
}

QList<int> TableAccess::selectedRows() const
{
    QList<int> rows;
    const QModelIndexList selected = m_view->selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        rows.append(index.row());
    return rows;
}

bool TableAccess::isColumnSelected(int column) const
{
    return m_view->selectionModel()->isColumnSelected(column, QModelIndex());
}

bool TableAccess::isRowSelected(int row) const
{
    return m_view->selectionModel()->isRowSelected(row, QModelIndex());
}

bool TableAccess::select(int row, bool selected)
{
    const QModelIndex index = m_view->model()->index(row, 0);
    const QAbstractItemView::SelectionMode mode = m_view->selectionMode();
    if (!index.isValid() || m_view->isRowHidden(row) || mode == QAbstractItemView::NoSelection)
        return false;
    if (mode == QAbstractItemView::SingleSelection) {
        if (selected)
            m_view->selectRow(row); // makes it the current one too
        return selected;
    }
    m_view->selectionModel()->select(index, (selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect)
                                                | QItemSelectionModel::Rows);
    return true;
}

void TableAccess::modelChange(QAccessibleTableModelChangeEvent *event)
{
    using Event = QAccessibleTableModelChangeEvent;
    const bool isLess = event->modelChangeType() == Event::RowsRemoved || event->modelChangeType() == Event::ModelReset;
    if (isLess && !m_forgetSoon.isActive())
        m_forgetSoon.start(); // once for the thousands of rows that a site has when it goes offline
}

void TableAccess::forgetWhatIsGone()
{
    for (auto cell = m_cells.begin(); cell != m_cells.end();) {
        if (cell.key().isValid()) {
            ++cell;
        } else {
            QAccessible::deleteAccessibleInterface(*cell);
            cell = m_cells.erase(cell);
        }
    }
    for (auto bar = m_headers.begin(); bar != m_headers.end();) {
        if (QAccessible::accessibleInterface(*bar)->isValid()) {
            ++bar;
        } else {
            QAccessible::deleteAccessibleInterface(*bar);
            bar = m_headers.erase(bar);
        }
    }
}

void TableAccess::reportCheckStates(const QModelIndex &topLeft, const QModelIndex &bottomRight) const
{
    QAccessible::State changed;
    changed.checked = true;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        // Only of cells that somebody has looked at: "All" ticks thousands.
        const auto cell = m_cells.constFind(m_view->model()->index(row, topLeft.column()));
        if (cell != m_cells.constEnd()) {
            QAccessibleStateChangeEvent event(QAccessible::accessibleInterface(*cell), changed);
            QAccessible::updateAccessibility(&event);
        }
    }
}

} // namespace orda_base
