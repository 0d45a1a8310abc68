#pragma once

#include <QAccessible>

QT_BEGIN_NAMESPACE
class QTableView;
QT_END_NAMESPACE

namespace orda_base {

/// What a table consists of for assistive technology. The caller owns what is made; it must go before the view. Both
/// name QAccessible::queryAccessibleInterface(view) as their parent, whose children are numbered row by row from the
/// corner on, each row with its header first.

/// The header of a column or a row; section -1 of the columns is the corner.
QAccessibleInterface *makeTableHeader(QTableView *view, Qt::Orientation orientation, int section);
/// A cell, which stays that of its index while rows come and go. It can be toggled where it is checkable and seen.
QAccessibleInterface *makeTableCell(QTableView *view, const QModelIndex &index);
/// The number of a valid header or cell among the table's children; -1 for every other interface.
int tablePartNumber(const QAccessibleInterface *part);

} // namespace orda_base
