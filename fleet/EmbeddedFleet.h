#pragma once

#include "fleet/FaultPlan.h"
#include "fleet/FleetOptions.h"

#include <vms_client_sdk/DevInfo.h>

#include <QJsonObject>
#include <QObject>
#include <QThread>

#include <functional>
#include <memory>

namespace device_fleet {

class DeviceFleet;

/// A fleet inside the caller's process, on threads of its own. The functions may be called from any thread but the
/// fleet's own ones, start() and stop() from one at a time; they block until the fleet has done it.
class EmbeddedFleet : public QObject
{
    Q_OBJECT

public:
    explicit EmbeddedFleet(const FleetOptions &options, const FaultPlan &faults = {}, QObject *parent = nullptr);
    ~EmbeddedFleet() override; ///< stops the fleet

    /// Devices to try something on, of seed 1, started.
    /// @param faultsFile what goes wrong with them (FaultPlan); empty: nothing
    /// @param warnings @param error for the user
    /// @param onvifDevices cameras beside the devices
    /// @return null after an error
    static std::unique_ptr<EmbeddedFleet> startDemo(int devices, const QString &faultsFile, QStringList *warnings,
                                                    QString *error, int onvifDevices = 0);

    /// @return a text for the user, empty when the devices can be dialled. Refused when this process may not have as
    /// many open files as client and fleet need together.
    QString start();
    /// Cuts all connections. The devices and what was written to them are gone.
    void stop();

    // Only between start() and stop(); as in DeviceFleet.
    QList<vms_sdk::DevInfo> inventory() const;
    QJsonObject dump() const;
    int connectedDevices() const;
    void setFault(const QString &deviceId, const QString &method, const FaultRule &fault);
    void clearFaults();
    void setOnline(const QString &deviceId, bool online);

signals:
    /// As in DeviceFleet; raised on the fleet's threads, of which there are several where it has many devices.
    void requestReceived(const QString &deviceId, const QString &method, const QString &text);
    void signOnRefused(const QString &deviceId);

private:
    void onFleetThread(const std::function<void()> &function) const;

    FleetOptions m_options;
    FaultPlan m_faults; // as given at construction
    QThread m_thread;
    DeviceFleet *m_fleet = nullptr; // lives on m_thread, made by start() and deleted by stop()
};

} // namespace device_fleet
