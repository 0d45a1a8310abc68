#include "fleet/DeviceFleet.h"
#include "fleet/FaultPlan.h"
#include "fleet/ProgramOptions.h"
#include "programs/Complaint.h"
#include "programs/ExitCode.h"
#include "programs/UnixSignals.h"

#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/OpenFiles.h>
#include <vms_client_sdk/WholeFile.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTextStream>

using namespace device_fleet;
using namespace orda_programs;

namespace {

constexpr qint64 filesPerCamera = 2; // a client keeps one, and opens others for a moment
constexpr qint64 otherFiles = 64; // libraries, the server socket, input and output files

/// @return a text for the user, empty on success
QString writeDump(const QString &path, const QJsonObject &dump)
{
    const QString why = vms_sdk::writeWholeFile(path, QJsonDocument(dump).toJson(), vms_sdk::Readers::OwnerOnly);
    return why.isEmpty() ? QString() : QCoreApplication::translate("main", "%1: cannot be written: %2").arg(path, why);
}

QString openFilesError(const FleetOptions &options)
{
    const qint64 devices = options.devices + options.onvifDevices;
    const qint64 needed = options.devices + options.onvifDevices * filesPerCamera + otherFiles;
    const qint64 limit = vms_sdk::raiseOpenFileLimit();
    if (needed <= limit)
        return {};
    return QCoreApplication::translate("main",
                                       "%1 devices need %2 open files, but this process may have only %3 (ulimit -n)")
        .arg(devices)
        .arg(needed)
        .arg(limit);
}

FaultPlan readFaults(const QString &path, QString *error)
{
    if (path.isEmpty())
        return {};
    QStringList warnings;
    FaultPlan plan = FaultPlan::read(path, error, &warnings);
    for (const QString &warning : qAsConst(warnings))
        complain(warning);
    return plan;
}

} // namespace

int main(int argc, char *argv[])
{
    // GLib's dispatcher checks every socket on every wake-up, which takes seconds with thousands of devices.
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("orda_fleet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORDA_VERSION));

    const ProgramOptions options = parseOptions(QCoreApplication::arguments());
    if (!options.error.isEmpty())
        return fail(options.error + QStringLiteral(" (see orda_fleet --help)"), ExitUsage);

    QString error = openFilesError(options.fleet);
    const FaultPlan faults = error.isEmpty() ? readFaults(options.faultsFile, &error) : FaultPlan();
    if (!error.isEmpty())
        return fail(error, ExitInput);

    const UnixSignals signalsOfProcess;
    DeviceFleet fleet(options.fleet, faults);
    error = fleet.start();
    if (error.isEmpty())
        error = vms_sdk::writeInventory(options.inventoryFile, fleet.inventory());
    if (!error.isEmpty())
        return fail(error, ExitInput);

    const auto dump = [&options, &fleet] { return writeDump(options.dumpFile, fleet.dump()); };
    if (!options.dumpFile.isEmpty()) {
        QObject::connect(&signalsOfProcess, &UnixSignals::dumpRequested, &fleet, [&dump] {
            const QString dumpError = dump();
            if (!dumpError.isEmpty())
                complain(dumpError);
        });
    }
    QObject::connect(&signalsOfProcess, &UnixSignals::endRequested, &app, &QCoreApplication::quit);
    QTextStream(stdout) << "listening on " << fleet.address() << ", "
                        << options.fleet.devices + options.fleet.onvifDevices << " devices" << Qt::endl;
    QCoreApplication::exec();

    error = options.dumpFile.isEmpty() ? QString() : dump();
    return error.isEmpty() ? ExitOk : fail(error, ExitInput);
}
