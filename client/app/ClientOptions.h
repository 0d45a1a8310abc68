#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace orda_client {

/// What the command line asks for.
struct ClientOptions
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::ClientOptions)

public:
    int demoDevices = 0; ///< 0: no embedded fleet
    QString inventoryFile;
    QString faultsFile; ///< for the embedded fleet
    QString theme; ///< "light" or "dark"; empty: as the desktop is
    QString family; ///< to drive without a person; empty: a person drives
    QStringList deviceIds; ///< for the driven run; empty: all
    QString screenshotsDir;

    QString error; ///< not empty: the command line is wrong; the text names what and what would be right
};

/// @param arguments the application's, program name first. --help and --version print and end the program here.
ClientOptions parseOptions(const QStringList &arguments);

} // namespace orda_client
