#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

namespace orda_programs {

/// A row of a CSV file.
struct CsvRow
{
    int line = 1; ///< where it begins, counted from 1: a cell in quotation marks may have several lines
    QStringList cells; ///< as they lie there; csvText() gives what is meant
    QVector<int> notUtf8; ///< lines of it that are not UTF-8: what their cells hold is of no use
};

/// The rows of a CSV file in UTF-8, whose cells stand between "," or between ";": whichever comes first. Empty lines
/// are no rows.
struct CsvRows
{
    QVector<CsvRow> rows;
    int lines = 0; ///< of the file, as far as it was read
    /// Nothing after the rows could be read, because of wrong quotation marks in this line and cell, both counted from
    /// 1; the line is 0 when they are right.
    int brokenLine = 0;
    int brokenCell = 0;
};

/// @param content without a mark of the byte order
CsvRows readCsv(const QByteArray &content);

} // namespace orda_programs
