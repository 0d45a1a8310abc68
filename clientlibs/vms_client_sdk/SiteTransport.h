#pragma once

#include <vms_client_sdk/DeviceTransport.h>

#include <QHash>
#include <QStringList>

namespace vms_sdk {

class OnvifTransport;
class WebSocketTransport;

/// All devices of a site, each by its own protocol. GUI thread.
class VMS_CLIENT_SDK_EXPORT SiteTransport final : public DeviceTransport
{
    Q_OBJECT

public:
    explicit SiteTransport(QObject *parent = nullptr);
    ~SiteTransport() override;

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
    void listenTo(DeviceTransport *transport, DevProtocol protocol);

    WebSocketTransport *m_webSockets; // children
    OnvifTransport *m_onvif;
    QHash<QString, DevProtocol> m_protocols; // by device id
    QHash<QString, DevProtocol> m_reported; // of devices that are not offline: whose state was passed on last
    bool m_isShutDown = false;
};

} // namespace vms_sdk
