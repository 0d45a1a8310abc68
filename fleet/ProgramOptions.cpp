#include "fleet/ProgramOptions.h"

#include "fleet/FaultPlan.h"
#include "programs/CommandLine.h"

#include <QCoreApplication>
#include <QDir>

#include <limits>

namespace device_fleet {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ProgramOptions", text);
}

QString description()
{
    return tr("Simulates N cameras and recorders behind real sockets, all on one port of this machine, and writes the "
              "inventory "
              "with which a client reaches them. Prints one line when they can be dialled; ends on SIGINT and "
              "SIGTERM.\n\n"
              "The file of --faults says what goes wrong with which device and method:\n"
              "  {\"faults\": [{\"devices\": [\"dev-0001\"], \"methods\": [\"ai_set_param\"], \"fault\": "
              "\"late-answer\", \"delayMs\": 500},\n"
              "              {\"devices\": [\"*\"], \"methods\": [\"ifconfig_qbcloud_set_param\"], \"fault\": "
              "\"drop-and-return\",\n"
              "               \"delayMs\": 800, \"returnWith\": \"old-settings\"},\n"
              "              {\"devices\": [\"dev-0007\"], \"fault\": \"error-code\", \"errorcode\": -5}]}\n"
              "\"*\", or no list, means every device or every method; an entry that names one goes first. With ONVIF "
              "cameras a method is the name of an operation, such as \"SetVideoEncoderConfiguration\".\n"
              "  faults: %1\n"
              "  returnWith, for drop-and-return: new-settings, old-settings, missing-member\n\n"
              "Exit codes: 0 ended by a signal, 2 wrong usage, 3 a file or the port cannot be used.")
        .arg(FaultPlan::faultNames().join(QStringLiteral(", ")));
}

constexpr int maxDevices = 1000000;

/// @param error set when the option's value is no whole number from @p min to @p max
qint64 number(const QCommandLineParser &parser, const QCommandLineOption &option, qint64 min, qint64 max,
              QString *error)
{
    bool isNumber = false;
    const qint64 value = parser.value(option).toLongLong(&isNumber);
    if (isNumber && value >= min && value <= max)
        return value;
    *error = tr("--%1 takes a whole number from %2 to %3, not \"%4\"")
                 .arg(option.names().constFirst(), QString::number(min), QString::number(max), parser.value(option));
    return min;
}

/// 0 when the option is not there.
int numberOfDevices(const QCommandLineParser &parser, const QCommandLineOption &option, QString *error)
{
    return parser.isSet(option) ? int(number(parser, option, 1, maxDevices, error)) : 0;
}

QString checkAddress(const QHostAddress &address, const QString &text)
{
    if (address.protocol() == QAbstractSocket::IPv4Protocol)
        return {};
    return tr("--listen takes an IPv4 address of this machine, or 0.0.0.0 for all of them, not \"%1\"").arg(text);
}

QString place(const QString &file)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(file));
}

} // namespace

ProgramOptions parseOptions(const QStringList &arguments)
{
    const QCommandLineOption devices(QStringLiteral("devices"), tr("How many devices of the device protocol."),
                                     QStringLiteral("N"));
    const QCommandLineOption onvif(QStringLiteral("onvif"), tr("How many ONVIF cameras."), QStringLiteral("N"));
    const QCommandLineOption answerProbes(QStringLiteral("answer-probes"),
                                          tr("Let the ONVIF cameras be found in the local network (WS-Discovery)."));
    const QCommandLineOption seed(QStringLiteral("seed"), tr("The same seed gives the same devices (default 1)."),
                                  QStringLiteral("S"), QStringLiteral("1"));
    const QCommandLineOption port(QStringLiteral("port"), tr("TCP port; 0, the default, takes a free one."),
                                  QStringLiteral("P"), QStringLiteral("0"));
    const QCommandLineOption latency(QStringLiteral("latency"), tr("Wait so many milliseconds before every answer."),
                                     QStringLiteral("MS"), QStringLiteral("0"));
    const QCommandLineOption faults(QStringLiteral("faults"), tr("Faults to simulate, see above."),
                                    QStringLiteral("FILE"));
    // Options of Qt's parser have one value: the file of the key is left as a positional argument.
    const QCommandLineOption tls(QStringLiteral("tls"), tr("Speak TLS with this certificate and key (PEM files)."),
                                 QStringLiteral("CERT> <KEY"));
    const QCommandLineOption listen(
        QStringLiteral("listen"),
        tr("Take connections from other machines too, at this address. Without it every device has an "
           "address of its own in 127.0.0.0/8 and only this machine can reach them."),
        QStringLiteral("ADDRESS"));
    const QCommandLineOption inventory(QStringLiteral("inventory"),
                                       tr("Write the devices here, with their passwords; readable by its owner only."),
                                       QStringLiteral("OUT"));
    const QCommandLineOption dump(QStringLiteral("dump"),
                                  tr("Write all devices' parameters here at the end and on SIGUSR1."),
                                  QStringLiteral("FILE"));

    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    parser.addOptions({devices, onvif, answerProbes, seed, port, latency, faults, tls, listen, inventory, dump});

    ProgramOptions options;
    options.error = orda_programs::parseCommandLine(parser, arguments);
    if (!options.error.isEmpty())
        return options;

    const QStringList leftOver = parser.positionalArguments();
    const int keyFiles = parser.isSet(tls) ? 1 : 0;
    options.fleet.devices = numberOfDevices(parser, devices, &options.error);
    options.fleet.onvifDevices = numberOfDevices(parser, onvif, &options.error);
    options.fleet.answersProbes = parser.isSet(answerProbes);
    options.fleet.seed = quint32(number(parser, seed, 0, std::numeric_limits<quint32>::max(), &options.error));
    options.fleet.port = quint16(number(parser, port, 0, std::numeric_limits<quint16>::max(), &options.error));
    options.fleet.latency = std::chrono::milliseconds(number(parser, latency, 0, 3600'000, &options.error));
    options.fleet.listenAddress = QHostAddress(parser.value(listen));
    options.fleet.certificateFile = parser.value(tls);
    options.fleet.keyFile = leftOver.value(0);
    options.faultsFile = parser.value(faults);
    options.inventoryFile = parser.value(inventory);
    options.dumpFile = parser.value(dump);

    if (!parser.isSet(devices) && !parser.isSet(onvif) && options.error.isEmpty())
        options.error = tr("devices are missing: --devices N, --onvif N or both");
    if (parser.isSet(answerProbes) && !parser.isSet(onvif) && options.error.isEmpty())
        options.error = tr("--answer-probes needs --onvif: only ONVIF cameras are searched for");
    if (parser.isSet(listen) && options.error.isEmpty())
        options.error = checkAddress(options.fleet.listenAddress, parser.value(listen));
    if (leftOver.size() < keyFiles)
        options.error = tr("--tls takes two files: certificate and key");
    else if (leftOver.size() > keyFiles)
        options.error = tr("unexpected argument \"%1\"").arg(leftOver.at(keyFiles));
    else if (options.inventoryFile.isEmpty() && options.error.isEmpty())
        options.error = tr("--inventory OUT is missing: without it no client knows the devices");
    else if (options.error.isEmpty() && place(options.dumpFile) == place(options.inventoryFile))
        options.error = tr("--dump and --inventory name the same file \"%1\"").arg(options.dumpFile);
    return options;
}

} // namespace device_fleet
