#pragma once

#include <QCommandLineParser>

namespace orda_programs {

/// Reads a program's command line. Adds --help and --version, which print and end the program here.
/// @return a text for the user, empty when @p arguments (program name first) suit the parser's options
QString parseCommandLine(QCommandLineParser &parser, const QStringList &arguments);

/// The value of one option, and nothing else of the command line; empty when it is not given. For what must be known
/// first, such as the language in which mistakes in all the others are told.
QString optionValue(const QStringList &arguments, const QString &name);

} // namespace orda_programs
