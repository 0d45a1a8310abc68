#pragma once

#include "engine/Reach.h"

#include <vms_client_sdk/DevInfo.h>

#include <QCoreApplication>
#include <QString>

namespace orda_client {

/// How a device is: can be configured, is off line, or is one that the form never offers as it is now; and why.
struct DeviceState
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::DeviceState)

public:
    enum Kind
    {
        CanBeConfigured,
        OffLine,
        NotOffered
    };

    /// As orda_engine::reachOf() has it now; without a time. User-interface thread only.
    static DeviceState ofDevice(const QString &devId);
    /// "Off line: no answer".
    static QString text(Kind kind, orda_engine::ReachReason reason);
    /// "Off line", whatever the reason.
    static QString text(Kind kind);
    /// "Cam 1 (SN-1)", for lists; as the inventory has it, to be shown by way of vms_sdk::displayText().
    static QString deviceName(const vms_sdk::DevInfo &device);

    QString text() const { return text(kind, reason); }

    Kind kind = NotOffered;
    orda_engine::ReachReason reason = orda_engine::ReachReason::NoSuchDevice;
    qint64 since = 0; ///< milliseconds since the epoch, UTC
};

inline bool operator==(const DeviceState &a, const DeviceState &b)
{
    return a.kind == b.kind && a.reason == b.reason && a.since == b.since;
}
inline bool operator!=(const DeviceState &a, const DeviceState &b)
{
    return !(a == b);
}

} // namespace orda_client
