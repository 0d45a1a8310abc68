#pragma once

#include "client/drive/RunDriver.h"

#include <QCoreApplication>
#include <QString>

namespace orda_client {

/// What the command line asks for.
struct ClientOptions
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::ClientOptions)

public:
    int demoDevices = 0; ///< 0: no embedded fleet
    int demoCameras = 0; ///< ONVIF cameras beside them
    QString inventoryFile;
    QString faultsFile; ///< for the embedded fleet
    QString theme; ///< "light" or "dark"; empty: as the desktop is
    DriveOptions drive; ///< without a family a person drives

    QString error; ///< not empty: the command line is wrong; the text names what and what would be right
};

/// @param arguments the application's, program name first. --help and --version print and end the program here.
ClientOptions parseOptions(const QStringList &arguments);

} // namespace orda_client
