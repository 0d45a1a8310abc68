#include <FaultPlan.h>
#include <vms_client_sdk/Inventory.h>

#include <QFile>
#include <QTemporaryFile>

// Inventories (first byte even) and fault files (odd): an error or what was read, never both; what was read survives
// being written.

namespace {

QTemporaryFile &file()
{
    static QTemporaryFile instance(QStringLiteral("/dev/shm/files_fuzz"));
    return instance;
}

void checkInventory(const QString &path)
{
    const vms_sdk::Inventory inventory = vms_sdk::readInventory(path);
    if (!inventory.error.isEmpty()) {
        if (!inventory.devices.isEmpty() || !inventory.error.startsWith(path))
            qFatal("%s, and %d devices", qPrintable(inventory.error), inventory.devices.size());
        return;
    }
    if (!vms_sdk::writeInventory(path, inventory.devices).isEmpty())
        qFatal("cannot be written");
    const vms_sdk::Inventory again = vms_sdk::readInventory(path);
    if (again.devices != inventory.devices)
        qFatal("reads back differently: %s", qPrintable(again.error));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    if (size < 1 || !file().open())
        return 0;
    file().resize(0);
    file().write(reinterpret_cast<const char *>(data) + 1, qint64(size) - 1);
    file().close();
    if (data[0] % 2 == 0) {
        checkInventory(file().fileName());
        return 0;
    }
    QString error;
    QStringList warnings;
    const auto plan = device_fleet::FaultPlan::read(file().fileName(), &error, &warnings);
    if (!error.isEmpty() && (!plan.deviceIds().isEmpty() || !error.startsWith(file().fileName())))
        qFatal("%s, and faults", qPrintable(error));
    return 0;
}
