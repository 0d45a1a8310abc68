#pragma once

#include <QCommandLineParser>

namespace orda_programs {

/// Reads a program's command line. Adds --help and --version, which print and end the program here.
/// @return a text for the user, empty when @p arguments (program name first) suit the parser's options
QString parseCommandLine(QCommandLineParser &parser, const QStringList &arguments);

} // namespace orda_programs
