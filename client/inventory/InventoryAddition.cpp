#include "client/inventory/InventoryAddition.h"

#include <orda_worker/SystemAssistant.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/InventoryEntries.h>
#include <vms_client_sdk/WholeFile.h>

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace orda_client {

using vms_sdk::DevInfo;
using vms_sdk::InventoryEntries;

namespace {

void tell(const QString &text)
{
    orda_worker::SystemAssistant::instance().messageAlert(InventoryAddition::tr("Add to inventory"), text);
}

/// Why readInventory() would not take them; empty when it would.
QString faultIn(const QJsonArray &devices)
{
    QVector<InventoryEntries::Entry> entries;
    for (const QJsonValue &value : devices) {
        const QJsonObject fields = value.toObject();
        entries.append({fields.value(QLatin1String("id")).toString(), fields});
    }
    const InventoryEntries checked = vms_sdk::checkInventoryEntries(entries);
    if (checked.faults.isEmpty())
        return {};
    const InventoryEntries::Fault &fault = checked.faults.constFirst();
    return InventoryAddition::tr("%1: \"%2\" %3").arg(entries.at(fault.entry).name, fault.field, fault.whatIsRight);
}

} // namespace

InventoryAddition::InventoryAddition(QObject *parent)
    : QObject(parent)
{
}

void InventoryAddition::add(const QList<DevInfo> &devices, const QString &inventory, QWidget *asking)
{
    if (!inventory.isEmpty()) {
        append(devices, inventory);
        return;
    }
    auto *dialog = new QFileDialog(asking, tr("Save the inventory of %n device(s)", nullptr, devices.size()), {},
                                   tr("Inventories (*.json);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("json"));
    dialog->selectFile(QStringLiteral("cameras.json"));
    connect(dialog, &QFileDialog::fileSelected, this, [this, devices](const QString &file) { write(devices, file); });
    dialog->open();
}

/// The file's own members stay, those too that nobody here knows.
void InventoryAddition::append(const QList<DevInfo> &devices, const QString &inventory)
{
    const QString error = vms_sdk::readInventory(inventory).error;
    QFile file(inventory);
    if (!error.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        tell(error.isEmpty() ? tr("%1 cannot be read: %2").arg(inventory, file.errorString()) : error);
        return;
    }
    QJsonObject content = QJsonDocument::fromJson(file.readAll()).object();
    file.close();
    const QString key = QStringLiteral("devices");
    QJsonArray all = content.value(key).toArray();
    const QJsonArray added = vms_sdk::inventoryToJson(devices).value(key).toArray();
    for (const QJsonValue &device : added)
        all.append(device);
    const QString fault = faultIn(all);
    if (!fault.isEmpty()) {
        tell(tr("Nothing was added to %1: %2.").arg(QFileInfo(inventory).fileName(), fault));
        return;
    }
    content.insert(key, all);
    const QString why =
        vms_sdk::writeWholeFile(inventory, QJsonDocument(content).toJson(), vms_sdk::Readers::OwnerOnly);
    if (why.isEmpty())
        emit signalAdded(inventory);
    else
        tell(tr("%1 cannot be written: %2").arg(inventory, why));
}

void InventoryAddition::write(const QList<DevInfo> &devices, const QString &inventory)
{
    const QString fault = faultIn(vms_sdk::inventoryToJson(devices).value(QLatin1String("devices")).toArray());
    const QString error = fault.isEmpty() ? vms_sdk::writeInventory(inventory, devices) : fault;
    if (error.isEmpty())
        emit signalAdded(inventory);
    else
        tell(error);
}

} // namespace orda_client
