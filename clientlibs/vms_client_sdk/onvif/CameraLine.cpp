#include <vms_client_sdk/onvif/CameraLine.h>

#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/HttpHead.h>
#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QDateTime>

#include <algorithm>
#include <iterator>
#include <utility>

namespace vms_sdk {

namespace {

// A camera that calls each of its nonces too old would be asked for ever.
constexpr int maxStales = 2;

// By so much a clock must have been set before a refused token is worth a second attempt; less is the time that the
// requests themselves take.
constexpr qint64 clockChangeMs = 5'000;

// What a device service answers with takes a few KiB. Each camera is asked it every half minute: were it 4 MiB each
// time, some of them together would hold up all others.
constexpr qint64 maxDeviceAnswer = 262'144;

// In memory an element or attribute takes over 100 bytes, however short it is. So many bytes of text grow as large.
constexpr qint64 elementBytes = 32;

// Paths of real cameras take a twentieth of this.
constexpr int maxAddressLength = 2'048;

/// Whether it is the account that the camera wants or does not take. Were a wrong one no refusal, it would be shown
/// again after each pause.
bool isAboutAccount(const SoapFault &fault)
{
    // The codes of the ONVIF standard, and those of WS-Security.
    const char *const codes[] = {"NotAuthorized", "FailedAuthentication", "InvalidSecurity", "InvalidSecurityToken",
                                 "FailedCheck"};
    return std::any_of(std::begin(codes), std::end(codes), [&fault](const char *code) { return fault.is(code); });
}

CameraLine::Reply replyFrom(const HttpAnswer &http)
{
    CameraLine::Reply reply;
    reply.challenges = http.challenges;
    reply.reason = http.reason;
    if (http.status == 0) {
        reply.trouble = http.error;
        reply.mayBeDone = http.hasLeft;
        return reply;
    }
    const bool isUnauthorized = http.status == 401 || http.status == 403;
    SoapAnswer soap = readSoapAnswer(http.body);
    reply.bytes = http.body.size() + elementBytes * soap.count;
    reply.fault = soap.fault;
    reply.takesTokens = soap.fault && isAboutAccount(*soap.fault);
    reply.isRefused = isUnauthorized || reply.takesTokens;
    if (isUnauthorized && !reply.fault)
        reply.fault = SoapFault{{QStringLiteral("Sender"), QStringLiteral("NotAuthorized")},
                                QStringLiteral("HTTP status %1").arg(http.status)};
    if (reply.fault)
        return reply;
    if (!http.error.isEmpty())
        reply.trouble = http.error;
    else if (!soap.error.isEmpty())
        reply.trouble = http.status / 100 == 2 ? soap.error : QStringLiteral("HTTP status %1").arg(http.status);
    else
        reply.answer = std::move(soap.body);
    reply.mayBeDone = !reply.trouble.isEmpty();
    return reply;
}

/// Invalid unless the camera says the whole time in UTC: what its other times mean depends on settings of its own.
QDateTime clockFrom(const XmlElement &answer)
{
    using namespace onvif;
    const XmlElement *told = answer.child(tds, "SystemDateAndTime");
    const XmlElement *utc = told ? told->child(tt, "UTCDateTime") : nullptr;
    const XmlElement *date = utc ? utc->child(tt, "Date") : nullptr;
    const XmlElement *time = utc ? utc->child(tt, "Time") : nullptr;
    if (!date || !time)
        return {};
    const auto number = [](const XmlElement *from, const char *name) {
        bool isNumber = false;
        const int value = from->textOf(tt, name).toInt(&isNumber);
        return isNumber ? value : -1;
    };
    const int second = qMin(number(time, "Second"), 59); // the standard allows for leap seconds
    const QDateTime clock({number(date, "Year"), number(date, "Month"), number(date, "Day")},
                          {number(time, "Hour"), number(time, "Minute"), second}, Qt::UTC);
    return clock.date().isValid() && clock.time().isValid() ? clock : QDateTime();
}

} // namespace

CameraLine::CameraLine(const DevInfo &device, HttpExchanges &exchanges)
    : m_exchanges(exchanges)
    , m_url(deviceUrl(device))
    , m_userName(device.userName)
    , m_password(device.password)
    , m_fingerprint(device.fingerprint)
{
    forget();
}

void CameraLine::forget()
{
    m_urls = {{OnvifService::Device, m_url}};
    m_scheme = Scheme::None;
    m_digest.reset();
    m_waiting.clear();
    m_trial.reset();
    m_isDoubted = false;
    m_hasTokenWorked = false;
    m_clockOffset = 0;
}

void CameraLine::setService(OnvifService service, const QString &address)
{
    const QUrl given(address, QUrl::StrictMode);
    const QString path = given.path(QUrl::FullyEncoded);
    if (address.size() > maxAddressLength || !given.isValid() || !path.startsWith(QLatin1Char('/')))
        return;
    QUrl url = m_url;
    url.setPath(path, QUrl::StrictMode);
    url.setQuery(given.hasQuery() ? given.query(QUrl::FullyEncoded) : QString(), QUrl::StrictMode);
    if (url.isValid() && !url.path().isEmpty())
        m_urls.insert(service, url);
}

void CameraLine::useDigest(const DigestAuth &digest)
{
    m_scheme = Scheme::Digest;
    m_digest = digest;
    m_isNonceFresh = true;
}

void CameraLine::post(OnvifService service, const XmlElement &operation, bool isRepeatable, QObject *owner,
                      const Done &done)
{
    m_waiting.push_back({operation, owner, done, service, m_scheme, isRepeatable});
    sendWaiting();
}

void CameraLine::postFirst(OnvifService service, const XmlElement &operation, QObject *owner, const Done &done)
{
    m_waiting.push_front({operation, owner, done, service, m_scheme, true});
    sendWaiting();
}

void CameraLine::sendWaiting()
{
    while (!m_waiting.empty() && m_trial.expired()) {
        Request request = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (!request.owner)
            continue;
        if (m_isDoubted && request.scheme == Scheme::Digest) {
            request.trial = std::make_shared<bool>();
            m_trial = request.trial;
        }
        send(std::move(request));
    }
}

void CameraLine::readClock(QObject *owner, const Done &done)
{
    const XmlElement operation(onvif::tds, "GetSystemDateAndTime");
    const auto take = [this, done](const Reply &reply) {
        if (reply.isGood())
            takeClock(reply.answer);
        done(reply);
    };
    send({operation, owner, take, OnvifService::Device, Scheme::None, true});
}

void CameraLine::takeClock(const XmlElement &answer)
{
    const QDateTime clock = clockFrom(answer);
    m_clockOffset = clock.isValid() ? QDateTime::currentDateTimeUtc().msecsTo(clock) : 0;
}

void CameraLine::send(Request request)
{
    request.clockOffset = m_clockOffset;
    HttpRequest http;
    http.url = m_urls.value(request.service);
    http.action = (request.operation.namespaceUri + QLatin1Char('/') + request.operation.name).toUtf8();
    http.fingerprint = m_fingerprint;
    http.isRepeatable = request.isRepeatable;
    if (request.service == OnvifService::Device)
        http.maxAnswerBytes = maxDeviceAnswer;
    std::optional<UsernameToken> token;
    if (request.scheme == Scheme::Token) {
        token = makeUsernameToken(m_userName, m_password, QDateTime::currentDateTimeUtc().addMSecs(m_clockOffset));
    } else if (request.scheme == Scheme::Digest) {
        if (request.digest)
            useDigest(*std::exchange(request.digest, {}));
        request.isNonceFresh = std::exchange(m_isNonceFresh, false) && !request.hasWaited;
        http.authorization = m_digest->authorization(m_userName, m_password, requestTarget(http.url));
    }
    http.body = soapRequest(request.operation, token);
    m_exchanges.post(http, request.owner, [this, request](const HttpAnswer &answer) { onAnswer(request, answer); });
}

void CameraLine::onAnswer(const Request &request, const HttpAnswer &answer)
{
    const Reply reply = replyFrom(answer);
    if (reply.isRefused && request.scheme == Scheme::Digest && sendWithNewNonce(request, reply))
        return;
    if (reply.isRefused && request.scheme == Scheme::Token && m_hasTokenWorked && !request.isClockRead)
        return sendByNewClock(request, reply);
    if (request.scheme == Scheme::Token && !reply.isRefused && reply.trouble.isEmpty())
        m_hasTokenWorked = true;
    if (request.scheme == Scheme::Digest && reply.trouble.isEmpty())
        m_isDoubted = reply.isRefused;
    if (request.trial)
        m_trial.reset();
    request.done(reply); // first: it may have the account looked into, before those that wait try it
    sendWaiting();
}

bool CameraLine::sendWithNewNonce(const Request &request, const Reply &reply)
{
    const std::optional<DigestAuth> digest = DigestAuth::fromChallenges(reply.challenges);
    if (!digest)
        return false;
    // Some cameras take each nonce once, others for a minute, and not all of them say that it was only too old. With a
    // nonce that was never used before, it is the account that is refused.
    Request again = request;
    if (digest->isStale() || request.isNonceFresh) {
        useDigest(*digest);
        if (!digest->isStale() || ++again.stales > maxStales)
            return false;
        send(again);
        return true;
    }
    if (std::exchange(again.trial, nullptr))
        m_trial.reset();
    m_isDoubted = true;
    again.digest = digest;
    again.hasWaited = !m_trial.expired();
    m_waiting.push_front(again);
    sendWaiting();
    return true;
}

void CameraLine::sendByNewClock(const Request &request, const Reply &reply)
{
    readClock(request.owner, [this, request, reply](const Reply &) {
        if (qAbs(m_clockOffset - request.clockOffset) <= clockChangeMs)
            return request.done(reply);
        Request again = request;
        again.isClockRead = true;
        send(again);
    });
}

} // namespace vms_sdk
