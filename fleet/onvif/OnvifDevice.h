#pragma once

#include "fleet/onvif/CameraState.h"
#include "fleet/onvif/OnvifReply.h"

#include <QDateTime>

namespace device_fleet {

/// One simulated ONVIF camera: its state, and the operations that read and change it. Plain data without sockets, bound
/// to no thread. A Set puts the configuration in the old one's place as it was sent: what a client leaves out is gone.
class OnvifDevice
{
public:
    explicit OnvifDevice(CameraState state);

    const CameraState &state() const { return m_state; }
    const CameraTraits &traits() const { return m_state.traits; }
    QDateTime now() const; ///< by the camera's own clock, UTC

    /// @param address where the camera is reached, such as "http://127.20.0.1:8000": services are below it
    void setAddress(const QString &address) { m_address = address; }
    QString url() const; ///< of the device service
    bool hasPath(const QString &path) const; ///< of one of its services, query included

    /// @param operation such as GetOSDs, with all declarations that it needs
    /// @param path of the service that got it; one of hasPath()
    OnvifReply answer(const vms_sdk::XmlElement &operation, const QString &path);

    /// The camera has carried out a write, and the first member that it changed is again what it was.
    /// @param before the state before the write
    void loseFirstChange(const CameraState &before);

    /// Whether the operation is open to everybody.
    bool isOpen(const QString &operation) const;

    /// The names of all operations.
    static QStringList operations();

private:
    CameraState m_state;
    QString m_address;
};

} // namespace device_fleet
