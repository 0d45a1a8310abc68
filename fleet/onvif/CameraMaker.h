#pragma once

#include "fleet/onvif/CameraState.h"

#include <vms_client_sdk/DevInfo.h>

namespace device_fleet {

/// A simulated ONVIF camera as it is at the beginning.
struct SiteCamera
{
    vms_sdk::DevInfo info; ///< without port, tls and fingerprint, which depend on the server
    CameraState state;
};

/// Camera number @p index, from 0. The same seed and index give the same camera. What cameras differ in is dealt out
/// evenly: each kind is there once among as many neighbours as there are kinds, in an order of the seed's.
SiteCamera makeSiteCamera(quint32 seed, int index);

} // namespace device_fleet
