#include <orda_base/TableAccess.h>

#include <QAccessibleWidget>
#include <QHash>
#include <QPair>
#include <QPersistentModelIndex>
#include <QStringList>
#include <QTableView>

namespace orda_base {

namespace {

/// A header or a cell. A column's header has the row -1, a row's the column -1, the corner both.
class Part : public QAccessibleInterface
{
public:
    explicit Part(QTableView *view)
        : m_view(view)
    {
    }

    virtual int row() const = 0;
    virtual int column() const = 0;

    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override { }

    int number() const { return (row() + 1) * (model()->columnCount() + 1) + column() + 1; }

protected:
    QAbstractItemModel *model() const { return m_view->model(); }

    QTableView *m_view;
};

/// Read out and never pointed at: the lists of the client hide the headers of their tables.
class Header : public Part
{
public:
    Header(QTableView *view, int row, int column)
        : Part(view)
        , m_row(row)
        , m_column(column)
    {
    }

    int row() const override { return m_row; }
    int column() const override { return m_column; }
    bool isValid() const override { return m_row < model()->rowCount() && m_column < model()->columnCount(); }
    QAccessible::Role role() const override
    {
        if (isOfRow())
            return QAccessible::RowHeader;
        return m_column >= 0 ? QAccessible::ColumnHeader : QAccessible::Pane;
    }
    QString text(QAccessible::Text type) const override
    {
        const QVariant text =
            isOfRow() ? model()->headerData(m_row, Qt::Vertical) : model()->headerData(m_column, Qt::Horizontal);
        return type == QAccessible::Name ? text.toString() : QString();
    }
    QRect rect() const override { return {}; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = true;
        return state;
    }

private:
    bool isOfRow() const { return m_row >= 0; }

    int m_row;
    int m_column;
};

/// Stays with its index while rows come and go.
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
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }

