#pragma once

#include <orda_base/Export.h>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QTableView;
QT_END_NAMESPACE

namespace orda_base {

/// Lets assistive technology work with a table of whole rows, whose class calls this in its constructor.
///
/// Qt 5.15 lacks three things: the action "Toggle" of a cell selects its row and leaves the check mark as it is, a
/// check mark that changes is not reported, and a table never says that it can have the focus or has it. Qt makes its
/// cells inside its table, where none can be replaced, so the table is replaced as a whole. Everything besides these
/// things is as in Qt's: texts, places, headers, and the selection of rows.
/// @param view under construction, of the class that calls this, with its model; it holds for all of that class
ORDA_BASE_EXPORT void installTableAccess(QTableView *view);

} // namespace orda_base
