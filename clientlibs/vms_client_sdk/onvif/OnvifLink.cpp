#include <vms_client_sdk/onvif/OnvifLink.h>

#include <vms_client_sdk/DeviceTls.h>
#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/onvif/OnvifHost.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/OnvifRequest.h>

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include <utility>

namespace vms_sdk {

namespace {

// A task waits for one answer at a time, and few tasks run at one device.
constexpr int maxRequests = 32;

// An account that may read only is refused each write: one look whether it still works is enough for all of them.
constexpr std::chrono::minutes accountCheckInterval{1};

// Polls of devices that came online together shall not go out together: each pause is up to a fifth shorter.
constexpr double leastShareOfPause = 0.8;

} // namespace

OnvifLink::OnvifLink(const DevInfo &device, OnvifHost &host)
    : m_device(device)
    , m_host(host)
    , m_line(device, host.exchanges())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &OnvifLink::onTimer);
}

OnvifLink::~OnvifLink()
{
    m_host.leave(this);
    const auto requests = findChildren<OnvifRequest *>();
    qDeleteAll(requests); // they call this link
}

void OnvifLink::start()
{
    if (hasAddress())
        return queue();
    const QString why = QStringLiteral("has no address to dial");
    warn(why);
    setTrouble(TroubleReason::NoAddress, why);
    emit statusChanged(m_device.id, m_status, m_trouble);
}

bool OnvifLink::hasAddress() const
{
    return m_line.url().isValid() && !m_line.url().host().isEmpty();
}

void OnvifLink::end()
{
    const auto requests = findChildren<OnvifRequest *>();
    qDeleteAll(requests);
    m_requests.clear();
    m_trouble = {};
    rest(DevOffline);
}

void OnvifLink::connectAgain()
{
    if (m_status == DevRefused && m_phase == Phase::Resting)
        queue();
}

void OnvifLink::connectNow()
{
    if (m_phase == Phase::Resting && hasAddress())
        queue();
}

bool OnvifLink::takeOver(const DevInfo &device)
{
    if (device == m_device)
        return true;
    DevInfo same = device;
    same.serialNumber = m_device.serialNumber;
    // Without a serial number again, a camera that was refused for another one is to be taken.
    const bool isOther = m_trouble.reason == TroubleReason::SerialNumber;
    if (!m_isSerialLearned || isOther || !device.serialNumber.isEmpty() || same != m_device)
        return false;
    emit identified(m_device.id, m_device.serialNumber);
    return true;
}

void OnvifLink::queue()
{
    m_timer.stop();
    m_phase = Phase::SigningOn;
    m_host.queueForSignOn(this, m_losses > 1); // with one loss it was online before
}

void OnvifLink::signOn()
{
    setStatus(DevConnecting);
    m_signOn = std::make_unique<OnvifSignOn>(
        m_device, m_line, [this](const OnvifSignOn::Outcome &outcome) { onSignedOn(outcome); }, this);
    m_signOn->start();
}

void OnvifLink::onSignedOn(const OnvifSignOn::Outcome &outcome)
{
    m_signOn.release()->deleteLater(); // it is the caller
    switch (outcome.kind) {
    case OnvifSignOn::Outcome::Kind::Refused:
        return refused(outcome.reason, outcome.text);
    case OnvifSignOn::Outcome::Kind::Failed:
        if (outcome.reason == TroubleReason::Certificate)
            warn(outcome.text);
        return lost(outcome.reason, outcome.text);
    case OnvifSignOn::Outcome::Kind::SignedOn:
        return goOnline(outcome.serialNumber);
    }
}

void OnvifLink::goOnline(const QString &serialNumber)
{
    m_phase = Phase::Online;
    m_host.leave(this);
    m_session = std::make_unique<QObject>(this);
    m_isPolling = m_isChecking = false;
    m_accountChecked.invalidate();
    m_misses = 0;
    m_trouble = {};
    m_warned.clear();
    if (m_device.serialNumber.isEmpty() && !serialNumber.isEmpty()) {
        m_device.serialNumber = serialNumber;
        m_isSerialLearned = true;
        emit identified(m_device.id, serialNumber);
    }
    setStatus(DevOnline);
    pollAfter(m_host.options().pollInterval, 0);
}

void OnvifLink::onTimer()
{
    if (m_phase == Phase::Online)
        poll();
    else if (m_phase == Phase::Resting)
        queue();
}

void OnvifLink::pollAfter(std::chrono::milliseconds longest, double leastShare)
{
    const double share = leastShare + (1 - leastShare) * QRandomGenerator::global()->generateDouble();
    m_timer.start(int(double(longest.count()) * share));
}

void OnvifLink::poll()
{
    if (std::exchange(m_isPolling, true))
        return;
    m_timer.stop();
    m_line.readClock(m_session.get(), [this](const CameraLine::Reply &reply) { onPolled(reply); });
}

void OnvifLink::onPolled(const CameraLine::Reply &reply)
{
    if (m_phase != Phase::Online)
        return;
    m_isPolling = false;
    if (reply.trouble.isEmpty()) {
        sawAnswer();
        return pollAfter(m_host.options().pollInterval, leastShareOfPause);
    }
    if (++m_misses < m_host.options().missesToOffline)
        return m_timer.start(m_host.options().pollAgain);
    lost(reply.reason == TroubleReason::None ? TroubleReason::ConnectionLost : reply.reason, reply.trouble);
}

bool OnvifLink::hasService(OnvifService service) const
{
    return m_line.hasService(service);
}

