#include <vms_client_sdk/websocket/DeviceLink.h>

#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/DeviceTls.h>
#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/websocket/AnswerCheck.h>
#include <vms_client_sdk/websocket/LinkHost.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSslSocket>

namespace vms_sdk {

namespace {

// Answers are taken only under ids that were sent to the device. A run uses one id for each device, so that these are
// enough for late answers to many earlier runs.
constexpr int maxRequestIds = 64;

// When a device that sent too much has kept its limits for so long, the pause before it is dialled again is short
// again.
constexpr std::chrono::minutes goodBehaviour{1};

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
    rest(m_status, goingAwayCloseCode);
}

void DeviceLink::start()
{
    if (hasAddress())
        return queue();
    const QString why = QStringLiteral("has no address to dial");
    warn(why);
    setTrouble(TroubleReason::NoAddress, why);
    emit statusChanged(m_device.id, m_status, m_trouble);
}

bool DeviceLink::hasAddress() const
{
    return m_url.isValid() && !m_url.host().isEmpty();
}

void DeviceLink::end()
{
    m_trouble = {};
    rest(DevOffline, normalCloseCode);
}

void DeviceLink::connectAgain()
{
    if (m_status == DevRefused && m_phase == Phase::Resting)
        queue();
}

void DeviceLink::dialNow()
{
    if (m_phase != Phase::Resting || !hasAddress())
        return;
    m_host.clearDeadline(this); // of the pause
    queue();
}

void DeviceLink::queue()
{
    m_phase = Phase::Connecting;
    const bool hasFailed = m_losses + m_cuts > 0;
    m_host.queueForDialling(this, m_wasOnline ? DialPlaces::Turn::WasOnline
                                  : hasFailed ? DialPlaces::Turn::HasFailed
                                              : DialPlaces::Turn::New);
}

void DeviceLink::dial()
{
    setStatus(DevConnecting);
    m_hasPlace = true;
    m_host.setDeadline(this, m_host.options().connectLimit);
    m_signOn.emplace(m_device);
    m_certificateFault.clear();
    m_connection = makeConnection();
    const bool isSecure = m_url.scheme() == QLatin1String("wss");
    m_connection->open(m_url, isSecure ? deviceTls() : QSslConfiguration()); // last: it can fail at once
}

WebSocketConnection *DeviceLink::makeConnection()
{
    auto *connection = new WebSocketConnection(PeerLimits(), this);
    connection->setReading(!m_host.isReadingHeld());
    connection->setMaxMessageBytes(maxSignOnBytes);
    connect(connection, &WebSocketConnection::lineUp, this, &DeviceLink::onLineUp);
    connect(connection, &WebSocketConnection::sslErrors, this, &DeviceLink::onSslErrors);
    connect(connection, &WebSocketConnection::textReceived, this, &DeviceLink::onText);
    connect(connection, &WebSocketConnection::binaryReceived, this,
            [this] { warn(QStringLiteral("sends binary messages; they are dropped")); });
    connect(connection, &WebSocketConnection::pongReceived, this, &DeviceLink::sawTraffic);
    connect(connection, &WebSocketConnection::unfinishedChanged, this,
            [this](int bytes) { m_host.setUnfinished(this, bytes); });
    connect(connection, &WebSocketConnection::unsentChanged, this,
            [this](qint64 bytes) { m_host.setUnsent(this, bytes); });
    connect(connection, &WebSocketConnection::ended, this, &DeviceLink::onEnded);
    return connection;
}

void DeviceLink::onSslErrors(const QList<QSslError> &errors)
{
    const QList<QSslError> tolerated = m_pin.tolerated(errors, m_connection->tlsSocket()->peerCertificate());
    m_certificateFault = PinnedCertificate::fault(errors, tolerated);
    if (!m_certificateFault.isEmpty())
        warn(m_certificateFault);
    m_connection->tlsSocket()->ignoreSslErrors(tolerated); // the handshake goes on only if these are all the errors
}

void DeviceLink::onLineUp()
{
    // A certificate without errors raises no sslErrors, but it may still not be the pinned one.
    const QSslSocket *tls = m_connection->tlsSocket();
    if (m_pin.isSet() && !(tls && m_pin.matches(tls->peerCertificate()))) {
        const QString why = QStringLiteral("does not show the certificate of the inventory");
        warn(why);
        lost(TroubleReason::Certificate, why);
        return;
    }
    m_phase = Phase::SigningOn;
    m_host.setDeadline(this, m_host.options().placeLimit);
}

void DeviceLink::onEnded(int code, const QString &why, TroubleReason reason)
{
    if (reason == TroubleReason::Limits)
        cut(why);
    else if (code == signOnRefusedCode)
        refused(TroubleReason::Password, QStringLiteral("it does not accept the user name or the password"));
    else if (!m_certificateFault.isEmpty())
        lost(TroubleReason::Certificate, m_certificateFault);
    else
        lost(reason, why);
}

void DeviceLink::onText(const QByteArray &message)
{
    if (m_phase == Phase::Online) {
        sawTraffic();
        onFrame(message);
    } else {
        onSignOnMessage(message);
    }
}

void DeviceLink::onSignOnMessage(const QByteArray &message)
{
    const ClientSignOn::Outcome outcome = m_signOn->take(QString::fromUtf8(message));
    switch (outcome.step) {
    case ClientSignOn::Step::Answer:
        m_connection->sendText(outcome.text.toUtf8());
        break;
    case ClientSignOn::Step::Refused:
        refused(outcome.reason, outcome.text);
        break;
    case ClientSignOn::Step::Broken:
        warn(QStringLiteral("does not sign on as it should: %1").arg(outcome.text));
        lost(outcome.reason, outcome.text);
        break;
    case ClientSignOn::Step::Welcome:
        signedOn();
        break;
    }
}

void DeviceLink::signedOn()
{
    m_phase = Phase::Online;
    m_connection->setMaxMessageBytes(maxFrameBytes);
    m_wasOnline = true;
    m_hasPlace = false;
    m_host.setDeadline(this, m_host.options().pingInterval);
    m_onlineFor.start();
    m_trouble = {};
    m_warned.clear();
    m_unansweredPings = 0;
    if (!m_signOn->state())
        warn(QStringLiteral("reports an unknown state; it counts as online"));
    setStatus(m_signOn->state().value_or(DevOnline));
    m_host.leave(this); // last: it dials another link
}

void DeviceLink::onFrame(const QByteArray &message)
{
    const int end = message.indexOf('\n');
    const QByteArray text = message.mid(end + 1);
    if (end < 0)
        warn(QStringLiteral("sends messages without an id line; they are dropped"));
    else if (end == 0)
        onNotice(text);
    else
        onAnswer(QString::fromUtf8(message.constData(), end), text);
}

void DeviceLink::onNotice(const QByteArray &text)
{
    const bool isReadable = !checkAnswer(text).fault;
    const QJsonObject notice = isReadable ? QJsonDocument::fromJson(text).object() : QJsonObject();
    if (const auto state = onlineStateFrom(notice.value(QLatin1String("state"))))
        setStatus(*state);
    else
        warn(QStringLiteral("sends notices without a known state; they are ignored"));
}

void DeviceLink::onAnswer(const QString &requestId, const QByteArray &text)
{
    if (!m_requestIds.contains(requestId)) {
        qCDebug(sdkLog) << "device" << m_device.id << "answers what it was not asked:" << requestId.left(64)
                        << "dropped";
        return;
    }
    const AnswerCheck check = checkAnswer(text);
    if (check.fault && check.isJson)
        warn(QStringLiteral("gives an answer that %1; it counts as unreadable").arg(QLatin1String(check.fault)));
    const QString answer = check.fault ? QString() : QString::fromUtf8(text);
    if (!m_host.backlog().add(m_device.id, requestId, answer.size())) {
        cut(QStringLiteral("answers more than the window can read"));
        return;
    }
    if (m_host.backlog().isFull())
        m_host.holdReading();
    emit answered(requestId, answer);
}

void DeviceLink::setReading(bool isReading)
{
    if (m_connection)
        m_connection->setReading(isReading);
}

void DeviceLink::sawTraffic()
{
    m_unansweredPings = 0;
    if (m_phase != Phase::Online)
        return;
    m_losses = 0;
    if (m_cuts > 0 && m_onlineFor.hasExpired(std::chrono::milliseconds(goodBehaviour).count()))
        m_cuts = 0;
}

void DeviceLink::send(const QString &requestId, const QString &text)
{
    if (m_phase != Phase::Online) {
        qCDebug(sdkLog) << "request" << requestId << "dropped:" << m_device.id << "is not online";
        return;
    }
    const QByteArray frame = toFrameText({requestId, text}).toUtf8();
    if (frame.size() > maxFrameBytes - m_connection->unsentBytes()) {
        warn(QStringLiteral("does not take its requests fast enough, or they are too large; some are dropped"));
        return;
    }
    if (m_requestIds.isEmpty() || m_requestIds.constFirst() != requestId) {
        m_requestIds.prepend(requestId);
        if (m_requestIds.size() > maxRequestIds)
            m_requestIds.removeLast();
    }
    m_connection->sendText(frame);
}

void DeviceLink::deadlineReached()
{
    const WebSocketOptions &options = m_host.options();
    if (m_phase == Phase::Resting) {
        queue();
    } else if (m_phase == Phase::Connecting) {
        lost(TroubleReason::NoAnswer, QStringLiteral("no connection in time"));
    } else if (m_host.isReadingHeld()) {
        m_host.setDeadline(this, options.pingInterval); // what the device sent in time may not have been read yet
    } else if (m_phase == Phase::SigningOn) {
        if (!m_hasPlace)
            return lost(TroubleReason::NoAnswer, QStringLiteral("no sign-on in time"));
        m_hasPlace = false;
        m_host.setDeadline(this, options.setUpLimit - options.placeLimit);
        if (!m_host.makeRoom(this)) // last: it dials another link
            qCDebug(sdkLog) << "device" << m_device.id << "keeps its place: too many others wait, too";
    } else if (m_unansweredPings == 2) {
        lost(TroubleReason::ConnectionLost, QStringLiteral("pings without an answer"));
    } else if (m_connection->unfinishedFor() > options.pingInterval.count()) {
        cut(QStringLiteral("does not finish its message"));
    } else {
        ping();
    }
}

void DeviceLink::ping()
{
    ++m_unansweredPings;
    m_host.setDeadline(this, m_host.options().pingInterval);
    m_connection->ping();
}

void DeviceLink::lost(TroubleReason reason, const QString &why)
{
    qCInfo(sdkLog) << "device" << m_device.id << "lost:" << why;
    ++m_losses;
    setTrouble(reason, why);
    rest(DevOffline, goingAwayCloseCode);
    m_host.setDeadline(this,
                       randomBackOff(m_host.options().firstBackOff, m_host.options().lastBackOff, m_losses + m_cuts));
}

void DeviceLink::cut(const QString &why)
{
    warn(why);
    ++m_cuts;
    m_wasOnline = false; // others are dialled first
    lost(TroubleReason::Limits, why);
}

void DeviceLink::refused(TroubleReason reason, const QString &why)
{
    warn(QStringLiteral("sign-on refused: %1").arg(why));
    setTrouble(reason, why);
    rest(DevRefused, signOnRefusedCode);
}

void DeviceLink::setTrouble(TroubleReason reason, const QString &why)
{
    m_trouble.reason = reason;
    m_trouble.detail = escaped(why);
}

void DeviceLink::rest(DevStatus status, int closeCode)
{
    if (std::exchange(m_phase, Phase::Resting) == Phase::Online)
        m_trouble.offlineSince = QDateTime::currentMSecsSinceEpoch();
    m_hasPlace = false;
    m_host.clearDeadline(this);
    m_host.setUnfinished(this, 0);
    m_host.setUnsent(this, 0);
    if (WebSocketConnection *connection = std::exchange(m_connection, nullptr)) {
        connection->disconnect(this);
        m_host.closeConnection(connection, closeCode);
    }
    setStatus(status);
    m_host.leave(this); // last: it dials another link
}

void DeviceLink::setStatus(DevStatus status)
{
    if (std::exchange(m_status, status) != status)
        emit statusChanged(m_device.id, status, m_trouble);
}

void DeviceLink::warn(const QString &what)
{
    if (m_warned.contains(what))
        return; // a device that does it again and again must not flood the log
    m_warned.insert(what);
    qCWarning(sdkLog).noquote() << "device" << escaped(m_device.id) << escaped(what);
}

} // namespace vms_sdk
