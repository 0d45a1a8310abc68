#pragma once

#include <QHostAddress>
#include <QString>

#include <chrono>

namespace device_fleet {

/// What a fleet is made from. The same devices and seed give the same fleet, on any machine; device number i does not
/// depend on how many devices of its kind follow it, nor on those of the other kind.
struct FleetOptions
{
    int devices = 0; ///< of the device protocol
    int onvifDevices = 0;
    bool answersProbes = false; ///< ONVIF cameras can be found by multicast
    quint32 seed = 1;
    quint16 port = 0; ///< 0: the system picks a free one
    std::chrono::milliseconds latency{0}; ///< before every answer
    /// Null: every device has an address of its own in 127.0.0.0/8, and connections from other machines are refused. An
    /// address: all devices are at it, and whoever reaches it may connect. 0.0.0.0: own addresses and whoever reaches
    /// this machine.
    QHostAddress listenAddress;
    /// How many devices of the device protocol share a thread; above 0. Qt's event loop calls poll() with all sockets
    /// of its thread at every turn: 0.3 ms at 9,000, hardly anything at 1,000.
    int devicesPerThread = 1000;
    QString certificateFile; ///< PEM, the device's own certificate first; with keyFile: TLS
    QString keyFile; ///< PEM, RSA or EC, without a passphrase
};

inline bool hasOwnAddresses(const FleetOptions &options)
{
    return options.listenAddress.isNull() || options.listenAddress == QHostAddress(QHostAddress::AnyIPv4);
}

} // namespace device_fleet
