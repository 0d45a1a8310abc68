#include "CommandLine.h"

#include <cstdio>
#include <cstdlib>

namespace device_fleet {

QString parseCommandLine(QCommandLineParser &parser, const QStringList &arguments)
{
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    if (!parser.parse(arguments))
        return parser.errorText();
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        std::exit(EXIT_SUCCESS);
    }
    if (parser.isSet(version))
        parser.showVersion();
    return {};
}

} // namespace device_fleet
