#include "client/ClientOptions.h"

#include "client/Families.h"
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

// 127.0.0.0/8 has room for more, the process's descriptors have not.
constexpr int maxDemoDevices = 100000;

} // namespace

QString requestedLanguage(const QStringList &arguments)
{
    const QCommandLineOption language(QStringLiteral("language"), {}, QStringLiteral("CODE"));
    QCommandLineParser parser;
    parser.addOption(language);
    parser.parse(arguments); // whatever else is there
    return parser.value(language);
}

ClientOptions parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(ClientOptions::tr(
        "Configures many online cameras and recorders at once.\n\n"
        "Exit codes: 0 every device was configured, 1 some were not, 2 wrong usage, 3 a file is wrong, 4 no device, "
        "5 nothing configured because the record is in use, 6 the record of the run is missing or not whole."));
    const QCommandLineOption demo(QStringLiteral("demo"), ClientOptions::tr("Bring N simulated devices along."),
                                  QStringLiteral("N"));
    const QCommandLineOption inventory(QStringLiteral("inventory"),
                                       ClientOptions::tr("Connect to the devices of this inventory file."),
                                       QStringLiteral("FILE"));
    const QCommandLineOption faults(QStringLiteral("faults"),
                                    ClientOptions::tr("Faults of the simulated devices (with --demo)."),
                                    QStringLiteral("FILE"));
    const QCommandLineOption language(
        QStringLiteral("language"),
        ClientOptions::tr("Language of the window, such as \"en\"; the system's when not given."),
        QStringLiteral("CODE"));
    const QCommandLineOption theme(QStringLiteral("theme"),
                                   ClientOptions::tr(R"("light" or "dark"; as the desktop is when not given.)"),
                                   QStringLiteral("NAME"));
    const QCommandLineOption run(
        QStringLiteral("run"),
        ClientOptions::tr("Drive the form without a person: one run of FAMILY (%1), then exit.").arg(familyList()),
        QStringLiteral("FAMILY"));
    const QCommandLineOption devices(
        QStringLiteral("devices"),
        ClientOptions::tr("Devices to configure with --run: \"all\" (default) or ids with commas."),
        QStringLiteral("IDS"));
    const QCommandLineOption screenshots(
        QStringLiteral("screenshots"),
        ClientOptions::tr("Save pictures of the pages, the run and its summary here (with --run)."),
        QStringLiteral("DIR"));
    parser.addOptions({demo, inventory, faults, language, theme, run, devices, screenshots});

    ClientOptions options;
    options.error = orda_programs::parseCommandLine(parser, arguments);
    if (!options.error.isEmpty())
        return options;

    options.inventoryFile = parser.value(inventory);
    options.faultsFile = parser.value(faults);
    options.family = parser.value(run);
    options.screenshotsDir = parser.value(screenshots);
    if (parser.isSet(devices) && parser.value(devices) != QLatin1String("all"))
        options.deviceIds = idsIn(parser.value(devices));

    const auto fail = [&options](const QString &why) {
        options.error = why;
        return options;
    };
    if (!parser.positionalArguments().isEmpty())
        return fail(ClientOptions::tr("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst()));
    if (parser.isSet(demo)) {
        bool isNumber = false;
        options.demoDevices = parser.value(demo).toInt(&isNumber);
        if (!isNumber || options.demoDevices < 1 || options.demoDevices > maxDemoDevices) {
            return fail(ClientOptions::tr("--demo takes a number of devices from 1 to %1, not \"%2\"")
                            .arg(QString::number(maxDemoDevices), parser.value(demo)));
        }
    }
    if (parser.isSet(inventory) && options.inventoryFile.isEmpty())
        return fail(ClientOptions::tr("--inventory takes a file"));
    if (parser.isSet(demo) && parser.isSet(inventory))
        return fail(ClientOptions::tr("--demo and --inventory exclude each other"));
    if (parser.isSet(faults) && !parser.isSet(demo))
        return fail(ClientOptions::tr("--faults needs --demo: only simulated devices have faults to order"));
    options.theme = parser.value(theme);
    if (parser.isSet(theme) && options.theme != QLatin1String("light") && options.theme != QLatin1String("dark"))
        return fail(ClientOptions::tr("--theme takes light or dark, not \"%1\"").arg(options.theme));
    if (parser.isSet(run) && !findFamily(options.family))
        return fail(ClientOptions::tr("--run takes one of %1, not \"%2\"").arg(familyList(), options.family));
    if (parser.isSet(run) && !parser.isSet(demo) && !parser.isSet(inventory))
        return fail(ClientOptions::tr("--run needs devices: --demo N or --inventory FILE"));
    if (!parser.isSet(run) && (parser.isSet(devices) || parser.isSet(screenshots)))
        return fail(ClientOptions::tr("--devices and --screenshots need --run"));
    if (parser.isSet(devices) && parser.value(devices) != QLatin1String("all") && options.deviceIds.isEmpty())
        return fail(ClientOptions::tr("--devices takes \"all\" or device ids with commas between them"));
    if (parser.isSet(screenshots) && !QDir().mkpath(options.screenshotsDir))
        return fail(ClientOptions::tr("--screenshots: cannot make the directory \"%1\"").arg(options.screenshotsDir));
    return options;
}

} // namespace orda_client
