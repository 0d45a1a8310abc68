#pragma once

#include <vms_client_sdk/PinnedCertificate.h>
#include <vms_client_sdk/onvif/HttpAnswerReader.h>

#include <QDeadlineTimer>
#include <QTimer>

#include <optional>

QT_BEGIN_NAMESPACE
class QTcpSocket;
class QSslSocket;
QT_END_NAMESPACE

namespace vms_sdk {

/// A connection to one camera, for one exchange at a time. It is our own because QNetworkAccessManager reads heads byte
/// by byte for as long as some arrive: one camera that sends a header without end stops all others for good. Besides,
/// it tells a certificate only when the request has left, and sends a request again that got no answer.
class HttpConnection : public QObject
{
    Q_OBJECT

public:
    /// The other end, and what it must prove: connections are exchanged only between requests with the same.
    struct Peer
    {
        QString host;
        quint16 port = 0;
        bool isSecure = false;
        QString fingerprint; ///< of its certificate; empty: the system's authorities decide

        bool operator==(const Peer &other) const
        {
            return host == other.host && port == other.port && isSecure == other.isSecure
                && fingerprint == other.fingerprint;
        }
    };

    HttpConnection(const Peer &peer, const HttpLimits &limits, QObject *parent);
    ~HttpConnection() override;

    const Peer &peer() const { return m_peer; }
    /// Sends a whole request; connects before when it is new. Not before the last exchange has ended.
    void send(const QByteArray &message, qint64 maxAnswerBytes);
    qint64 bytesHeld() const { return m_reader ? m_reader->bytes() : 0; } ///< of an answer that is not complete
    void giveUp(); ///< the exchange; for the bytes that it holds
    void cut(); ///< without a word
    /// After an exchange: whether another may follow. If so, unused() comes when it does not within @p limit.
    bool stay(std::chrono::milliseconds limit);
    /// Whether the last exchange ended before a byte of its answer came, on a connection that had been in use before:
    /// most likely the device had closed it already.
    bool wasStale() const { return m_isReused && !m_hasAnswerBegun; }

signals:
    void received(); ///< a part of an answer
    void ended(const vms_sdk::HttpAnswer &answer); ///< once for each send(); it may come from inside it
    void unused(); ///< while it stays open: it has ended, or was not used in time

private:
    enum class Phase
    {
        New,
        Connecting,
        Sending,
        Receiving,
        Resting, ///< between exchanges
        Ended
    };

    void connectToPeer();
    void onSslErrors(const QList<QSslError> &errors);
    void onEncrypted();
    void write();
    void onBytesWritten();
    void onReadyRead();
    void onDisconnected();
    void setDeadline(std::chrono::milliseconds limit);
    void onTimer();
    void onDeadline();
    void take(HttpAnswerReader::State state);
    void fail(TroubleReason reason, const QString &why);
    void end(const HttpAnswer &answer, Phase next);

    const Peer m_peer;
    const HttpLimits m_limits;
    PinnedCertificate m_pin;
    QTcpSocket *m_socket;
    QSslSocket *m_tls = nullptr; ///< the same one
    QTimer m_timer; ///< ends at the deadline or before it
    QDeadlineTimer m_timerEnd; ///< of m_timer
    QDeadlineTimer m_deadline{QDeadlineTimer::Forever};
    Phase m_phase = Phase::New;
    QByteArray m_message; ///< until it is written
    std::optional<HttpAnswerReader> m_reader;
    QString m_certificateFault;
    bool m_isReused = false;
    bool m_hasAnswerBegun = false;
};

} // namespace vms_sdk
