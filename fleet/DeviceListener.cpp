#include "fleet/DeviceListener.h"

#include "fleet/FleetOptions.h"
#include "fleet/Logging.h"
#include "fleet/TlsIdentity.h"

#include <QSslCertificate>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <sys/socket.h>
#include <unistd.h>

namespace device_fleet {

namespace {

constexpr int backlog = 1024; // Qt's own 50 loses connections when thousands of clients come at once
constexpr std::chrono::seconds handshakeLimit{10};

/// "GET /dev-0001 HTTP/1.1" gives "/dev-0001".
QString pathOf(const vms_sdk::HttpHead &head)
{
    const QList<QByteArray> requestLine = head.startLine().split(' ');
    return requestLine.size() == 3 ? QUrl::fromEncoded(requestLine.at(1)).path() : QString();
}

} // namespace

DeviceListener::DeviceListener(std::function<bool(const QString &path)> isKnown, QObject *parent)
    : QTcpServer(parent)
    , m_isKnown(std::move(isKnown))
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

    // To answer on all of 127.0.0.0/8 a socket must be bound to every address. Other machines are then refused.
    m_takesPosts = options.onvifDevices > 0;
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
    socket->setReadBufferSize(vms_sdk::HttpHead::maxBytes);
    auto *deadline = new QTimer(socket);
    connect(deadline, &QTimer::timeout, socket, &QObject::deleteLater);
    deadline->start(handshakeLimit);
    connect(socket, &QTcpSocket::disconnected, this, [socket] { socket->deleteLater(); });
    connect(socket, &QTcpSocket::readyRead, this,
            [this, socket, head = std::make_shared<vms_sdk::HttpHead>()] { readHead(socket, head.get()); });
    if (auto *secure = qobject_cast<QSslSocket *>(socket)) {
        secure->setSslConfiguration(m_tls);
        secure->startServerEncryption();
    }
}

void DeviceListener::readHead(QTcpSocket *socket, vms_sdk::HttpHead *head)
{
    switch (head->read(*socket)) {
    case vms_sdk::HttpHead::State::Incomplete:
        break;
    case vms_sdk::HttpHead::State::TooLarge:
        socket->abort();
        break;
    case vms_sdk::HttpHead::State::Complete:
        admit(socket, vms_sdk::HttpHead(*head)); // a copy: admit() removes what owns it
        break;
    }
}

void DeviceListener::admit(QTcpSocket *socket, const vms_sdk::HttpHead &head)
{
    if (m_takesPosts && head.startLine().startsWith("POST ")) {
        release(socket);
        emit posted(socket, head);
        return;
    }
    const QString path = pathOf(head);
    if (!m_isKnown(path)) {
        socket->write("HTTP/1.1 404 Not Found\r\nConnection: close\r\nContent-Length: 0\r\n\r\n");
        socket->disconnectFromHost();
        return;
    }
    release(socket);
    // Later, because the socket is raising a signal now: on another thread it could be used at the same time.
    QMetaObject::invokeMethod(
        this, [this, path, socket, head] { emit dialled(path, socket, head); }, Qt::QueuedConnection);
}

void DeviceListener::release(QTcpSocket *socket)
{
    disconnect(socket, nullptr, this, nullptr);
    delete socket->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly); // the handshake's deadline
}

} // namespace device_fleet