    int row() const override { return m_index.row(); }
    int column() const override { return m_index.column(); }
    bool isValid() const override { return m_index.isValid(); }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QString text(QAccessible::Text type) const override
    {
        const QVariant spoken = m_index.data(Qt::AccessibleTextRole);
        return type == QAccessible::Name ? (spoken.isValid() ? spoken : m_index.data()).toString() : QString();
    }
    QRect rect() const override
    {
        const QRect local = m_view->visualRect(m_index);
        return {m_view->viewport()->mapToGlobal(local.topLeft()), local.size()};
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid)
            return state;
        const QAccessible::State whole = parent()->state();
        const QRect local = m_view->visualRect(m_index); // empty when the row or the column is hidden
        state.invisible = whole.invisible || local.isEmpty();
        state.offscreen = !local.isEmpty() && !m_view->viewport()->rect().intersects(local);
        state.disabled = whole.disabled || (m_index.flags() & Qt::ItemIsEnabled) == 0;
        state.selectable = (m_index.flags() & Qt::ItemIsSelectable) != 0;
        state.selected = isSelected();
        state.focusable = true;
        state.focused = m_view->hasFocus() && m_view->currentIndex() == m_index;
        state.readOnly = true;
        state.checkable = isCheckable();
        state.checked = state.checkable && isChecked();
        return state;
    }

    bool isSelected() const override { return m_view->selectionModel()->isSelected(m_index); }
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {parent()->child(column() + 1)}; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {parent()->child(number() - column() - 1)}; }
    int columnIndex() const override { return column(); }
    int rowIndex() const override { return row(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override
    {
        return isCheckable() ? QStringList{toggleAction(), setFocusAction()} : QStringList{setFocusAction()};
    }
    void doAction(const QString &name) override
    {
        if (!isValid() || !m_view->isEnabled())
            return;
        if (name == setFocusAction()) {
            m_view->setCurrentIndex(m_index);
            m_view->setFocus();
        } else if (name == toggleAction() && isCheckable()) {
            model()->setData(m_index, isChecked() ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        }
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    bool isChecked() const { return m_index.data(Qt::CheckStateRole).toInt() == Qt::Checked; }
    bool isCheckable() const
    {
        return (m_index.flags() & Qt::ItemIsUserCheckable) != 0 && m_index.data(Qt::CheckStateRole).isValid()
            && !m_view->isRowHidden(row());
    }

    QPersistentModelIndex m_index;
};

/// The children are numbered as in the events of QTableView: row by row, each with its header first, and the column
/// headers before them.
class TableAccess : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit TableAccess(QTableView *view)
        : QAccessibleWidget(view, QAccessible::Table)
        , m_view(view)
        , m_changes(QObject::connect(
              view->model(), &QAbstractItemModel::dataChanged, view,
              [this](const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles) {
                  if (roles.contains(Qt::CheckStateRole))
                      reportCheckStates(topLeft, bottomRight.row());
              }))
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    int childCount() const override { return (rowCount() + 1) * (columnCount() + 1); }
    QAccessibleInterface *child(int number) const override
    {
        if (number < 0 || number >= childCount())
            return nullptr;
        const int row = number / (columnCount() + 1) - 1;
        const int column = number % (columnCount() + 1) - 1;
        return row < 0 || column < 0 ? header(row, column) : cellAt(row, column);
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const bool isOurs = child && child->isValid() && child->parent() == this;
        return isOurs ? static_cast<const Part *>(child)->number() : -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        return cell(m_view->indexAt(m_view->viewport()->mapFromGlobal(QPoint(x, y))));
    }

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    int rowCount() const override { return model()->rowCount(); }
    int columnCount() const override { return model()->columnCount(); }
    QAccessibleInterface *cellAt(int row, int column) const override { return cell(model()->index(row, column)); }
    QString rowDescription(int row) const override { return Header(m_view, row, -1).text(QAccessible::Name); }
    QString columnDescription(int column) const override { return Header(m_view, -1, column).text(QAccessible::Name); }
    int selectedCellCount() const override { return selection()->selectedIndexes().size(); }
    QList<QAccessibleInterface *> selectedCells() const override
    {
        QList<QAccessibleInterface *> cells;
        const QModelIndexList selected = selection()->selectedIndexes();
        for (const QModelIndex &index : selected)
            cells.append(cell(index));
        return cells;
    }
    QList<int> selectedRows() const override
    {
        QList<int> rows;
        const QModelIndexList selected = selection()->selectedRows();
        for (const QModelIndex &index : selected)
            rows.append(index.row());
        return rows;
    }
    int selectedRowCount() const override { return selectedRows().size(); }
    bool isRowSelected(int row) const override { return selection()->isRowSelected(row, {}); }
    bool selectRow(int row) override { return select(row, QItemSelectionModel::Select); }
    bool unselectRow(int row) override { return select(row, QItemSelectionModel::Deselect); }
    // Rows are selected as a whole, columns never.
    QList<int> selectedColumns() const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    bool isColumnSelected(int) const override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *) override { } // the parts ask the model each time

protected:
    ~TableAccess() override
    {
        QObject::disconnect(m_changes);
        for (const QAccessible::Id id : qAsConst(m_cells))
            QAccessible::deleteAccessibleInterface(id);
        for (const QAccessible::Id id : qAsConst(m_headers))
            QAccessible::deleteAccessibleInterface(id);
    }

private:
    const QAbstractItemModel *model() const { return m_view->model(); }
    QItemSelectionModel *selection() const { return m_view->selectionModel(); }

    QAccessibleInterface *header(int row, int column) const
    {
        QAccessible::Id &id = m_headers[{row, column}];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(new Header(m_view, row, column));
        return QAccessible::accessibleInterface(id);
    }

    QAccessibleInterface *cell(const QModelIndex &index) const
    {
        if (!index.isValid())
            return nullptr;
        if (m_cells.size() > 2 * childCount())
            forgetRemovedCells();
        QAccessible::Id &id = m_cells[index];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(new Cell(m_view, index));
        return QAccessible::accessibleInterface(id);
    }

    // Not with every row that is removed: a site that goes offline removes thousands.
    void forgetRemovedCells() const
    {
        const auto known = m_cells.keys();
        for (const QPersistentModelIndex &index : known)
            if (!index.isValid())
                QAccessible::deleteAccessibleInterface(m_cells.take(index));
    }

    bool select(int row, QItemSelectionModel::SelectionFlags command)
    {
        const bool isSingle = m_view->selectionMode() == QAbstractItemView::SingleSelection;
        const bool isRefused = m_view->selectionMode() == QAbstractItemView::NoSelection || m_view->isRowHidden(row)
                            || (isSingle && command == QItemSelectionModel::Deselect);
        const QModelIndex index = model()->index(row, 0);
        if (isRefused || !index.isValid())
            return false;
        command.setFlag(QItemSelectionModel::Clear, isSingle);
        selection()->select(index, command | QItemSelectionModel::Rows);
        return true;
    }

    void reportCheckStates(const QModelIndex &first, int lastRow) const
    {
        QAccessible::State changed;
        changed.checked = true;
        for (int row = first.row(); row <= lastRow; ++row) {
            // Only of cells that somebody has asked for: "All" ticks thousands.
            const QAccessible::Id id = m_cells.value(first.sibling(row, first.column()));
            if (id != 0) {
                QAccessibleStateChangeEvent event(QAccessible::accessibleInterface(id), changed);
                QAccessible::updateAccessibility(&event);
            }
        }
    }

    QTableView *m_view;
    QMetaObject::Connection m_changes;
    // What has been asked for. Cells move with their rows.
    mutable QHash<QPersistentModelIndex, QAccessible::Id> m_cells;
    mutable QHash<QPair<int, int>, QAccessible::Id> m_headers; // by row and column
};

QStringList &classesWithAccess()
{
    static QStringList names;
    return names;
}

QAccessibleInterface *makeTableAccess(const QString &className, QObject *object)
{
    if (classesWithAccess().contains(className))
        return new TableAccess(qobject_cast<QTableView *>(object));
    return nullptr;
}

} // namespace

void installTableAccess(QTableView *view)
{
    const QString name = QString::fromLatin1(view->metaObject()->className());
    if (!classesWithAccess().contains(name))
        classesWithAccess().append(name);
    QAccessible::installFactory(makeTableAccess); // does nothing when it is there already
    // The constructor of QTableView has told assistive technology of the table by now, which has made one of Qt's.
    if (QAccessible::isActive())
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(view)));
}

} // namespace orda_base
