#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QString>

namespace orda_batchCfg {

/// Whether a device may be written to, and if not, the first reason against it.
enum class Eligibility
{
    Eligible,
    NoId, ///< the record of a device that is not known
    NotReachedDirectly,
    NotCameraNorRecorder,
    NotOnline,
    // Only of a device without an IP address that the operator may not work on freely:
    FactoryPassword,
    Locked,
    NoPassword,
    WeakPassword
};

/// The rule of the list of devices: what is Eligible by it is listed, and nothing else is ever written to. Asks the
/// store for the device's state. User-interface thread only.
Eligibility devEligibility(const vms_sdk::DevInfo &dev);

/// Whether it is a camera or recorder that is reached directly: what may be written to when it is connected. Any
/// thread.
bool isConfigurable(const vms_sdk::DevInfo &dev);

/// The reason in words for the user, a part of a sentence; empty when there is none.
QString eligibilityText(Eligibility eligibility);

} // namespace orda_batchCfg
