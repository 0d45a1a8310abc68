#include "client/app/ClientOptions.h"

#include "client/form/Families.h"
#include "programs/CommandLine.h"

#include <QCoreApplication>
#include <QDir>

namespace orda_client {

namespace {

QString familyList()
{
    return familyNames().join(QStringLiteral(", "));
}

QStringList idsIn(const QString &list)
{
    QStringList ids = list.split(QLatin1Char(','));
    for (QString &id : ids)
        id = id.trimmed();
    ids.removeAll({});
    ids.removeDuplicates();
    return ids;
}

// There are more addresses in 127.0.0.0/8, but not more open files for one process.
constexpr int maxDemoDevices = 100000;

QCommandLineOption option(const char *name, const QString &description, const char *value)
{
    return {QLatin1String(name), description, QLatin1String(value)};
}

struct KnownOptions
{
    QCommandLineOption demo = option("demo", ClientOptions::tr("Bring N simulated devices along."), "N");
    QCommandLineOption onvif =
        option("onvif", ClientOptions::tr("M simulated ONVIF cameras beside them (with --demo)."), "M");
    QCommandLineOption inventory =
        option("inventory", ClientOptions::tr("Connect to the devices of this inventory file."), "FILE");
    QCommandLineOption faults =
        option("faults", ClientOptions::tr("Faults of the simulated devices (with --demo)."), "FILE");
    QCommandLineOption language = option(
        "language", ClientOptions::tr("Language of the window, such as \"en\"; the system's when not given."), "CODE");
    QCommandLineOption theme =
        option("theme", ClientOptions::tr(R"("light" or "dark"; as the desktop is when not given.)"), "NAME");
    QCommandLineOption run =
        option("run",
               ClientOptions::tr(
                   "Drive the form without a person: one run of FAMILY (%1) with the form's default values, then "
                   "exit. For demos and pictures; orda_batch(1) sets values of your own.")
                   .arg(familyList()),
               "FAMILY");
    QCommandLineOption devices = option(
        "devices", ClientOptions::tr("Devices to configure with --run: \"all\" (default) or ids with commas."), "IDS");
    QCommandLineOption yes = {QStringLiteral("yes"),
                              ClientOptions::tr("Let --run write to the devices of an inventory.")};
    QCommandLineOption screenshots =
        option("screenshots",
               ClientOptions::tr("Save pictures of the pages, the run and its summary here (with --run)."), "DIR");
};

bool namesAllDevices(const QCommandLineParser &parser, const KnownOptions &known)
{
    return !parser.isSet(known.devices) || parser.value(known.devices) == QLatin1String("all");
}

/// What is wrong with the values or with their combination; empty when nothing is.
QString mistakeIn(const ClientOptions &options, const QCommandLineParser &parser, const KnownOptions &known)
{
    const auto isSet = [&parser](const QCommandLineOption &option) { return parser.isSet(option); };
    if (!parser.positionalArguments().isEmpty())
        return ClientOptions::tr("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst());
    if (isSet(known.demo) && (options.demoDevices < 1 || options.demoDevices > maxDemoDevices)) {
        return ClientOptions::tr("--demo takes a number of devices from 1 to %1, not \"%2\"")
            .arg(QString::number(maxDemoDevices), parser.value(known.demo));
    }
    if (isSet(known.onvif) && (options.demoCameras < 1 || options.demoCameras > maxDemoDevices)) {
        return ClientOptions::tr("--onvif takes a number of cameras from 1 to %1, not \"%2\"")
            .arg(QString::number(maxDemoDevices), parser.value(known.onvif));
    }
    if (isSet(known.onvif) && !isSet(known.demo))
        return ClientOptions::tr("--onvif needs --demo: it brings simulated cameras along");
    if (isSet(known.inventory) && options.inventoryFile.isEmpty())
        return ClientOptions::tr("--inventory takes a file");
    if (isSet(known.demo) && isSet(known.inventory))
        return ClientOptions::tr("--demo and --inventory exclude each other");
    if (isSet(known.faults) && !isSet(known.demo))
        return ClientOptions::tr("--faults needs --demo: only simulated devices have faults to order");
    if (isSet(known.theme) && options.theme != QLatin1String("light") && options.theme != QLatin1String("dark"))
        return ClientOptions::tr("--theme takes light or dark, not \"%1\"").arg(options.theme);
    if (isSet(known.run) && !findFamily(options.drive.family))
        return ClientOptions::tr("--run takes one of %1, not \"%2\"").arg(familyList(), options.drive.family);
    if (isSet(known.run) && !isSet(known.demo) && !isSet(known.inventory))
        return ClientOptions::tr("--run needs devices: --demo N or --inventory FILE");
    if (!isSet(known.run) && (isSet(known.devices) || isSet(known.screenshots) || isSet(known.yes)))
        return ClientOptions::tr("--devices, --screenshots and --yes need --run");
    if (isSet(known.run) && isSet(known.inventory) && !isSet(known.yes)) {
        return ClientOptions::tr("--run with --inventory writes the form's default values to real devices: add --yes "
                                 "if that is meant, or set values of your own with orda_batch(1)");
    }
    if (!namesAllDevices(parser, known) && options.drive.deviceIds.isEmpty())
        return ClientOptions::tr("--devices takes \"all\" or device ids with commas between them");
    if (isSet(known.screenshots) && !QDir().mkpath(options.drive.screenshotsDir))
        return ClientOptions::tr("--screenshots: cannot make the directory \"%1\"").arg(options.drive.screenshotsDir);
    return {};
}

} // namespace

ClientOptions parseOptions(const QStringList &arguments)
{
    const KnownOptions known;
    QCommandLineParser parser;
    parser.setApplicationDescription(ClientOptions::tr(
        "Configures many online cameras and recorders at once.\n\n"
        "Exit codes: 0 every device was configured, 1 some were not, 2 wrong usage, 3 a file is wrong, 4 no device, "
        "5 nothing configured because the record is in use, 6 the record of the run is missing or not whole."));
    parser.addOptions({known.demo, known.onvif, known.inventory, known.faults, known.language, known.theme, known.run,
                       known.devices, known.yes, known.screenshots});

    ClientOptions options;
    options.error = orda_programs::parseCommandLine(parser, arguments);
    if (!options.error.isEmpty())
        return options;
    options.demoDevices = parser.value(known.demo).toInt(); // 0 when it is no number
    options.demoCameras = parser.value(known.onvif).toInt();
    options.inventoryFile = parser.value(known.inventory);
    options.faultsFile = parser.value(known.faults);
    options.theme = parser.value(known.theme);
    options.drive.family = parser.value(known.run);
    options.drive.screenshotsDir = parser.value(known.screenshots);
    if (!namesAllDevices(parser, known))
        options.drive.deviceIds = idsIn(parser.value(known.devices));
    options.error = mistakeIn(options, parser, known);
    return options;
}

} // namespace orda_client
