#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/DeviceProtocol.h>

#include <QObject>
#include <QTimer>

#include <memory>

namespace vms_sdk {
class WebSocketConnection;
}

namespace device_fleet {

/// The device's end of one connection: the sign-on, then frames.
class DeviceConnection : public QObject
{
    Q_OBJECT

public:
    /// Says hello at once.
    /// @param connection open; taken over
    /// @param state reported to the client in the welcome
    DeviceConnection(vms_sdk::WebSocketConnection *connection, const vms_sdk::DevInfo &device, vms_sdk::DevStatus state,
                     QObject *parent);

    void send(const vms_sdk::DeviceFrame &frame);
    void cut(); ///< at once, without a closing handshake; closed() follows

signals:
    void signedOn();
    void requestReceived(const vms_sdk::DeviceFrame &request);
    void closed(); ///< the last signal

private:
    void handleText(const QByteArray &utf8);
    void signOn(const QJsonObject &auth);
    void refuse(const QString &why);
    void sendJson(const QString &key, const QJsonObject &value);

    vms_sdk::WebSocketConnection *m_connection; // a child
    vms_sdk::DevInfo m_device;
    vms_sdk::DevStatus m_state;
    QByteArray m_nonce;
    QTimer m_signOnTimer;
    bool m_isSignedOn = false;
};

} // namespace device_fleet
