#include "orda_base/TableAccess.h"

#include <QHeaderView>
#include <QTableView>

namespace orda_base {

namespace {

/// What the cells and the headers of a table have in common.
class Part : public QAccessibleInterface
{
public:
    explicit Part(QTableView *view)
        : m_view(view)
    {
    }

    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override { }

    virtual int number() const = 0; ///< among the table's children

protected:
    QTableView *view() const { return m_view; }

    /// Number of the child at a place; -1 is a header's row or column.
    int numberAt(int row, int column) const { return (row + 1) * (m_view->model()->columnCount() + 1) + column + 1; }

private:
    QTableView *m_view;
};

/// The header of a column or row, or the corner, which is the section -1 of the columns.
class Header : public Part
{
public:
    Header(QTableView *view, Qt::Orientation orientation, int section)
        : Part(view)
        , m_orientation(orientation)
        , m_section(section)
    {
    }

    bool isValid() const override
    {
        const QAbstractItemModel *model = view()->model();
        return m_section < (m_orientation == Qt::Horizontal ? model->columnCount() : model->rowCount());
    }

    QAccessible::Role role() const override
    {
        if (m_section < 0)
            return QAccessible::Pane;
        return m_orientation == Qt::Horizontal ? QAccessible::ColumnHeader : QAccessible::RowHeader;
    }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Name ? view()->model()->headerData(m_section, m_orientation).toString() : QString();
    }

    QRect rect() const override
    {
        const QHeaderView *bar =
            m_orientation == Qt::Horizontal ? view()->horizontalHeader() : view()->verticalHeader();
        if (m_section < 0 || bar->isHidden())
            return {};
        const int at = bar->sectionViewportPosition(m_section);
        const int size = bar->sectionSize(m_section);
        const QRect local =
            m_orientation == Qt::Horizontal ? QRect(at, 0, size, bar->height()) : QRect(0, at, bar->width(), size);
        return {bar->viewport()->mapToGlobal(local.topLeft()), local.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = rect().isEmpty();
        return state;
    }

    int number() const override
    {
        return m_orientation == Qt::Horizontal ? numberAt(-1, m_section) : numberAt(m_section, -1);
    }

private:
    Qt::Orientation m_orientation;
    int m_section;
};

class Cell : public Part, public QAccessibleTableCellInterface, public QAccessibleActionInterface
{
public:
    Cell(QTableView *view, const QModelIndex &index)
        : Part(view)
        , m_index(index)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface *>(this);
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface *>(this);
        return nullptr;
    }

    bool isValid() const override { return m_index.isValid(); }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    int number() const override { return numberAt(m_index.row(), m_index.column()); }

    QString text(QAccessible::Text type) const override
    {
        if (type != QAccessible::Name)
            return type == QAccessible::Description ? m_index.data(Qt::AccessibleDescriptionRole).toString()
                                                    : QString();
        const QString name = m_index.data(Qt::AccessibleTextRole).toString();
        return name.isEmpty() ? m_index.data().toString() : name;
    }

    QRect rect() const override
    {
        const QRect local = view()->visualRect(m_index);
        return {view()->viewport()->mapToGlobal(local.topLeft()), local.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const QAccessible::State whole = parent()->state();
        const bool isHidden = view()->isRowHidden(m_index.row()) || view()->isColumnHidden(m_index.column());
        state.invisible = whole.invisible || isHidden;
        state.offscreen = !isHidden && !view()->viewport()->rect().intersects(view()->visualRect(m_index));
        state.disabled = whole.disabled || (m_index.flags() & Qt::ItemIsEnabled) == 0;
        state.selectable = (m_index.flags() & Qt::ItemIsSelectable) != 0;
        state.selected = isSelected();
        state.focusable = true;
        state.focused = view()->hasFocus() && view()->currentIndex() == m_index;
        state.readOnly = true;
        state.checkable = isCheckable();
        state.checked = isCheckable() && m_index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return state;
    }

    bool isSelected() const override { return view()->selectionModel()->isSelected(m_index); }
    QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        return {parent()->child(numberAt(-1, m_index.column()))};
    }
    QList<QAccessibleInterface *> rowHeaderCells() const override
    {
        return {parent()->child(numberAt(m_index.row(), -1))};
    }
    int columnIndex() const override { return m_index.column(); }
    int rowIndex() const override { return m_index.row(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override
    {
        return isCheckable() ? QStringList{toggleAction(), setFocusAction()} : QStringList{setFocusAction()};
    }

    void doAction(const QString &name) override
    {
        if (!isValid() || !view()->isEnabled())
            return;
        if (name == setFocusAction()) {
            view()->setCurrentIndex(m_index);
            view()->setFocus();
        } else if (name == toggleAction() && isCheckable()) {
            const bool isChecked = m_index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            view()->model()->setData(m_index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        }
    }

    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    bool isCheckable() const
    {
        return (m_index.flags() & Qt::ItemIsUserCheckable) != 0 && m_index.data(Qt::CheckStateRole).isValid()
            && !view()->isRowHidden(m_index.row());
    }

    QPersistentModelIndex m_index;
};

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
        m_headers.insert(number, QAccessible::registerAccessibleInterface(new Header(m_view, orientation, section)));
    return QAccessible::accessibleInterface(m_headers.value(number));
}

QAccessibleInterface *TableAccess::cellAt(int row, int column) const
{
    const QModelIndex index = m_view->model()->index(row, column);
    if (!index.isValid())
        return nullptr;
    if (!m_cells.contains(index))
        m_cells.insert(index, QAccessible::registerAccessibleInterface(new Cell(m_view, index)));
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
    const auto *part = dynamic_cast<const Part *>(child);
    return part && part->isValid() && part->parent() == this ? part->number() : -1;
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
        m_forgetSoon.start(); // once for the thousands of rows that a site has when it goes off line
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
