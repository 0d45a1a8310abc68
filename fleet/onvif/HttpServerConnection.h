#pragma once

#include <vms_client_sdk/HttpHead.h>

#include <QByteArray>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

QT_BEGIN_NAMESPACE
class QTcpSocket;
QT_END_NAMESPACE

namespace device_fleet {

/// A request that has arrived whole.
struct HttpServerRequest
{
    QString target; ///< path and query, decoded
    QByteArray rawTarget; ///< as the client wrote it
    QByteArray authorization; ///< the header's value; empty without one
    QByteArray body;
};

/// A camera's end of one HTTP connection: takes requests one after the other, each when the one before it has been
/// answered. What is no request that can be taken is answered with the error of HTTP, and ends the connection.
class HttpServerConnection : public QObject
{
    Q_OBJECT

public:
    /// @param socket open; taken over
    /// @param head of the first request, of which the rest is still in the socket
    HttpServerConnection(QTcpSocket *socket, vms_sdk::HttpHead head, QObject *parent);

    /// To be called once, when the receivers are connected.
    void start() { readBody(); }

    QHostAddress localAddress() const;
    bool isWaiting() const { return m_state == State::Waiting; } ///< for the answer
    qint64 idleMs() const { return m_sinceLastByte.elapsed(); }
    /// Whether the client has said that this is the last request.
    bool isLast() const;

    /// The answer to the request that is waiting.
    /// @param messages whole HTTP messages, one behind the other; empty: there will be none
    /// @param closes ends the connection behind it
    void answerAfter(std::chrono::milliseconds delay, const QByteArray &messages, bool closes);
    void cut(); ///< at once; closed() follows

signals:
    void requestReceived(const device_fleet::HttpServerRequest &request);
    void closed(); ///< the last signal

private:
    enum class State
    {
        Head,
        Body, ///< of a known length
        ChunkSize,
        Chunk,
        ChunkEnd,
        Trailer,
        Waiting,
        Closing
    };

    void readMore();
    void readHead();
    void readBody();
    bool readSome(); ///< @return whether there may be more to read
    bool readChunkLine();
    void finishRequest();
    void send();
    void refuse(const QByteArray &statusLine);

    QTcpSocket *m_socket; // a child
    vms_sdk::HttpHead m_head;
    QByteArray m_body;
    State m_state = State::Body;
    qint64 m_expected = 0; // bytes of body or chunk still to come
    QByteArray m_answer;
    bool m_closes = false;
    QTimer m_delay;
    QElapsedTimer m_sinceLastByte;
};

/// A whole HTTP message.
/// @param headers further ones, a line each with its end
QByteArray httpMessage(int status, const QByteArray &headers, const QByteArray &body, bool isChunked, bool closes);

} // namespace device_fleet
