#include "client/CsvFile.h"

#include <vms_client_sdk/WholeFile.h>

#include <QAbstractItemModel>
#include <QRegularExpression>

#include <functional>

namespace orda_client {

namespace {

QString cell(QString text)
{
    // No text of a device may become a formula, not even in spreadsheets that split cells at other characters.
    static const QRegularExpression formula(
        QStringLiteral("(^|[;|\\t\\r\\n])(?=[=+@\\t\\r\\n\uFF1D\uFF0B\uFF20\uFF0D-])"));
    text.replace(formula, QStringLiteral("\\1'"));
    const auto has = [&text](char character) { return text.contains(QLatin1Char(character)); };
    if (has(',') || has(';') || has('\t') || has('"') || has('\r') || has('\n'))
        text = QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
    return text;
}

QString line(int columns, const std::function<QVariant(int column)> &value)
{
    QStringList cells;
    for (int column = 0; column < columns; ++column)
        cells.append(cell(value(column).toString()));
    return cells.join(QLatin1Char(',')) + QLatin1String("\r\n");
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
