#pragma once

#include "fleet/FleetOptions.h"

/// Options of a fleet in which nothing else is special.
inline device_fleet::FleetOptions fleetOf(int devices, quint32 seed = device_fleet::FleetOptions().seed)
{
    device_fleet::FleetOptions options;
    options.devices = devices;
    options.seed = seed;
    return options;
}
