#include "client/inventory/InventoryImport.h"

#include "client/inventory/ImportFaultsDialog.h"

#include <orda_worker/SystemAssistant.h>
#include <vms_client_sdk/Inventory.h>

#include <QFileDialog>
#include <QFileInfo>

namespace orda_client {

namespace {

constexpr qint64 maxBytes = 64 << 20; // a hundred thousand devices take a tenth of it

void tell(const QString &text)
{
    orda_worker::SystemAssistant::instance().messageAlert(InventoryImport::tr("Import devices"), text);
}

} // namespace

InventoryImport::InventoryImport(ClientSettings *settings, QWidget *window)
    : QObject(window)
    , m_settings(settings)
    , m_window(window)
{
}

void InventoryImport::start()
{
    auto *dialog =
        new QFileDialog(m_window, tr("Import devices"), {}, tr("Comma-separated values (*.csv);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &InventoryImport::read);
    dialog->open();
}

void InventoryImport::read(const QString &table)
{
    QFile file(table);
    if (!file.open(QIODevice::ReadOnly)) {
        tell(tr("%1 cannot be read: %2").arg(table, file.errorString()));
        return;
    }
    const QByteArray text = file.read(maxBytes + 1);
    if (text.size() > maxBytes) {
        tell(tr("%1 is larger than %2 MiB.").arg(table).arg(maxBytes >> 20));
        return;
    }
    const InventoryCsv::Content content = InventoryCsv::read(text);
    if (content.faults.isEmpty())
        askWhereTo(table, content);
    else
        (new ImportFaultsDialog(table, content.faults, m_settings, m_window))->open();
}

void InventoryImport::askWhereTo(const QString &table, const InventoryCsv::Content &content)
{
    const QFileInfo info(table);
    const QString file = info.completeBaseName() + QStringLiteral(".json");
    auto *dialog = new QFileDialog(m_window, tr("Save the inventory of %n device(s)", nullptr, content.devices.size()),
                                   info.absolutePath(), tr("Inventories (*.json);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("json"));
    dialog->selectFile(file);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, content](const QString &inventory) { write(inventory, content); });
    dialog->open();
}

void InventoryImport::write(const QString &inventory, const InventoryCsv::Content &content)
{
    const QString error = vms_sdk::writeInventory(inventory, content.devices);
    if (!error.isEmpty()) {
        tell(error);
        return;
    }
    emit signalImported(inventory);
    if (!content.unusedColumns.isEmpty())
        tell(tr("These columns are no fields of an inventory and were left out: %1.")
                 .arg(content.unusedColumns.join(QStringLiteral(", "))));
}

} // namespace orda_client
