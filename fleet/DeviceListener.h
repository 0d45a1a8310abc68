#pragma once

#include <vms_client_sdk/HttpHead.h>

#include <QSslConfiguration>
#include <QTcpServer>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QTcpSocket;
QT_END_NAMESPACE

namespace device_fleet {

struct FleetOptions;

/// The server socket of all devices. Reads the head of the request, TLS included, so that it is known which device is
/// dialled before the WebSocket handshake; an unknown path gets the HTTP error for it.
class DeviceListener : public QTcpServer
{
    Q_OBJECT

public:
    /// @param isKnown tells whether there is a device at a path
    DeviceListener(std::function<bool(const QString &path)> isKnown, QObject *parent);

    /// @return a text for the user, empty on success
    QString start(const FleetOptions &options);
    /// SHA-256 of the certificate as hexadecimal digits; empty without TLS.
    QString fingerprint() const;

signals:
    /// A client has dialled a device. The receiver owns the socket, and may move it to another thread: none of the
    /// socket's signals is being raised. What follows the head is still in it; it may be closed already.
    void dialled(const QString &path, QTcpSocket *socket, const vms_sdk::HttpHead &head);
    /// A client has sent the head of a POST request; the receiver owns the socket. Only with ONVIF devices.
    void posted(QTcpSocket *socket, const vms_sdk::HttpHead &head);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    QTcpSocket *makeSocket(qintptr descriptor);
    void readHead(QTcpSocket *socket, vms_sdk::HttpHead *head);
    void admit(QTcpSocket *socket, const vms_sdk::HttpHead &head);
    void release(QTcpSocket *socket);

    std::function<bool(const QString &path)> m_isKnown;
    bool m_isLoopbackOnly = true;
    bool m_takesPosts = false;
    QSslConfiguration m_tls; // null: none
};

} // namespace device_fleet
