#pragma once

#include <QSslConfiguration>
#include <QTcpServer>
#include <QWebSocketServer>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QTimer;
class QWebSocket;
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

/// The server socket of all devices. Looks at the path before the WebSocket handshake, so that a device that is off
/// line answers nothing at all and an unknown path is refused as HTTP does it.
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
    /// A client has dialled a device that may be dialled; the receiver owns the socket.
    void dialled(QWebSocket *socket);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    QTcpSocket *makeSocket(qintptr descriptor);
    void readHead(QTcpSocket *socket, QTimer *deadline);
    void passOn();

    Gatekeeper m_gatekeeper;
    bool m_isLoopbackOnly = true;
    QSslConfiguration m_tls; // null: none
    QWebSocketServer *m_webSockets = nullptr; // only for its side of the handshake; a child
};

} // namespace device_fleet
