#pragma once

#include <QString>

namespace orda_engine {

/// Why a device cannot be written to. Each has a name for programs (reachName()), which stays as it is.
enum class ReachReason
{
    None, ///< it can be
    NoSuchDevice,
    // What the rule of the device list leaves out (run/DevEligibility.h):
    NotReachedDirectly,
    Kind,
    FactoryPassword,
    Locked,
    NoPassword,
    WeakPassword,
    // Why it is not connected (vms_client_sdk/LinkTrouble.h):
    Offline, ///< the connection was lost, or nothing is known
    Connecting, ///< for the first time, so that nothing is known yet
    Password,
    SerialNumber,
    SignOn,
    Certificate,
    Tls,
    ConnectionRefused,
    NoAnswer,
    NoAddress,
    Limits
};

struct Reach
{
    bool canBeWritten = false;
    ReachReason reason = ReachReason::None;
    QString text = {}; ///< the reason in words for the user, a part of a sentence; empty when there is none
};

/// Whether the device can be written to now. User-interface thread only.
Reach reachOf(const QString &devId);

/// The reason in words for the user, a part of a sentence, without the time that Reach::text may have; empty for None.
QString reachText(ReachReason reason);

/// A short English name, such as "serial-number"; "none" for None.
QString reachName(ReachReason reason);

} // namespace orda_engine
