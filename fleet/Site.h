#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QJsonObject>

namespace device_fleet {

// Of DevInfo.
inline constexpr int cameraKind = 1;
inline constexpr int reachedDirectly = 1;

/// A device of the simulated site as it is at the beginning.
struct SiteDevice
{
    vms_sdk::DevInfo info; ///< without port, tls, url and fingerprint, which depend on the server
    vms_sdk::DevStatus state = vms_sdk::DevOnline; ///< one of the three online states
    bool online = true;
    QJsonObject parameters;
};

/// Device number @p index, from 0. The same seed and index give the same device: mostly cameras, some recorders, and a
/// few that a device list leaves out or that are unusual (offline, of other kinds, with factory and weak passwords,
/// without an address).
SiteDevice makeSiteDevice(quint32 seed, int index);

} // namespace device_fleet
