#pragma once

#include <QCoreApplication>
#include <QString>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
QT_END_NAMESPACE

/// Tables for spreadsheets: comma-separated values as in RFC 4180, in UTF-8 with a mark by which spreadsheets know it.
class CsvFile
{
    Q_DECLARE_TR_FUNCTIONS(CsvFile)

public:
    /// Writes a table with its column titles, row by row as it stands (Qt::EditRole). A file of that name is replaced
    /// only when the new one is whole. A cell that a spreadsheet would take for a formula gets an apostrophe in front:
    /// names and messages are other people's texts.
    /// @return an error for the user, empty when the file is written
    static QString write(const QString &path, const QAbstractItemModel &table);
};
