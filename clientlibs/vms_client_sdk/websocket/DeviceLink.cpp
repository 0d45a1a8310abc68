#include "DeviceLink.h"

#include "../DeviceProtocol.h"
#include "../Logging.h"
#include "LinkHost.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkRequest>
#include <QRandomGenerator>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QWebSocket>

namespace vms_sdk {

namespace {

/// The TLS layer under a wss:// connection, null under ws://. QWebSocket shows neither its certificate nor what it has
/// not sent.
QSslSocket *tlsSocket(const QWebSocket *socket)
{
    return socket->findChild<QSslSocket *>();
}

qint64 unsentBytes(const QWebSocket *socket)
{
    const QSslSocket *tls = tlsSocket(socket);
    return socket->bytesToWrite() + (tls ? tls->encryptedBytesToWrite() : 0);
}

/// Grows with the losses, with all of the range below it as jitter: devices that were lost together do not return
/// together.
std::chrono::milliseconds backOff(const WebSocketOptions &options, int losses)
{
    const qint64 first = options.firstBackOff.count();
    const qint64 longest = qMin<qint64>(options.lastBackOff.count(), first << qMin(losses, 20));
    return std::chrono::milliseconds(first
                                     + qint64(double(longest - first) * QRandomGenerator::global()->generateDouble()));
}

} // namespace

DeviceLink::DeviceLink(const DevInfo &device, LinkHost &host)
    : m_device(device)
    , m_url(deviceUrl(device))
    , m_pin(device.fingerprint)
    , m_host(host)
{
}

DeviceLink::~DeviceLink()
{
    rest(m_status, QWebSocketProtocol::CloseCodeGoingAway);
}

void DeviceLink::start()
{
    if (m_url.isValid() && !m_url.host().isEmpty())
        queue();
    else
        warn(QStringLiteral("has no address to dial"));
}

void DeviceLink::end()
{
    rest(DevOffline, QWebSocketProtocol::CloseCodeNormal);
}

void DeviceLink::connectAgain()
{
    if (m_status == DevRefused && m_phase == Phase::Resting)
        queue();
}

void DeviceLink::queue()
{
    m_phase = Phase::SettingUp;
    m_host.queueForDialling(this);
}

void DeviceLink::dial()
{
    setStatus(DevConnecting);
    m_host.setDeadline(this, m_host.options().setUpLimit);
    m_signOn.emplace(m_device);
    m_socket = makeSocket();
    QNetworkRequest request(m_url);
    request.setRawHeader("Sec-WebSocket-Protocol", deviceSubProtocol);
    m_socket->open(request); // last: it can fail at once
}

QWebSocket *DeviceLink::makeSocket()
{
    auto *socket = new QWebSocket(QString(), QWebSocketProtocol::VersionLatest, this);
    socket->setMaxAllowedIncomingFrameSize(maxFrameBytes);
    socket->setMaxAllowedIncomingMessageSize(maxFrameBytes);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    socket->setSslConfiguration(tls);

    connect(socket, &QWebSocket::connected, this, &DeviceLink::onConnected);
    connect(socket, &QWebSocket::disconnected, this, &DeviceLink::onDisconnected);
    connect(socket, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error), this, &DeviceLink::onError);
    connect(socket, &QWebSocket::sslErrors, this, &DeviceLink::onSslErrors);
    connect(socket, &QWebSocket::textMessageReceived, this, &DeviceLink::onTextMessage);
    connect(socket, &QWebSocket::binaryMessageReceived, this,
            [this] { warn(QStringLiteral("sends binary messages; they are dropped")); });
    connect(socket, &QWebSocket::pong, this, &DeviceLink::sawTraffic);
    return socket;
}

void DeviceLink::onSslErrors(const QList<QSslError> &errors)
{
    const QList<QSslError> tolerated = m_pin.tolerated(errors, tlsSocket(m_socket)->peerCertificate());
    QStringList faults;
    for (const QSslError &error : errors)
        if (!tolerated.contains(error))
            faults.append(error.errorString());
    if (!faults.isEmpty())
        warn(QStringLiteral("shows a certificate that is not accepted: %1").arg(faults.join(QLatin1String("; "))));
    m_socket->ignoreSslErrors(tolerated); // the handshake goes on only if that is all of them
}

void DeviceLink::onConnected()
{
    // A certificate without faults raises no sslErrors, and still need not be the pinned one.
    const QSslSocket *tls = tlsSocket(m_socket);
    if (m_pin.isSet() && !(tls && m_pin.matches(tls->peerCertificate()))) {
        warn(QStringLiteral("does not show the certificate of the inventory"));
        lost(QStringLiteral("wrong certificate"));
    }
}

void DeviceLink::onError(QAbstractSocket::SocketError error)
{
    // An end by the device is told by disconnected(), with the close code.
    if (error != QAbstractSocket::RemoteHostClosedError)
        lost(m_socket->errorString());
}

void DeviceLink::onDisconnected()
{
    if (int(m_socket->closeCode()) == signOnRefusedCode)
        refused(QStringLiteral("it does not accept the user name or the password"));
    else
        lost(QStringLiteral("connection closed"));
}

