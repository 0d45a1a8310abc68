#include "batch/KeyTable.h"
#include "batch/WantedValues.h"
#include "fleet/FaultPlan.h"
#include "fleet/SimulatedDevice.h"

#include <families/Families.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/websocket/AnswerCheck.h>

#include <QFile>
#include <QTemporaryDir>

#include <optional>
#include <sanitizer/lsan_interface.h>

// Values ("v" first), inventories (first byte even) and fault files (odd): an error or what was read, never both; what
// was read survives being written.

namespace {

/// A file of its own for each input: writing an inventory replaces the file, which an open one would not follow.
QString writeInput(const char *data, qint64 size)
{
    static const QTemporaryDir dir(QStringLiteral("/dev/shm/files_fuzz"));
    QFile file(dir.filePath(QStringLiteral("input")));
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate)
                      && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) && file.write(data, size) == size;
    if (!written)
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    return file.fileName();
}

void checkInventory(const QString &path)
{
    const vms_sdk::Inventory inventory = vms_sdk::readInventory(path);
    if (!inventory.error.isEmpty()) {
        if (!inventory.devices.isEmpty() || !inventory.error.startsWith(path))
            qFatal("%s, and %d devices", qPrintable(inventory.error), inventory.devices.size());
        return;
    }
    if (const QString error = vms_sdk::writeInventory(path, inventory.devices); !error.isEmpty())
        qFatal("%s", qPrintable(error));
    const vms_sdk::Inventory again = vms_sdk::readInventory(path);
    if (!again.error.isEmpty() || !again.warnings.isEmpty() || again.devices != inventory.devices)
        qFatal("reads back differently: %s", qPrintable(again.error));
}

void checkFaultPlan(const QString &path)
{
    QString error;
    QStringList warnings;
    const auto plan = device_fleet::FaultPlan::read(path, &error, &warnings);
    const QStringList devices = plan.deviceIds() + QStringList{device_fleet::FaultPlan::any()};
    const QStringList methods = device_fleet::SimulatedDevice::methods() + QStringList{device_fleet::FaultPlan::any()};
    for (const QString &device : devices) {
        for (const QString &method : methods) {
            const auto fault = plan.find(device, method);
            if (fault && (!error.isEmpty() || fault->errorCode == 0 || fault->delay.count() < 0))
                qFatal("a fault that nobody can have meant; error: \"%s\"", qPrintable(error));
        }
    }
    if (!error.isEmpty() && (devices.size() > 1 || !error.startsWith(path)))
        qFatal("%s, and faults", qPrintable(error));
}

void checkValues(const QString &path)
{
    for (const char *name : {"osd", "video"}) {
        const auto &family = *orda_batchCfg::Families::find(QLatin1String(name));
        const auto wanted = orda_batch::WantedValues::fromFile(path, {family, false});
        const auto unchecked = orda_batch::WantedValues::fromFile(path, {family, true});
        for (const QString &error : wanted.errors)
            if (!error.startsWith(path) && error != wanted.errors.constLast())
                qFatal("of which file: %s", qPrintable(error));
        if (wanted.errors.isEmpty() && (!unchecked.errors.isEmpty() || unchecked.values() != wanted.values()))
            qFatal("right, and without a check not: %s", qPrintable(unchecked.errors.join(QLatin1Char('\n'))));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    if (size < 1)
        return 0;
    const auto *text = reinterpret_cast<const char *>(data) + 1;
    const QString path = writeInput(text, qint64(size) - 1);
    // Qt's parser loses memory where a key comes twice. In a file of the operator's own that happens once, and is let
    // go.
    std::optional<__lsan::ScopedDisabler> noLeakCheck;
    if (vms_sdk::checkAnswer(QByteArray::fromRawData(text, int(size) - 1)).fault)
        noLeakCheck.emplace();
    if (data[0] == 'v')
        checkValues(path);
    else if (data[0] % 2 == 0)
        checkInventory(path);
    else
        checkFaultPlan(path);
    return 0;
}
