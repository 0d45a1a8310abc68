#pragma once

#include "fleet/FleetOptions.h"

#include <QStringList>

namespace device_fleet {

/// What the command line asks for.
struct ProgramOptions
{
    FleetOptions fleet;
    QString faultsFile; ///< empty: no faults
    QString inventoryFile;
    QString dumpFile; ///< empty: no dump

    QString error; ///< not empty: the command line is wrong; the text names what and what would be right
};

/// @param arguments the application's, program name first. --help and --version print and end the program here.
ProgramOptions parseOptions(const QStringList &arguments);

} // namespace device_fleet
