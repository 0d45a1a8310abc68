#pragma once

#include "FleetOptions.h"

#include <QStringList>

/// Exit codes of orda_fleet.
enum ExitCode
{
    ExitOk = 0,
    ExitUsage = 2,
    ExitInput = 3
};

/// What the command line asks for.
struct ProgramOptions
{
    device_fleet::FleetOptions fleet;
    QString faultsFile; ///< empty: no faults
    QString inventoryFile;
    QString dumpFile; ///< empty: no dump

    QString error; ///< not empty: the command line is wrong; the text names what and what would be right
};

/// @param arguments the application's, program name first. --help and --version print and end the program here.
ProgramOptions parseOptions(const QStringList &arguments);
