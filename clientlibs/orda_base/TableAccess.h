#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QPersistentModelIndex>
#include <QTimer>

QT_BEGIN_NAMESPACE
class QTableView;
QT_END_NAMESPACE

namespace orda_base {

/// A table as assistive technology sees it. In place of Qt's own, whose cells can be selected but not ticked: here a
/// cell with a check mark says whether it is ticked, can be toggled, and reports when that changes.
///
/// The children are numbered as QTableView numbers them in its events: row by row with the headers, from the corner on.
class TableAccess : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit TableAccess(QTableView *view);

    /// Makes a table of the class TableWidget be seen through this; called by its constructor.
    static void install(QTableView *view);

    void *interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface *child(int number) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override { return selectedColumns().size(); }
    int selectedRowCount() const override { return selectedRows().size(); }
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override { return select(row, true); }
    bool selectColumn(int) override { return false; } // rows are selected as a whole
    bool unselectRow(int row) override { return select(row, false); }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

protected:
    ~TableAccess() override;

private:
    bool select(int row, bool selected);
    QAccessibleInterface *header(Qt::Orientation orientation, int section) const;
    void forgetWhatIsGone();
    void reportCheckStates(const QModelIndex &topLeft, const QModelIndex &bottomRight) const;

    QTableView *m_view;
    QMetaObject::Connection m_changes;
    // What has been asked for; the cells move with their rows.
    mutable QHash<QPersistentModelIndex, QAccessible::Id> m_cells;
    mutable QHash<int, QAccessible::Id> m_headers; ///< by child number
    QTimer m_forgetSoon;
};

} // namespace orda_base
