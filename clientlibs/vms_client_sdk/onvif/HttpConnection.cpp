#include <vms_client_sdk/onvif/HttpConnection.h>

#include <vms_client_sdk/DeviceTls.h>
#include <vms_client_sdk/ForeignText.h>

#include <QNetworkProxy>
#include <QSslSocket>

#include <utility>

namespace vms_sdk {

namespace {

// What is read from one camera before it is the others' turn; a multiple of the longest header line.
constexpr qint64 readBufferBytes = 65'536;

} // namespace

HttpConnection::HttpConnection(const Peer &peer, const HttpLimits &limits, QObject *parent)
    : QObject(parent)
    , m_peer(peer)
    , m_limits(limits)
    , m_pin(peer.fingerprint)
{
    if (peer.isSecure)
        m_socket = m_tls = new QSslSocket(this);
    else
        m_socket = new QTcpSocket(this);
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_socket->setReadBufferSize(readBufferBytes);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &HttpConnection::onTimer);
    connect(m_socket, &QTcpSocket::bytesWritten, this, &HttpConnection::onBytesWritten);
    connect(m_socket, &QTcpSocket::readyRead, this, &HttpConnection::onReadyRead);
    connect(m_socket, &QTcpSocket::disconnected, this, &HttpConnection::onDisconnected);
    connect(m_socket, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
        // When the device closes the connection, disconnected() follows.
        if (!m_certificateFault.isEmpty())
            fail(TroubleReason::Certificate, m_certificateFault);
        else if (error != QAbstractSocket::RemoteHostClosedError)
            fail(troubleOf(error, m_phase == Phase::Connecting), escaped(m_socket->errorString()));
    });
}

HttpConnection::~HttpConnection()
{
    m_socket->disconnect(this);
}

void HttpConnection::send(const QByteArray &message, qint64 maxAnswerBytes)
{
    Q_ASSERT(m_phase == Phase::New || m_phase == Phase::Resting);
    m_message = message;
    m_reader.emplace(qMin(maxAnswerBytes, m_limits.maxAnswerBytes));
    m_hasAnswerBegun = false;
    setDeadline(m_limits.connectLimit);
    if (std::exchange(m_phase, Phase::Connecting) == Phase::New)
        return connectToPeer();
    m_isReused = true;
    write();
}

void HttpConnection::connectToPeer()
{
    if (!m_tls && m_pin.isSet())
        return fail(TroubleReason::Certificate, QStringLiteral("has a certificate in the inventory, but no TLS"));
    if (!m_tls) {
        connect(m_socket, &QTcpSocket::connected, this, &HttpConnection::write);
        m_socket->connectToHost(m_peer.host, m_peer.port);
        return;
    }
    m_tls->setSslConfiguration(deviceTls());
    connect(m_tls, QOverload<const QList<QSslError> &>::of(&QSslSocket::sslErrors), this, &HttpConnection::onSslErrors);
    connect(m_tls, &QSslSocket::encrypted, this, &HttpConnection::onEncrypted);
    connect(m_tls, &QSslSocket::encryptedBytesWritten, this, &HttpConnection::onBytesWritten);
    m_tls->connectToHostEncrypted(m_peer.host, m_peer.port);
}

void HttpConnection::onSslErrors(const QList<QSslError> &errors)
{
    const QList<QSslError> tolerated = m_pin.tolerated(errors, m_tls->peerCertificate());
    m_certificateFault = escaped(PinnedCertificate::fault(errors, tolerated));
    m_tls->ignoreSslErrors(tolerated); // the handshake goes on only if these are all the errors
}

void HttpConnection::onEncrypted()
{
    // A certificate without errors raises no sslErrors, but it may still not be the pinned one.
    if (m_pin.isSet() && !m_pin.matches(m_tls->peerCertificate()))
        fail(TroubleReason::Certificate, QStringLiteral("does not show the certificate of the inventory"));
    else
        write();
}

void HttpConnection::write()
{
    m_phase = Phase::Sending;
    // Header and body leave in one piece; in two, the second would wait for the first one's acknowledgement.
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_socket->write(std::exchange(m_message, {}));
    m_socket->flush();
}

