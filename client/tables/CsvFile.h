#pragma once

#include <QCoreApplication>
#include <QString>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// Tables for spreadsheets: comma-separated values as in RFC 4180, in UTF-8 with a mark by which spreadsheets know it.
class CsvFile
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::CsvFile)

public:
    /// A table with its column titles, row by row as it stands (Qt::EditRole). What a spreadsheet would take for a
    /// formula gets an apostrophe in front: names and messages are other people's texts.
    static QString text(const QAbstractItemModel &table);
    /// A file of that name is replaced only when the new one is whole.
    /// @return an error for the user, empty when the file is written
    static QString write(const QString &path, const QString &text);

    /// Asks for a file, in the directory of documents, and writes the table as it is at this moment. What goes wrong is
    /// told in an alert. Returns at once.
    /// @param name of the file at first, without date and suffix
    static void saveAs(QWidget *parent, const QAbstractItemModel &table, const QString &name);
};

} // namespace orda_client