void DeviceLink::onTextMessage(const QString &message)
{
    if (m_phase == Phase::Online) {
        sawTraffic();
        if (isFlood(message.size())) {
            warn(QStringLiteral("sends messages faster than anybody could read them"));
            lost(QStringLiteral("flood"));
        } else {
            onFrame(message);
        }
    } else {
        onSignOnMessage(message);
    }
}

void DeviceLink::onSignOnMessage(const QString &message)
{
    const ClientSignOn::Outcome outcome = m_signOn->take(message);
    switch (outcome.step) {
    case ClientSignOn::Step::Answer:
        m_socket->sendTextMessage(outcome.text);
        break;
    case ClientSignOn::Step::Refused:
        refused(outcome.text);
        break;
    case ClientSignOn::Step::Broken:
        warn(QStringLiteral("does not sign on as it should: %1").arg(outcome.text));
        lost(QStringLiteral("broken sign-on"));
        break;
    case ClientSignOn::Step::Welcome:
        m_phase = Phase::Online;
        m_host.setDeadline(this, m_host.options().pingInterval);
        m_warned.clear();
        m_unansweredPings = 0;
        if (!m_signOn->state())
            warn(QStringLiteral("reports an unknown state; it counts as online"));
        setStatus(m_signOn->state().value_or(DevOnline));
        m_host.leave(this); // last: another one is dialled
        break;
    }
}

bool DeviceLink::isFlood(int size)
{
    if (!m_second.isValid() || m_second.elapsed() >= 1000) {
        m_second.start();
        m_messagesInSecond = m_bytesInSecond = 0;
    }
    m_bytesInSecond += size;
    return ++m_messagesInSecond > m_host.options().maxMessagesPerSecond
        || m_bytesInSecond > m_host.options().maxBytesPerSecond;
}

void DeviceLink::onFrame(const QString &frameText)
{
    const auto frame = parseFrame(frameText);
    if (!frame)
        warn(QStringLiteral("sends messages without an id line; they are dropped"));
    else if (frame->requestId.isEmpty())
        onNotice(frame->text);
    else
        emit answered(frame->requestId, frame->text);
}

void DeviceLink::onNotice(const QString &text)
{
    const QJsonObject notice = QJsonDocument::fromJson(text.toUtf8()).object();
    if (const auto state = onlineStateFrom(notice.value(QLatin1String("state"))))
        setStatus(*state);
    else
        warn(QStringLiteral("sends notices without a known state; they are ignored"));
}

void DeviceLink::sawTraffic()
{
    m_unansweredPings = 0;
    if (m_phase == Phase::Online)
        m_losses = 0;
}

void DeviceLink::send(const QString &requestId, const QString &text)
{
    if (m_phase != Phase::Online) {
        qCDebug(sdkLog) << "request" << requestId << "dropped:" << m_device.id << "is not online";
        return;
    }
    const QString frame = toFrameText({requestId, text});
    const qint64 room = maxFrameBytes - unsentBytes(m_socket);
    constexpr qint64 maxUtf8Bytes = 3; // of one UTF-16 unit: most frames need no counting
    if (frame.size() * maxUtf8Bytes > room && frame.toUtf8().size() > room)
        warn(QStringLiteral("does not take its requests fast enough, or they are too large; some are dropped"));
    else
        m_socket->sendTextMessage(frame);
}

void DeviceLink::deadlineReached()
{
    if (m_phase == Phase::Resting)
        queue();
    else if (m_phase == Phase::SettingUp)
        lost(QStringLiteral("no sign-on in time"));
    else if (m_unansweredPings == 2)
        lost(QStringLiteral("pings without an answer"));
    else
        ping();
}

void DeviceLink::ping()
{
    ++m_unansweredPings;
    m_host.setDeadline(this, m_host.options().pingInterval);
    m_socket->ping();
}

void DeviceLink::lost(const QString &why)
{
    qCInfo(sdkLog) << "device" << m_device.id << "lost:" << why;
    rest(DevOffline, QWebSocketProtocol::CloseCodeGoingAway);
    m_host.setDeadline(this, backOff(m_host.options(), ++m_losses));
}

void DeviceLink::refused(const QString &why)
{
    warn(QStringLiteral("sign-on refused: %1").arg(why));
    rest(DevRefused, signOnRefusedCode);
}

void DeviceLink::rest(DevStatus status, int closeCode)
{
    m_phase = Phase::Resting;
    m_host.clearDeadline(this);
    if (QWebSocket *socket = std::exchange(m_socket, nullptr)) {
        socket->disconnect(this);
        m_host.closeSocket(socket, closeCode);
    }
    setStatus(status);
    m_host.leave(this); // last: another one is dialled
}

void DeviceLink::setStatus(DevStatus status)
{
    if (std::exchange(m_status, status) != status)
        emit statusChanged(m_device.id, status);
}

void DeviceLink::warn(const QString &what)
{
    if (m_warned.contains(what))
        return; // a device that does it again and again must not flood the log
    m_warned.insert(what);
    qCWarning(sdkLog).noquote() << "device" << m_device.id << what;
}

} // namespace vms_sdk
