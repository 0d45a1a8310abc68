#pragma once

#include <vms_client_sdk/HttpHead.h>
#include <vms_client_sdk/LinkTrouble.h>
#include <vms_client_sdk/websocket/WebSocketFrames.h>

#include <QAbstractSocket>
#include <QElapsedTimer>
#include <QObject>
#include <QUrl>

#include <optional>

QT_BEGIN_NAMESPACE
class QSslConfiguration;
class QSslError;
class QSslSocket;
class QTcpSocket;
QT_END_NAMESPACE

namespace vms_sdk {

/// What a peer may send before its connection is cut. The numbers are those of docs/device-protocol.md.
struct PeerLimits
{
    int framesPerSecond = 1'000; ///< of every kind, control frames too; a device answers a run with about ten
    int bytesPerSecond = 16 << 20;
    qint64 unsentBytes = 1'048'576; ///< that lie here because the peer does not read; pongs that it asked for included
};

/// One WebSocket (RFC 6455) over TCP or TLS, for either side of a device connection. Stands in for QWebSocket, which
/// does not report pings, has no limit for the handshake, and cannot stop reading. Lives on one thread.
class WebSocketConnection : public QObject
{
    Q_OBJECT

public:
    explicit WebSocketConnection(const PeerLimits &limits, QObject *parent = nullptr);
    ~WebSocketConnection() override;

    /// Dials as a client. Can fail at once, from inside this call.
    void open(const QUrl &url, const QSslConfiguration &tls);
    /// Answers as a server. @param socket connected; taken over. @param head of the request, already read from it
    /// @return false when it is no request for a WebSocket: an HTTP error has been sent, and the connection is closing
    bool accept(QTcpSocket *socket, const HttpHead &head);

    bool isOpen() const { return m_phase == Phase::Open; }
    /// The socket is closed: no signal follows.
    bool isFinished() const;
    /// Null without TLS.
    QSslSocket *tlsSocket() const;
    /// Only while it is open; else nothing is sent.
    void sendText(const QByteArray &utf8) { send(WebSocketFrames::Text, utf8); }
    void ping() { send(WebSocketFrames::Ping, {}); }
    /// Bytes that the peer has not taken yet.
    qint64 unsentBytes() const;
    /// A larger message ends the connection; maxFrameBytes unless set.
    void setMaxMessageBytes(int bytes) { m_maxMessageBytes = bytes; }
    /// Off: what the peer sends stays in the system's buffers, so that it is slowed down and not cut.
    void setReading(bool isReading);
    /// Milliseconds since the first frame of a message whose last frame has not come; 0 without one.
    qint64 unfinishedFor() const;
    /// Says goodbye and ends the connection without a further signal but finished(). May be called more than once.
    void close(int code, const QString &reason = {});
    /// Ends it at once; finished() follows where it was not finished before.
    void abort();

Q_SIGNALS:
    /// TCP and, where the address asks for it, TLS are up; the handshake follows.
    void lineUp();
    void sslErrors(const QList<QSslError> &errors);
    void textReceived(const QByteArray &utf8); ///< valid UTF-8
    void binaryReceived(); ///< it is dropped
    void pongReceived();
    /// What the peer has not taken yet; 0: it has taken all.
    void unsentChanged(qint64 bytes);
    /// What is kept of a message whose end has not come; 0: there is none.
    void unfinishedChanged(int bytes);
    /// The connection is of no more use: no signal but finished() follows. Raised once, not after close() or abort().
    /// @param code the peer's close code, 1006 where it gave none
    /// @param reason Limits: the peer went beyond what it may send
    void ended(int code, const QString &why, vms_sdk::TroubleReason reason);
    void finished(); ///< the socket is closed; the last signal

private:
    enum class Phase
    {
        Connecting, ///< TCP, TLS and the handshake
        Open,
        Ended
    };

    void use(QTcpSocket *socket, bool isClient);
    void sendHandshake();
    void readHandshake();
    QString handshakeFault() const;
    void onReadyRead();
    void onDisconnected();
    void onBytesWritten();
    void onError(QAbstractSocket::SocketError error);
    void readFrames();
    bool isWithinRate();
    QString chunkFault(const WebSocketFrames::Chunk &chunk) const;
    void takeChunk(const WebSocketFrames::Chunk &chunk);
    void takeControl(int opcode);
    void takeMessage();
    void reportUnfinished();
    void reportUnsent();
    void send(WebSocketFrames::Opcode opcode, const QByteArray &payload);
    void fail(int code, const QString &why);
    void end(const QString &why, TroubleReason reason);

    const PeerLimits m_limits;
    QUrl m_url;
    QTcpSocket *m_socket = nullptr; // a child
    Phase m_phase = Phase::Connecting;
    bool m_isClient = true;
    int m_maxMessageBytes;
    bool m_isReading = true;
    bool m_hasEnded = false; // ended() is not raised any more
    int m_closeCode = 1006; // the peer's; RFC 6455: this one where it gave none
    QByteArray m_key; // of the handshake
    HttpHead m_head;
    std::optional<WebSocketFrames> m_frames;
    QByteArray m_message; // of which frames have come
    int m_messageOpcode = 0; // 0: none is under way
    QElapsedTimer m_messageAge;
    int m_unfinishedReported = 0;
    qint64 m_unsentReported = 0;
    QByteArray m_control; // payload of a ping, pong or close
    QElapsedTimer m_second; // in which are counted:
    int m_framesInSecond = 0;
    quint64 m_bytesBefore = 0; // those read before this second
};

} // namespace vms_sdk
