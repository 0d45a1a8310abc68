#include "orda_base/TableParts.h"

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

} // namespace

QAccessibleInterface *makeTableHeader(QTableView *view, Qt::Orientation orientation, int section)
{
    return new Header(view, orientation, section);
}

QAccessibleInterface *makeTableCell(QTableView *view, const QModelIndex &index)
{
    return new Cell(view, index);
}

int tablePartNumber(const QAccessibleInterface *part)
{
    const auto *known = dynamic_cast<const Part *>(part);
    return known ? known->number() : -1;
}

} // namespace orda_base
