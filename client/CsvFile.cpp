#include "client/CsvFile.h"

#include "programs/Csv.h"

#include <vms_client_sdk/WholeFile.h>

#include <QAbstractItemModel>

#include <functional>

namespace orda_client {

namespace {

QString line(int columns, const std::function<QVariant(int column)> &value)
{
    QStringList texts;
    for (int column = 0; column < columns; ++column)
        texts.append(value(column).toString());
    return orda_programs::csvLine(texts);
}

} // namespace

QString CsvFile::text(const QAbstractItemModel &table)
{
    const int columns = table.columnCount();
    QString text = QChar(QChar::ByteOrderMark);
    text += line(columns, [&table](int column) { return table.headerData(column, Qt::Horizontal); });
    for (int row = 0; row < table.rowCount(); ++row)
        text += line(columns, [&table, row](int column) { return table.index(row, column).data(Qt::EditRole); });
    return text;
}

QString CsvFile::write(const QString &path, const QString &text)
{
    const QString why = vms_sdk::writeWholeFile(path, text.toUtf8(), vms_sdk::Readers::Usual);
    return why.isEmpty() ? QString() : tr("cannot write the file %1: %2").arg(path, why);
}

} // namespace orda_client
