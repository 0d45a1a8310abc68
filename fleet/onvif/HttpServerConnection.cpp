#include "fleet/onvif/HttpServerConnection.h"

#include <QTcpSocket>
#include <QUrl>

namespace device_fleet {

namespace {

constexpr qint64 maxBodyBytes = 1 << 20; // as large as a frame of the device protocol
constexpr int chunkBytes = 700; // so that an answer has several
constexpr int maxChunkLineBytes = 1024; // of extensions, which nobody sends

QByteArray reasonPhrase(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 404:
        return "Not Found";
    default:
        return "Internal Server Error";
    }
}

} // namespace

HttpServerConnection::HttpServerConnection(QTcpSocket *socket, vms_sdk::HttpHead head, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
    , m_head(std::move(head))
{
    m_socket->setParent(this);
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &HttpServerConnection::send);
    connect(m_socket, &QTcpSocket::readyRead, this, &HttpServerConnection::readMore);
    connect(m_socket, &QTcpSocket::disconnected, this, &HttpServerConnection::closed);
    m_sinceLastByte.start();
}

QHostAddress HttpServerConnection::localAddress() const
{
    return m_socket->localAddress();
}

bool HttpServerConnection::isLast() const
{
    return m_head.hasWord("connection", "close") || m_head.startLine().endsWith("HTTP/1.0");
}

void HttpServerConnection::readMore()
{
    m_sinceLastByte.restart();
    if (m_state == State::Head)
        readHead();
    else if (m_state == State::Closing)
        m_socket->readAll();
    else if (m_state != State::Waiting)
        while (readSome()) { }
}

void HttpServerConnection::readHead()
{
    switch (m_head.read(*m_socket)) {
    case vms_sdk::HttpHead::State::Incomplete:
        break;
    case vms_sdk::HttpHead::State::TooLarge:
        cut();
        break;
    case vms_sdk::HttpHead::State::Complete:
        readBody();
        break;
    }
}

void HttpServerConnection::readBody()
{
    m_body.clear();
    if (!m_head.startLine().startsWith("POST "))
        return refuse("405 Method Not Allowed");
    if (m_head.hasWord("expect", "100-continue"))
        m_socket->write("HTTP/1.1 100 Continue\r\n\r\n");
    if (m_head.hasWord("transfer-encoding", "chunked")) {
        m_state = State::ChunkSize;
    } else {
        bool isNumber = false;
        m_expected = m_head.field("content-length").toLongLong(&isNumber);
        if (!isNumber || m_expected < 0)
            return refuse("411 Length Required");
        if (m_expected > maxBodyBytes)
            return refuse("413 Payload Too Large");
        m_state = State::Body;
    }
    while (readSome()) { }
}

bool HttpServerConnection::readSome()
{
    switch (m_state) {
    case State::Body:
    case State::Chunk: {
        const QByteArray part = m_socket->read(m_expected);
        m_body += part;
        m_expected -= part.size();
        if (m_expected > 0)
            return false;
        if (m_state == State::Body)
            finishRequest();
        else
            m_state = State::ChunkEnd;
        return m_state == State::ChunkEnd;
    }
    case State::ChunkSize:
    case State::ChunkEnd:
    case State::Trailer:
        return readChunkLine();
    default:
        return false;
    }
}

bool HttpServerConnection::readChunkLine()
{
    if (!m_socket->canReadLine()) {
        if (m_socket->bytesAvailable() >= maxChunkLineBytes)
            refuse("400 Bad Request");
        return false;
    }
    const QByteArray line = m_socket->readLine(maxChunkLineBytes).trimmed();
    if (m_state == State::ChunkEnd) {
        m_state = State::ChunkSize;
    } else if (m_state == State::Trailer) {
        if (line.isEmpty())
            finishRequest();
    } else {
        bool isNumber = false;
        m_expected = line.split(';').constFirst().trimmed().toLongLong(&isNumber, 16);
        if (!isNumber || m_expected < 0)
            refuse("400 Bad Request");
        else if (m_body.size() + m_expected > maxBodyBytes)
            refuse("413 Payload Too Large");
        else
            m_state = m_expected == 0 ? State::Trailer : State::Chunk;
    }
    return m_state == State::ChunkSize || m_state == State::Chunk || m_state == State::Trailer;
}

void HttpServerConnection::finishRequest()
{
    m_state = State::Waiting;
    HttpServerRequest request;
    request.rawTarget = m_head.startLine().split(' ').value(1);
    const QUrl url = QUrl::fromEncoded(request.rawTarget);
    request.target = url.path() + (url.hasQuery() ? QLatin1Char('?') + url.query() : QString());
    request.authorization = m_head.field("authorization");
    request.body = m_body;
    emit requestReceived(request);
}

void HttpServerConnection::answerAfter(std::chrono::milliseconds delay, const QByteArray &messages, bool closes)
{
    m_answer = messages;
    m_closes = closes;
    if (delay.count() > 0)
        m_delay.start(delay);
    else if (!messages.isEmpty())
        send();
}

void HttpServerConnection::send()
{
    m_socket->write(m_answer);
    m_answer.clear();
    m_body.clear();
    m_sinceLastByte.restart();
    if (m_closes) {
        m_state = State::Closing;
        m_socket->disconnectFromHost();
        return;
    }
    m_state = State::Head;
    m_head = vms_sdk::HttpHead();
    // The next request may be here already. Not at once: thousands of them in one text must not nest.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_state == State::Head)
                readHead();
        },
        Qt::QueuedConnection);
}

void HttpServerConnection::refuse(const QByteArray &statusLine)
{
    m_state = State::Closing;
    m_socket->write("HTTP/1.1 " + statusLine + "\r\nConnection: close\r\nContent-Length: 0\r\n\r\n");
    m_socket->disconnectFromHost();
}

void HttpServerConnection::cut()
{
    m_state = State::Closing;
    m_delay.stop();
    m_socket->abort();
}

QByteArray httpMessage(int status, const QByteArray &headers, const QByteArray &body, bool isChunked, bool closes)
{
    QByteArray message = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reasonPhrase(status)
                       + "\r\nContent-Type: application/soap+xml; charset=utf-8\r\n" + headers;
    if (closes)
        message += "Connection: close\r\n";
    if (!isChunked)
        return message + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    message += "Transfer-Encoding: chunked\r\n\r\n";
    for (int i = 0; i < body.size(); i += chunkBytes) {
        const QByteArray chunk = body.mid(i, chunkBytes);
        message += QByteArray::number(chunk.size(), 16) + "\r\n" + chunk + "\r\n";
    }
    return message + "0\r\n\r\n";
}

} // namespace device_fleet
