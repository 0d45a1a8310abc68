#pragma once

#include <QString>

namespace device_fleet {

/// What a fleet is made of. The same options give the same devices, always.
struct FleetOptions
{
    int devices = 0; ///< 1 to maxDevices
    quint32 seed = 1;
    quint16 port = 0; ///< 0: the system picks a free one
    int latencyMs = 0; ///< added to every answer
    QString listenAddress; ///< IPv4; empty: loopback only, and each device has an address of its own in 127.0.0.0/8
    QString tlsCertificate, tlsKey; ///< PEM files, both or none; given: wss:// only
};

/// More would need more than one port's worth of addresses to look like a site.
inline constexpr int maxDevices = 100'000;

} // namespace device_fleet
