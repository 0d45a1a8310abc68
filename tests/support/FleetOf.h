#pragma once

#include "fleet/FleetOptions.h"

/// Options of a fleet in which nothing else is special.
inline device_fleet::FleetOptions fleetOf(int devices, quint32 seed = device_fleet::FleetOptions().seed,
                                          int onvifDevices = 0)
{
    device_fleet::FleetOptions options;
    options.devices = devices;
    options.seed = seed;
    options.onvifDevices = onvifDevices;
    return options;
}
