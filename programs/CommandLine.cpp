#include "programs/CommandLine.h"

#include <cstdio>
#include <cstdlib>

namespace orda_programs {

QString parseCommandLine(QCommandLineParser &parser, const QStringList &arguments)
{
    // Not addHelpOption(): that offers --help-all too, which only process() obeys. Its text has Qt's own translations.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QCommandLineParser::tr("Displays help on commandline options."));
    parser.addOption(help);
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

QString optionValue(const QStringList &arguments, const QString &name)
{
    const QCommandLineOption option(name, {}, QStringLiteral("VALUE"));
    QCommandLineParser parser;
    parser.addOption(option);
    parser.parse(arguments);
    return parser.value(option);
}

} // namespace orda_programs