void OnvifLink::call(OnvifService service, const XmlElement &operation, bool isRepeatable, QObject *owner,
                     const Done &done)
{
    if (m_phase != Phase::Online) {
        CallResult result;
        result.trouble = QStringLiteral("the device is not online");
        QMetaObject::invokeMethod(
            owner, [=] { done(result); }, Qt::QueuedConnection);
        return;
    }
    m_line.post(service, operation, isRepeatable, owner, [this, owner, done](const CameraLine::Reply &reply) {
        m_host.hold(qobject_cast<OnvifRequest *>(owner), reply.bytes);
        done(reply); // first: what follows may end the requests
        onCalled(reply);
    });
}

void OnvifLink::onCalled(const CameraLine::Reply &reply)
{
    if (m_phase != Phase::Online)
        return;
    if (!reply.trouble.isEmpty())
        return poll();
    sawAnswer();
    const qint64 interval = std::chrono::milliseconds(accountCheckInterval).count();
    if (reply.isRefused && (!m_accountChecked.isValid() || m_accountChecked.hasExpired(interval)))
        checkDevice();
}

void OnvifLink::sawAnswer()
{
    m_losses = 0;
    if (std::exchange(m_misses, 0) > 0)
        checkDevice(); // it may have got another one's address meanwhile
}

void OnvifLink::checkDevice()
{
    if (std::exchange(m_isChecking, true))
        return;
    m_accountChecked.start();
    const XmlElement operation(onvif::tds, "GetDeviceInformation");
    m_line.postFirst(OnvifService::Device, operation, m_session.get(), [this](const CameraLine::Reply &reply) {
        if (m_phase != Phase::Online)
            return;
        m_isChecking = false;
        if (!reply.trouble.isEmpty())
            poll();
        else if (reply.isRefused)
            refused(TroubleReason::Password, QStringLiteral("it no longer accepts the user name or the password"));
        else if (reply.isGood() && serialNumberFrom(reply.answer) != m_device.serialNumber)
            lost(TroubleReason::ConnectionLost, QStringLiteral("another device answers at its address"));
    });
}

void OnvifLink::send(const QString &requestId, const QString &text, std::chrono::milliseconds limit)
{
    if (m_phase != Phase::Online) {
        qCDebug(sdkLog) << "request" << requestId << "dropped:" << m_device.id << "is not online";
        return;
    }
    if (m_requests.size() >= maxRequests)
        return warn(QStringLiteral("has too many requests to carry out; some are dropped"));
    const QJsonObject content = QJsonDocument::fromJson(text.toUtf8()).object();
    auto *request = new OnvifRequest(*this, content, this);
    m_requests.insert(request, {requestId, m_host.takePlace()});
    connect(request, &OnvifRequest::finished, this,
            [this, request](const QJsonObject &answer) { onFinished(request, answer); });
    QTimer::singleShot(limit, Qt::PreciseTimer, request, [this, request] {
        if (m_requests.contains(request))
            request->endNow(QStringLiteral("no answer in time"));
    });
    connect(request, &QObject::destroyed, &m_host, &OnvifHost::release);
    request->start(); // last: it may finish at once
}

void OnvifLink::onFinished(OnvifRequest *request, const QJsonObject &answer)
{
    m_host.release(request);
    request->deleteLater();
    const QString requestId = m_requests.take(request).id;
    const QString text = QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
    if (m_host.backlog().add(m_device.id, requestId, text.size())) {
        emit answered(requestId, text);
        return;
    }
    const QString why = QStringLiteral("answers more than the window can read");
    warn(why);
    if (m_phase == Phase::Online)
        lost(TroubleReason::Limits, why);
}

void OnvifLink::lost(TroubleReason reason, const QString &why)
{
    qCInfo(sdkLog).noquote() << "device" << escaped(m_device.id) << "lost:" << escaped(why);
    ++m_losses;
    setTrouble(reason, why);
    rest(DevOffline);
    m_timer.start(randomBackOff(m_host.options().firstBackOff, m_host.options().lastBackOff, m_losses));
}

void OnvifLink::refused(TroubleReason reason, const QString &why)
{
    warn(QStringLiteral("sign-on refused: %1").arg(why));
    setTrouble(reason, why);
    rest(DevRefused);
}

void OnvifLink::setTrouble(TroubleReason reason, const QString &why)
{
    m_trouble.reason = reason;
    m_trouble.detail = escaped(why);
}

void OnvifLink::rest(DevStatus status)
{
    if (std::exchange(m_phase, Phase::Resting) == Phase::Online) {
        m_trouble.offlineSince = QDateTime::currentMSecsSinceEpoch();
        m_session.release()->deleteLater(); // one of its exchanges may be the caller
    }
    m_timer.stop();
    m_signOn.reset();
    m_host.leave(this);
    endRequests();
    setStatus(status);
}

void OnvifLink::endTimedOut(const QSet<QString> &requestIds)
{
    const QList<OnvifRequest *> requests = m_requests.keys();
    for (OnvifRequest *request : requests)
        if (requestIds.contains(m_requests.value(request).id))
            request->endNow(QStringLiteral("nobody waits for it any more"));
}

void OnvifLink::endRequests()
{
    const QList<OnvifRequest *> requests = m_requests.keys();
    for (OnvifRequest *request : requests)
        request->endNow(QStringLiteral("the device is not online any more"));
}

void OnvifLink::setStatus(DevStatus status)
{
    if (std::exchange(m_status, status) != status)
        emit statusChanged(m_device.id, status, m_trouble);
}

void OnvifLink::warn(const QString &what)
{
    if (m_warned.contains(what))
        return; // a device that does it again and again must not flood the log
    m_warned.insert(what);
    qCWarning(sdkLog).noquote() << "device" << escaped(m_device.id) << escaped(what);
}

} // namespace vms_sdk
