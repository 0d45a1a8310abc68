#pragma once

#include <QStringList>

namespace orda_programs {

// Tables for spreadsheets: comma-separated values as in RFC 4180.

/// A text as a cell, in quotation marks where it needs them. What a spreadsheet would take for a formula gets an
/// apostrophe in front: names and messages are other people's texts.
QString csvCell(QString text);
/// The text that csvCell() has made a cell of, which is not in quotation marks any more.
QString csvText(QString cell);
/// The texts as cells of a line, with its end.
QString csvLine(const QStringList &texts);

} // namespace orda_programs
