#include "client/tables/CsvFile.h"

#include "programs/Csv.h"

#include <orda_worker/SystemAssistant.h>
#include <vms_client_sdk/WholeFile.h>

#include <QAbstractItemModel>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

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

void CsvFile::saveAs(QWidget *parent, const QAbstractItemModel &table, const QString &name)
{
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString file = QStringLiteral("%1-%2.csv").arg(name, QDate::currentDate().toString(Qt::ISODate));
    auto *dialog = new QFileDialog(parent, tr("Export CSV"), directory.filePath(file),
                                   tr("Comma-separated values (*.csv);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->selectFile(file);
    // What is shown now: the table may change while the dialog is open.
    QObject::connect(dialog, &QFileDialog::fileSelected, parent, [csv = text(table)](const QString &path) {
        const QString error = write(path, csv);
        if (!error.isEmpty())
            orda_worker::SystemAssistant::instance().messageAlert(tr("Export CSV"), error);
    });
    dialog->open();
}

} // namespace orda_client
