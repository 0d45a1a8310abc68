#pragma once

#include <vms_client_sdk/websocket/HttpHead.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <QSslConfiguration>
#include <QTcpServer>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QTcpSocket;
QT_END_NAMESPACE

namespace device_fleet {

struct FleetOptions;

/// Whether a device may be dialled.
enum class Admission
{
    Welcome,
    OffLine,
    Unknown
};

/// The server socket of all devices. Reads the path before the WebSocket handshake, so that a device that is offline
/// does not answer at all and an unknown path gets the HTTP error for it.
class DeviceListener : public QTcpServer
{
    Q_OBJECT

public:
    using Gatekeeper = std::function<Admission(const QString &path)>;

    DeviceListener(Gatekeeper gatekeeper, QObject *parent);

    /// @return a text for the user, empty on success
    QString start(const FleetOptions &options);
    /// SHA-256 of the certificate as hexadecimal digits; empty without TLS.
    QString fingerprint() const;

signals:
    /// A client has dialled a device that may be dialled; the receiver owns the connection.
    void dialled(const QString &path, vms_sdk::WebSocketConnection *connection);
    /// A client has sent the head of a POST request; the receiver owns the socket. Only with ONVIF devices.
    void posted(QTcpSocket *socket, const vms_sdk::HttpHead &head);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    QTcpSocket *makeSocket(qintptr descriptor);
    void readHead(QTcpSocket *socket, vms_sdk::HttpHead *head);
    void admit(QTcpSocket *socket, const vms_sdk::HttpHead &head);
    void release(QTcpSocket *socket);

    Gatekeeper m_gatekeeper;
    bool m_isLoopbackOnly = true;
    bool m_takesPosts = false;
    QSslConfiguration m_tls; // null: none
};

} // namespace device_fleet
