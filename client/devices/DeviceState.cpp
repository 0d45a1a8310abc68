#include "client/devices/DeviceState.h"

namespace orda_client {

using orda_engine::ReachReason;

namespace {

DeviceState::Kind kindOf(const orda_engine::Reach &reach)
{
    if (reach.canBeWritten)
        return DeviceState::CanBeConfigured;
    switch (reach.reason) {
    case ReachReason::NoSuchDevice:
    case ReachReason::NotReachedDirectly:
    case ReachReason::Kind:
    case ReachReason::FactoryPassword:
    case ReachReason::Locked:
    case ReachReason::NoPassword:
    case ReachReason::WeakPassword:
        return DeviceState::NotOffered;
    default:
        return DeviceState::OffLine;
    }
}

} // namespace

DeviceState DeviceState::ofDevice(const QString &devId)
{
    const orda_engine::Reach reach = orda_engine::reachOf(devId);
    DeviceState state;
    state.kind = kindOf(reach);
    state.reason = reach.reason;
    return state;
}

QString DeviceState::text(Kind kind)
{
    switch (kind) {
    case CanBeConfigured:
        return tr("Can be configured");
    case OffLine:
        return tr("Off line");
    case NotOffered:
        break;
    }
    return tr("Not offered");
}

QString DeviceState::text(Kind kind, ReachReason reason)
{
    if (kind == CanBeConfigured)
        return text(kind);
    if (reason == ReachReason::Offline)
        return tr("Off line: no connection");
    const QString why = orda_engine::reachText(reason);
    return kind == OffLine ? tr("Off line: %1").arg(why) : tr("Not offered: %1").arg(why);
}

QString DeviceState::deviceName(const vms_sdk::DevInfo &device)
{
    if (device.name.isEmpty())
        return device.serialNumber.isEmpty() ? device.id : device.serialNumber;
    return device.serialNumber.isEmpty() ? device.name
                                         : QStringLiteral("%1 (%2)").arg(device.name, device.serialNumber);
}

} // namespace orda_client
