#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/DeviceProtocol.h>

#include <QObject>
#include <QTimer>

#include <memory>

QT_BEGIN_NAMESPACE
class QWebSocket;
QT_END_NAMESPACE

namespace device_fleet {

/// The device's end of one connection: the sign-on, then frames.
class DeviceConnection : public QObject
{
    Q_OBJECT

public:
    /// Says hello at once.
    /// @param socket connected; taken over
    /// @param state reported to the client in the welcome
    DeviceConnection(QWebSocket *socket, const vms_sdk::DevInfo &device, vms_sdk::DevStatus state, QObject *parent);

    void send(const vms_sdk::DeviceFrame &frame);
    void cut(); ///< at once, without a closing handshake; closed() follows

signals:
    void signedOn();
    void requestReceived(const vms_sdk::DeviceFrame &request);
    void closed(); ///< the last signal

private:
    void handleText(const QString &text);
    void signOn(const QJsonObject &auth);
    void refuse(const QString &why);
    void sendJson(const QString &key, const QJsonObject &value);

    QWebSocket *m_socket; // a child
    vms_sdk::DevInfo m_device;
    vms_sdk::DevStatus m_state;
    QByteArray m_nonce;
    QTimer m_signOnTimer;
    bool m_isSignedOn = false;
};

} // namespace device_fleet
