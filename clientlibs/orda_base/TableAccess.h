#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QTableView;
QT_END_NAMESPACE

namespace orda_base {

/// Lets assistive technology tick the rows of a TableWidget, which calls this in its constructor.
///
/// Qt 5.15 lacks two things: the action "Toggle" of a cell selects its row and leaves the check mark as it is, and a
/// check mark that changes is not reported. Qt makes its cells inside its table, where none can be replaced, so the
/// table is replaced as a whole. Everything besides these two things is as in Qt's: states, texts, places, headers,
/// and the selection of rows.
void installTableAccess(QTableView *view);

} // namespace orda_base
