#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/DeviceTls.h>

#include <QCryptographicHash>
#include <QPointer>
#include <QRandomGenerator>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTextCodec>
#include <QtEndian>

#include <utility>

namespace vms_sdk {

namespace {

// At most so much of one peer is read in a turn of the event loop. It is also what Qt keeps in memory for it.
constexpr qint64 readBufferBytes = qint64(64) * 1024;

QByteArray acceptKey(const QByteArray &key)
{
    return QCryptographicHash::hash(key + "258EAFA5-E914-47DA-95CA-C5AB0DC85B11", QCryptographicHash::Sha1).toBase64();
}

bool isUtf8(const QByteArray &text)
{
    QTextCodec::ConverterState state;
    constexpr int utf8Mib = 106;
    static QTextCodec *const utf8 = QTextCodec::codecForMib(utf8Mib); // asked for once: it takes a lock of the process
    utf8->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

QByteArray closePayload(int code, const QString &reason = {})
{
    QByteArray payload(2, Qt::Uninitialized);
    qToBigEndian(quint16(code), payload.data());
    constexpr int maxReasonBytes = 123; // of a control frame's 125
    return payload + reason.toUtf8().left(maxReasonBytes);
}

} // namespace

WebSocketConnection::WebSocketConnection(const PeerLimits &limits, QObject *parent)
    : QObject(parent)
    , m_limits(limits)
    , m_maxMessageBytes(maxFrameBytes)
{
}

WebSocketConnection::~WebSocketConnection()
{
    if (m_socket)
        m_socket->disconnect(this);
}

void WebSocketConnection::open(const QUrl &url, const QSslConfiguration &tls)
{
    m_url = url;
    const bool isSecure = url.scheme() == QLatin1String("wss");
    const auto port = quint16(url.port(isSecure ? 443 : 80));
    if (isSecure) {
        auto *socket = new QSslSocket(this);
        use(socket, true);
        socket->setSslConfiguration(tls);
        connect(socket, QOverload<const QList<QSslError> &>::of(&QSslSocket::sslErrors), this,
                &WebSocketConnection::sslErrors);
        connect(socket, &QSslSocket::encrypted, this, &WebSocketConnection::sendHandshake);
        socket->connectToHostEncrypted(url.host(), port);
    } else {
        auto *socket = new QTcpSocket(this);
        use(socket, true);
        connect(socket, &QTcpSocket::connected, this, &WebSocketConnection::sendHandshake);
        socket->connectToHost(url.host(), port);
    }
}

void WebSocketConnection::use(QTcpSocket *socket, bool isClient)
{
    m_socket = socket;
    m_socket->setParent(this);
    m_isClient = isClient;
    m_socket->setReadBufferSize(readBufferBytes);
    connect(m_socket, &QTcpSocket::readyRead, this, &WebSocketConnection::onReadyRead);
    connect(m_socket, &QTcpSocket::disconnected, this, &WebSocketConnection::onDisconnected);
    connect(m_socket, &QTcpSocket::errorOccurred, this, &WebSocketConnection::onError);
    connect(m_socket, &QTcpSocket::bytesWritten, this, &WebSocketConnection::onBytesWritten);
    if (const QSslSocket *tls = tlsSocket())
        connect(tls, &QSslSocket::encryptedBytesWritten, this, &WebSocketConnection::onBytesWritten);
    m_frames.emplace(*m_socket, isClient);
}

bool WebSocketConnection::isFinished() const
{
    return !m_socket || m_socket->state() == QAbstractSocket::UnconnectedState;
}

QSslSocket *WebSocketConnection::tlsSocket() const
{
    return qobject_cast<QSslSocket *>(m_socket);
}

void WebSocketConnection::sendHandshake()
{
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    const QPointer<WebSocketConnection> self(this);
    emit lineUp();
    if (!self || m_phase != Phase::Connecting)
        return;
    QByteArray random(16, Qt::Uninitialized);
    for (int i = 0; i < random.size(); i += int(sizeof(quint32)))
        qToUnaligned(QRandomGenerator::global()->generate(), random.data() + i);
    m_key = random.toBase64();
    const QByteArray port = m_url.port() < 0 ? QByteArray() : ':' + QByteArray::number(m_url.port());
    m_socket->write("GET " + requestTarget(m_url) + " HTTP/1.1\r\nHost: " + m_url.host(QUrl::FullyEncoded).toLatin1()
                    + port + "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Key: " + m_key
                    + "\r\nSec-WebSocket-Version: 13\r\nSec-WebSocket-Protocol: " + deviceSubProtocol + "\r\n\r\n");
}

void WebSocketConnection::readHandshake()
{
    const HttpHead::State state = m_head.read(*m_socket);
    if (state == HttpHead::State::Incomplete)
        return;
    if (state == HttpHead::State::TooLarge)
        return end(QStringLiteral("its handshake is longer than anybody needs"), TroubleReason::Limits);
    const QString fault = handshakeFault();
    m_head = {};
    if (!fault.isEmpty())
        return end(fault, TroubleReason::SignOn);
    m_phase = Phase::Open;
    readFrames(); // they may have come with the handshake
}

QString WebSocketConnection::handshakeFault() const
{
    const QList<QByteArray> status = m_head.startLine().split(' ');
    const int code = status.value(1).toInt();
    if (!status.at(0).startsWith("HTTP/1.") || code == 0)
        return QStringLiteral("no HTTP answer to the handshake");
    if (code != 101)
        return QStringLiteral("the handshake is answered with HTTP %1").arg(code);
    const QByteArray protocol = m_head.field("sec-websocket-protocol");
    if (!m_head.hasWord("upgrade", "websocket") || !m_head.hasWord("connection", "upgrade")
        || m_head.field("sec-websocket-accept") != acceptKey(m_key)
        || !m_head.field("sec-websocket-extensions").isEmpty()
        || (!protocol.isEmpty() && protocol != deviceSubProtocol))
        return QStringLiteral("the handshake is answered with what was not asked for");
    return {};
}

bool WebSocketConnection::accept(QTcpSocket *socket, const HttpHead &head)
{
    use(socket, false);
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    const QByteArray key = head.field("sec-websocket-key");
    const bool isGet = head.startLine().startsWith("GET ") && head.startLine().endsWith(" HTTP/1.1");
    if (!isGet || !head.hasWord("upgrade", "websocket") || !head.hasWord("connection", "upgrade")
        || QByteArray::fromBase64(key).size() != 16 || head.field("sec-websocket-version") != "13") {
        m_phase = Phase::Ended;
        socket->write("HTTP/1.1 400 Bad Request\r\nConnection: close\r\nContent-Length: 0\r\n\r\n");
        socket->disconnectFromHost();
        return false;
    }
    QByteArray answer = "HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                        "Sec-WebSocket-Accept: "
                      + acceptKey(key) + "\r\n";
    if (head.hasWord("sec-websocket-protocol", deviceSubProtocol))
        answer += QByteArray("Sec-WebSocket-Protocol: ") + deviceSubProtocol + "\r\n";
    socket->write(answer + "\r\n");
    m_phase = Phase::Open;
    // Frames may have come with the request; nobody listens to this object yet.
    QMetaObject::invokeMethod(this, &WebSocketConnection::onReadyRead, Qt::QueuedConnection);
    return true;
}

void WebSocketConnection::onReadyRead()
{
    if (m_phase == Phase::Connecting && m_isClient)
        readHandshake();
    else if (m_phase == Phase::Open)
        readFrames();
    else
        m_socket->skip(m_socket->bytesAvailable()); // until the peer closes its side
}

void WebSocketConnection::setReading(bool isReading)
{
    if (std::exchange(m_isReading, isReading) == isReading || !isReading || m_phase != Phase::Open)
        return;
    // The peer could not know that nothing was read: what has piled up does not count against its limits.
    m_second.invalidate();
    m_messageAge.start();
    readFrames();
}

void WebSocketConnection::readFrames()
{
    const QPointer<WebSocketConnection> self(this);
    WebSocketFrames::Chunk chunk;
    while (self && m_isReading && m_phase == Phase::Open) {
        const WebSocketFrames::Result result = m_frames->next(&chunk);
        if (result == WebSocketFrames::Result::NothingYet)
            return reportUnfinished();
        if (result == WebSocketFrames::Result::Malformed)
            return fail(1002, QStringLiteral("sends frames that are malformed"));
        if (chunk.isFirst)
            ++m_framesInSecond;
        if (!isWithinRate())
            return fail(1008, QStringLiteral("sends messages faster than anybody could read them"));
        const QString fault = chunkFault(chunk);
        if (!fault.isEmpty())
            return fail(1002, fault);
        takeChunk(chunk);
    }
}

void WebSocketConnection::reportUnfinished()
{
    // When all that has arrived is read, not for every chunk: nearly all messages arrive as a whole.
    const int bytes = m_message.isEmpty() ? 0 : m_message.capacity();
    if (std::exchange(m_unfinishedReported, bytes) != bytes)
        emit unfinishedChanged(bytes);
}

bool WebSocketConnection::isWithinRate()
{
    if (!m_second.isValid() || m_second.elapsed() >= 1000) {
        m_second.start();
        m_framesInSecond = 1;
        m_bytesBefore = m_frames->bytesRead();
    }
    return m_framesInSecond <= m_limits.framesPerSecond
        && m_frames->bytesRead() - m_bytesBefore <= quint64(m_limits.bytesPerSecond);
}

QString WebSocketConnection::chunkFault(const WebSocketFrames::Chunk &chunk) const
{
    const bool isControl = chunk.opcode >= WebSocketFrames::Close;
    const bool isKnown = isControl ? chunk.opcode <= WebSocketFrames::Pong : chunk.opcode <= WebSocketFrames::Binary;
    if (!isKnown || chunk.reservedBits != 0)
        return QStringLiteral("sends frames of an unknown kind");
    if (chunk.isMasked == m_isClient)
        return QStringLiteral("sends frames that are masked as the other side's are");
    if (chunk.isFirst && !isControl && (chunk.opcode == WebSocketFrames::Continuation) == (m_messageOpcode == 0))
        return QStringLiteral("sends the frames of a message in a wrong order");
    return {};
}

void WebSocketConnection::takeChunk(const WebSocketFrames::Chunk &chunk)
{
    if (chunk.opcode >= WebSocketFrames::Close) {
        m_control.append(chunk.data);
        if (chunk.isLast)
            takeControl(chunk.opcode);
        return;
    }
    if (chunk.isFirst && chunk.opcode != WebSocketFrames::Continuation) {
        m_messageOpcode = chunk.opcode;
        m_messageAge.start();
    }
    // No memory is reserved for the size that a frame claims to have.
    if (chunk.isFirst && quint64(m_message.size()) + chunk.frameBytes > quint64(m_maxMessageBytes))
        return fail(1009, QStringLiteral("sends a message over %1 KiB").arg(m_maxMessageBytes / 1024));
    m_message.append(chunk.data);
    if (chunk.isLast && chunk.isFinalFrame)
        takeMessage();
}

void WebSocketConnection::takeControl(int opcode)
{
    const QByteArray payload = std::exchange(m_control, {});
    if (opcode == WebSocketFrames::Pong) {
        emit pongReceived();
    } else if (opcode == WebSocketFrames::Ping) {
        if (unsentBytes() + payload.size() > m_limits.unsentBytes)
            fail(1008, QStringLiteral("asks for pongs and does not read them"));
        else
            send(WebSocketFrames::Pong, payload);
    } else {
        if (payload.size() >= 2)
            m_closeCode = qFromBigEndian<quint16>(payload.constData());
        send(WebSocketFrames::Close, payload.left(2));
        m_phase = Phase::Ended; // before onDisconnected(), which the next line can lead to
        m_socket->disconnectFromHost();
        end(QStringLiteral("connection closed"), TroubleReason::ConnectionLost);
    }
}

void WebSocketConnection::takeMessage()
{
    const QByteArray message = std::exchange(m_message, {});
    if (std::exchange(m_messageOpcode, 0) == WebSocketFrames::Binary)
        emit binaryReceived();
    else if (isUtf8(message))
        emit textReceived(message);
    else
        fail(1007, QStringLiteral("sends texts that are not UTF-8"));
}

qint64 WebSocketConnection::unsentBytes() const
{
    const QSslSocket *tls = tlsSocket();
    return (m_socket ? m_socket->bytesToWrite() : 0) + (tls ? tls->encryptedBytesToWrite() : 0);
}

qint64 WebSocketConnection::unfinishedFor() const
{
    return m_messageOpcode == 0 ? 0 : m_messageAge.elapsed();
}

void WebSocketConnection::send(WebSocketFrames::Opcode opcode, const QByteArray &payload)
{
    if (m_phase != Phase::Open)
        return;
    m_socket->write(m_frames->encode(opcode, payload));
    m_socket->flush(); // now: the event loop would come back to it only after all other sockets
    reportUnsent();
}

void WebSocketConnection::onBytesWritten()
{
    if (m_unsentReported > 0)
        reportUnsent();
}

void WebSocketConnection::reportUnsent()
{
    const qint64 bytes = unsentBytes();
    if (std::exchange(m_unsentReported, bytes) != bytes)
        emit unsentChanged(bytes);
}

void WebSocketConnection::close(int code, const QString &reason)
{
    m_hasEnded = true;
    if (m_phase == Phase::Open) {
        send(WebSocketFrames::Close, closePayload(code, reason));
        m_phase = Phase::Ended;
        m_socket->disconnectFromHost(); // when all has been sent
    } else if (m_socket && m_socket->state() != QAbstractSocket::ClosingState) {
        abort();
    }
}

void WebSocketConnection::abort()
{
    m_hasEnded = true;
    m_phase = Phase::Ended;
    if (m_socket)
        m_socket->abort();
}

void WebSocketConnection::onError(QAbstractSocket::SocketError error)
{
    // When the peer closes the connection, disconnected() follows.
    if (error != QAbstractSocket::RemoteHostClosedError)
        end(m_socket->errorString(), troubleOf(error, m_phase == Phase::Connecting));
}

void WebSocketConnection::onDisconnected()
{
    const QPointer<WebSocketConnection> self(this);
    const bool isTlsUp = !tlsSocket() || !m_isClient || !m_key.isEmpty(); // the handshake has been sent
    m_isReading = true;
    if (m_phase == Phase::Open)
        readFrames(); // what came before the end
    if (self)
        end(QStringLiteral("connection closed"), isTlsUp ? TroubleReason::ConnectionLost : TroubleReason::Tls);
    if (self)
        emit finished();
}

void WebSocketConnection::fail(int code, const QString &why)
{
    send(WebSocketFrames::Close, closePayload(code));
    const QPointer<WebSocketConnection> self(this);
    end(why, TroubleReason::Limits);
    if (self)
        m_socket->abort(); // not closed in order: a peer that breaks the rules would go on sending
}

void WebSocketConnection::end(const QString &why, TroubleReason reason)
{
    m_phase = Phase::Ended;
    if (!std::exchange(m_hasEnded, true))
        emit ended(m_closeCode, why, reason);
}

} // namespace vms_sdk
