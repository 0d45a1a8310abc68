#include "DeviceListener.h"

#include "FleetOptions.h"
#include "Logging.h"
#include "TlsIdentity.h"

#include <QSslCertificate>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>
#include <QWebSocket>

#include <chrono>
#include <sys/socket.h>
#include <unistd.h>

namespace device_fleet {

namespace {

constexpr int backlog = 1024; // Qt's own 50 loses connections when thousands of clients come at once
constexpr int maxHeadBytes = 16 * 1024;
constexpr std::chrono::seconds handshakeLimit{10};

/// "GET /dev-0001 HTTP/1.1" gives "/dev-0001".
QString pathOf(const QByteArray &head)
{
    const QList<QByteArray> requestLine = head.left(head.indexOf('\r')).split(' ');
    return requestLine.size() == 3 ? QUrl::fromEncoded(requestLine.at(1)).path() : QString();
}

} // namespace

DeviceListener::DeviceListener(Gatekeeper gatekeeper, QObject *parent)
    : QTcpServer(parent)
    , m_gatekeeper(std::move(gatekeeper))
{
    connect(this, &QTcpServer::acceptError, this,
            [this] { qCWarning(fleetLog) << "no further connections are taken:" << errorString(); });
}

QString DeviceListener::start(const FleetOptions &options)
{
    const bool isSecure = !options.certificateFile.isEmpty();
    if (isSecure) {
        QString error;
        m_tls = readTlsIdentity(options.certificateFile, options.keyFile, &error);
        if (!error.isEmpty())
            return error;
    }
    m_webSockets = new QWebSocketServer(
        QStringLiteral("orda_fleet"), isSecure ? QWebSocketServer::SecureMode : QWebSocketServer::NonSecureMode, this);
    connect(m_webSockets, &QWebSocketServer::newConnection, this, &DeviceListener::passOn);

    // A socket that answers on all of 127.0.0.0/8 is bound to every address; who comes from elsewhere is turned away.
    m_isLoopbackOnly = options.listenAddress.isNull();
    const QHostAddress address = m_isLoopbackOnly ? QHostAddress(QHostAddress::AnyIPv4) : options.listenAddress;
    if (!listen(address, options.port) || ::listen(int(socketDescriptor()), backlog) != 0)
        return tr("cannot listen on %1, port %2: %3").arg(address.toString()).arg(options.port).arg(errorString());
    return {};
}

QString DeviceListener::fingerprint() const
{
    if (m_tls.isNull())
        return {};
    return QString::fromLatin1(m_tls.localCertificate().digest(QCryptographicHash::Sha256).toHex());
}

QTcpSocket *DeviceListener::makeSocket(qintptr descriptor)
{
    auto socket = std::unique_ptr<QTcpSocket>(m_tls.isNull() ? new QTcpSocket(this) : new QSslSocket(this));
    if (!socket->setSocketDescriptor(descriptor)) {
        ::close(int(descriptor));
        return nullptr;
    }
    if (m_isLoopbackOnly && !socket->peerAddress().isLoopback())
        return nullptr;
    return socket.release();
}

void DeviceListener::incomingConnection(qintptr descriptor)
{
    QTcpSocket *socket = makeSocket(descriptor);
    if (!socket)
        return;
    auto *deadline = new QTimer(socket);
    connect(deadline, &QTimer::timeout, socket, &QObject::deleteLater);
    deadline->start(handshakeLimit);
    connect(socket, &QTcpSocket::disconnected, this, [socket] { socket->deleteLater(); });
    connect(socket, &QTcpSocket::readyRead, this, [this, socket, deadline] { readHead(socket, deadline); });
    if (auto *secure = qobject_cast<QSslSocket *>(socket)) {
        secure->setSslConfiguration(m_tls);
        secure->startServerEncryption();
    }
}

void DeviceListener::readHead(QTcpSocket *socket, QTimer *deadline)
{
    const QByteArray head = socket->peek(maxHeadBytes);
    if (!head.contains("\r\n\r\n")) {
        if (head.size() == maxHeadBytes)
            socket->abort();
        return;
    }
    switch (m_gatekeeper(pathOf(head))) {
    case Admission::OffLine:
        socket->abort();
        break;
    case Admission::Unknown:
        socket->write("HTTP/1.1 404 Not Found\r\nConnection: close\r\nContent-Length: 0\r\n\r\n");
        socket->disconnectFromHost();
        break;
    case Admission::Welcome:
        disconnect(socket, nullptr, this, nullptr);
        delete deadline;
        m_webSockets->handleConnection(socket);
        break;
    }
}

void DeviceListener::passOn()
{
    while (QWebSocket *socket = m_webSockets->nextPendingConnection())
        emit dialled(socket);
}

} // namespace device_fleet