void HttpConnection::onBytesWritten()
{
    if (m_phase != Phase::Sending || m_socket->bytesToWrite() > 0 || (m_tls && m_tls->encryptedBytesToWrite() > 0))
        return;
    m_phase = Phase::Receiving;
    setDeadline(m_limits.answerLimit);
}

void HttpConnection::onReadyRead()
{
    if (m_phase == Phase::Sending || m_phase == Phase::Receiving)
        take(m_reader->read(*m_socket));
    else if (m_phase == Phase::Resting)
        end({}, Phase::Ended); // nobody has asked it
}

void HttpConnection::onDisconnected()
{
    if (m_phase == Phase::Connecting) {
        fail(m_tls ? TroubleReason::Tls : TroubleReason::ConnectionLost, QStringLiteral("connection closed"));
    } else if (m_phase == Phase::Resting) {
        end({}, Phase::Ended);
    } else if (m_phase == Phase::Sending || m_phase == Phase::Receiving) {
        HttpAnswerReader::State state = m_reader->read(*m_socket);
        if (state == HttpAnswerReader::State::Incomplete)
            state = m_reader->end();
        take(state);
    }
}

void HttpConnection::take(HttpAnswerReader::State state)
{
    m_hasAnswerBegun = m_reader->hasBegun();
    if (state == HttpAnswerReader::State::Incomplete) {
        emit received(); // last: it may be given up
        return;
    }
    // More than was asked for, or an answer before the whole request: whose answer the next one is, nobody could tell.
    const bool isInStep = m_phase == Phase::Receiving && m_socket->bytesAvailable() == 0
                       && m_socket->state() == QAbstractSocket::ConnectedState;
    const HttpAnswer answer = m_reader->answer();
    end(answer, m_reader->canStayOpen() && isInStep ? Phase::Resting : Phase::Ended);
}

/// Starts the timer only when it would come too late: Qt searches all timers of the thread for one that is started or
/// stopped, and each connection has one.
void HttpConnection::setDeadline(std::chrono::milliseconds limit)
{
    m_deadline.setRemainingTime(limit);
    if (m_timer.isActive() && m_timerEnd <= m_deadline)
        return;
    m_timerEnd = m_deadline;
    m_timer.start(limit);
}

void HttpConnection::onTimer()
{
    if (m_deadline.isForever())
        return;
    if (m_deadline.hasExpired())
        return onDeadline();
    setDeadline(std::chrono::milliseconds(m_deadline.remainingTime()));
}

void HttpConnection::onDeadline()
{
    switch (m_phase) {
    case Phase::Connecting:
        return fail(TroubleReason::NoAnswer, QStringLiteral("no connection in time"));
    case Phase::Sending:
        return fail(TroubleReason::NoAnswer, QStringLiteral("it does not take the request in time"));
    case Phase::Receiving:
        return fail(TroubleReason::NoAnswer, QStringLiteral("no complete answer in time"));
    default:
        return end({}, Phase::Ended);
    }
}

void HttpConnection::fail(TroubleReason reason, const QString &why)
{
    HttpAnswer answer;
    answer.reason = reason;
    answer.error = why;
    answer.hasLeft = m_phase == Phase::Sending || m_phase == Phase::Receiving;
    end(answer, Phase::Ended);
}

void HttpConnection::end(const HttpAnswer &answer, Phase next)
{
    const Phase before = std::exchange(m_phase, next);
    if (before == Phase::Ended)
        return;
    m_deadline = QDeadlineTimer(QDeadlineTimer::Forever);
    m_reader.reset();
    if (next == Phase::Ended) {
        m_timer.stop();
        m_socket->abort();
    }
    if (before == Phase::Resting) // last: they may delete this
        emit unused();
    else
        emit ended(answer);
}

void HttpConnection::giveUp()
{
    fail(TroubleReason::Limits, QStringLiteral("its answer is the longest of too many at once"));
}

void HttpConnection::cut()
{
    m_phase = Phase::Ended;
    m_timer.stop();
    m_socket->abort();
}

bool HttpConnection::stay(std::chrono::milliseconds limit)
{
    if (m_phase != Phase::Resting)
        return false;
    setDeadline(limit);
    return true;
}

} // namespace vms_sdk
