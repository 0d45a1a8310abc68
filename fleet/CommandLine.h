#pragma once

#include <QCommandLineParser>

namespace device_fleet {

/// What both programs do with a command line: adds --help and --version, which print and end the program here.
/// @return a text for the user, empty when @p arguments (program name first) suit the parser's options
QString parseCommandLine(QCommandLineParser &parser, const QStringList &arguments);

} // namespace device_fleet
