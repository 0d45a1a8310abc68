#pragma once

#include <FaultPlan.h>
#include <FleetOptions.h>

#include <vms_client_sdk/DevInfo.h>

#include <QJsonObject>
#include <QList>
#include <QThread>

namespace device_fleet {

class DeviceFleet;

/// A fleet on a thread of its own, for programs that bring their devices along. All functions may be called from any one
/// thread at a time and return when the fleet has done what they ask for; none may be called from the fleet's own thread.
class EmbeddedFleet
{
public:
    explicit EmbeddedFleet(const FleetOptions &options, const FaultPlan &faults = {});
    ~EmbeddedFleet();
    Q_DISABLE_COPY_MOVE(EmbeddedFleet)

    /// Makes the devices and opens their server socket. @return an error for the user, empty on success
    QString start();
    /// Closes all connections and ends the thread. A stopped fleet can be started again, with its first parameters.
    void stop();

    // As DeviceFleet. Without a started fleet they do nothing and give nothing.
    QList<vms_sdk::DevInfo> inventory() const;
    QJsonObject dump() const;
    void setOnline(const QString &devId, bool online);
    void setFault(const QString &devId, const QString &method, const FaultRule &rule);

private:
    FleetOptions m_options;
    FaultPlan m_faults;
    QThread m_thread;
    DeviceFleet *m_fleet = nullptr; // lives in m_thread; deleted there
};

} // namespace device_fleet
