#pragma once

#include <vms_client_sdk/DeviceTransport.h>

#include <QStringList>

#include <chrono>
#include <memory>

namespace vms_sdk {

/// The limits of OnvifTransport beside those of each exchange. The defaults are what docs/onvif.md promises.
struct OnvifOptions
{
    std::chrono::milliseconds pollInterval{30'000}; ///< of a device that is online; up to a fifth less, at random
    std::chrono::milliseconds pollAgain{3'000}; ///< after a poll without an answer
    int missesToOffline = 3; ///< polls in a row without an answer
    std::chrono::milliseconds firstBackOff{500}; ///< the shortest pause before a lost device is tried again
    std::chrono::milliseconds lastBackOff{30'000}; ///< the longest
    int maxSigningOn = 64; ///< devices that sign on at once
    /// Requests that are carried out at once; the others wait their turn, and only then does their own time begin. So
    /// many fill the exchanges that there may be at once (HttpLimits), as each asks for about two things side by side.
    int maxRequests = 128;
};

/// Cameras that speak ONVIF. To the tasks it answers as a device of our own protocol does (docs/onvif.md): it turns
/// their requests into operations of the standard. Used as WebSocketTransport is; its threads start with the first
/// device.
class VMS_CLIENT_SDK_EXPORT OnvifTransport final : public DeviceTransport
{
    Q_OBJECT

public:
    explicit OnvifTransport(QObject *parent = nullptr, const OnvifOptions &options = {});
    ~OnvifTransport() override;

    // As in WebSocketTransport.
    void send(const QString &requestId, const QString &devId, const QString &text) override;
    void passedOn(const QString &requestId, const QString &text) override;
    void setRequestTimeout(std::chrono::milliseconds timeout) override;
    void timedOut(const QString &requestId) override;
    void setDevices(const QList<DevInfo> &devices);
    void connectAgain();
    void connectDevicesAgain(const QStringList &devIds);
    void shutdown();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace vms_sdk
