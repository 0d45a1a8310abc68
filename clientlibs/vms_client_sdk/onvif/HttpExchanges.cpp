#include <vms_client_sdk/onvif/HttpExchanges.h>

#include <vms_client_sdk/HttpHead.h>
#include <vms_client_sdk/onvif/HttpConnection.h>

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>
#include <QVector>

#include <deque>

namespace vms_sdk {

namespace {

// Longer than the pause between two looks at a camera, so that these find a connection.
constexpr std::chrono::seconds restLimit{45};

// Of further connections to the same camera: cameras have few places for them, and others want some, too.
constexpr std::chrono::seconds furtherRestLimit{5};

// Connections between exchanges, of all cameras together; each takes a descriptor, and 20 to 110 KiB.
constexpr int maxResting = 1024;

// With so many exchanges under way a camera's next one waits for its connection in place of opening another: opening
// costs both ends more than the wait, which others use.
constexpr std::size_t busyFrom = 64;

} // namespace

class HttpExchanges::Private
{
public:
    struct Exchange
    {
        HttpRequest request;
        HttpConnection::Peer peer;
        QString address; ///< host and port
        QPointer<QObject> owner;
        QMetaObject::Connection ownerGone;
        Done done;
        HttpConnection *connection = nullptr; ///< while it goes on
        QElapsedTimer since; ///< it was begun
        bool isSentAnew = false;
        bool isOver = false;
    };
    using ExchangePtr = std::shared_ptr<Exchange>;

    struct Address
    {
        int running = 0; ///< exchanges that go on or are ready
        std::deque<ExchangePtr> waiting; ///< for one of these to end
        QVector<HttpConnection *> resting;
    };

    Private(HttpExchanges *owner, const HttpLimits &limits)
        : q(owner)
        , m_limits(limits)
    {
    }

    void add(const ExchangePtr &exchange);
    void scheduleStart();
    void startReady();
    void begin(const ExchangePtr &exchange);
    HttpConnection *takeResting(const Exchange &exchange);
    HttpConnection *makeConnection(const HttpConnection::Peer &peer);
    void giveUpLongest() const;
    void onEnded(HttpConnection *connection, const HttpAnswer &answer);
    void rest(HttpConnection *connection, const QString &address);
    void onUnused(HttpConnection *connection);
    void cancel(const ExchangePtr &exchange);
    void leave(const ExchangePtr &exchange);
    void tell(const ExchangePtr &exchange, const HttpAnswer &answer) const;

    HttpExchanges *const q;
    const HttpLimits m_limits;
    QHash<QString, Address> m_addresses;
    std::deque<ExchangePtr> m_ready; ///< their addresses have room
    QHash<HttpConnection *, ExchangePtr> m_running;
    int m_resting = 0;
    bool m_isStartScheduled = false;
};

namespace {

QByteArray messageFor(const HttpRequest &request)
{
    const QUrl &url = request.url;
    QByteArray message = "POST " + requestTarget(url);
    message += " HTTP/1.1\r\nHost: " + url.adjusted(QUrl::RemoveUserInfo).authority(QUrl::FullyEncoded).toLatin1()
             + "\r\nUser-Agent: orda\r\nConnection: keep-alive\r\n"
               "Accept-Encoding: identity\r\n" // what is compressed could unpack to any size
               "Content-Type: application/soap+xml; charset=utf-8";
    if (!request.action.isEmpty())
        message += "; action=\"" + request.action + '"';
    message += "\r\nContent-Length: " + QByteArray::number(request.body.size()) + "\r\n";
    if (!request.authorization.isEmpty())
        message += "Authorization: " + request.authorization + "\r\n";
    return message + "\r\n" + request.body;
}

QString addressOf(const HttpConnection::Peer &peer)
{
    return peer.host + QLatin1Char(' ') + QString::number(peer.port);
}

} // namespace

void HttpExchanges::Private::add(const ExchangePtr &exchange)
{
    exchange->ownerGone =
        QObject::connect(exchange->owner, &QObject::destroyed, q, [this, exchange] { cancel(exchange); });
    Address &address = m_addresses[exchange->address];
    const bool isBusy = std::size_t(m_running.size()) + m_ready.size() >= busyFrom;
    const bool opens = !exchange->request.isRepeatable || address.resting.isEmpty();
    if (address.running >= (isBusy && opens ? 1 : m_limits.maxToAddress)) {
        address.waiting.push_back(exchange);
        return;
    }
    ++address.running;
    m_ready.push_back(exchange);
    scheduleStart();
}

void HttpExchanges::Private::scheduleStart()
{
    if (m_ready.empty() || m_running.size() >= m_limits.maxAtOnce || std::exchange(m_isStartScheduled, true))
        return;
    QMetaObject::invokeMethod(
        q, [this] { startReady(); }, Qt::QueuedConnection);
}

void HttpExchanges::Private::startReady()
{
    m_isStartScheduled = false;
    while (!m_ready.empty() && m_running.size() < m_limits.maxAtOnce) {
        const ExchangePtr exchange = m_ready.front();
        m_ready.pop_front();
        if (exchange->isOver)
            leave(exchange);
        else
            begin(exchange);
    }
}

void HttpExchanges::Private::begin(const ExchangePtr &exchange)
{
    exchange->since.start();
    // What must not be sent twice is not sent on a connection that the device may be about to close.
    const bool mayReuse = exchange->request.isRepeatable && !exchange->isSentAnew;
    HttpConnection *connection = mayReuse ? takeResting(*exchange) : nullptr;
    if (!connection)
        connection = makeConnection(exchange->peer);
    exchange->connection = connection;
    m_running.insert(connection, exchange);
    connection->send(messageFor(exchange->request), exchange->request.maxAnswerBytes); // last: it can fail at once
}

HttpConnection *HttpExchanges::Private::takeResting(const Exchange &exchange)
{
    QVector<HttpConnection *> &resting = m_addresses[exchange.address].resting;
    for (int i = 0; i < resting.size(); ++i) {
        HttpConnection *connection = resting.at(i);
        if (connection->peer() == exchange.peer) {
            resting.removeAt(i);
            --m_resting;
            return connection;
        }
    }
    return nullptr;
}

HttpConnection *HttpExchanges::Private::makeConnection(const HttpConnection::Peer &peer)
{
    auto *connection = new HttpConnection(peer, m_limits, q);
    QObject::connect(connection, &HttpConnection::ended, q,
                     [this, connection](const HttpAnswer &answer) { onEnded(connection, answer); });
    QObject::connect(connection, &HttpConnection::received, q, [this] { giveUpLongest(); });
    QObject::connect(connection, &HttpConnection::unused, q, [this, connection] { onUnused(connection); });
    return connection;
}

/// Where there are too many bytes.
void HttpExchanges::Private::giveUpLongest() const
{
    qint64 inAll = 0;
    HttpConnection *longest = nullptr;
    for (auto running = m_running.cbegin(); running != m_running.cend(); ++running) {
        inAll += running.key()->bytesHeld();
        if (!longest || running.key()->bytesHeld() > longest->bytesHeld())
            longest = running.key();
    }
    if (longest && inAll > m_limits.maxBytesInAll)
        longest->giveUp();
}

void HttpExchanges::Private::onEnded(HttpConnection *connection, const HttpAnswer &answer)
{
    const ExchangePtr exchange = m_running.take(connection);
    exchange->connection = nullptr;
    rest(connection, exchange->address);
    const bool isSoon = !exchange->since.hasExpired(m_limits.connectLimit.count());
    if (answer.reason == TroubleReason::ConnectionLost && connection->wasStale() && exchange->request.isRepeatable
        && isSoon) {
        exchange->isSentAnew = true;
        return begin(exchange);
    }
    tell(exchange, answer);
    leave(exchange);
}

void HttpExchanges::Private::rest(HttpConnection *connection, const QString &address)
{
    QVector<HttpConnection *> &resting = m_addresses[address].resting;
    if (m_resting >= maxResting
        || !connection->stay(resting.isEmpty() ? restLimit : std::chrono::milliseconds(furtherRestLimit))) {
        connection->deleteLater(); // not at once: it may be what calls this
        return;
    }
    resting.append(connection);
    ++m_resting;
}

void HttpExchanges::Private::onUnused(HttpConnection *connection)
{
    connection->deleteLater();
    const QString address = addressOf(connection->peer());
    Address &found = m_addresses[address];
    m_resting -= found.resting.removeAll(connection);
    if (found.running == 0 && found.resting.isEmpty())
        m_addresses.remove(address);
}

void HttpExchanges::Private::cancel(const ExchangePtr &exchange)
{
    exchange->isOver = true;
    exchange->done = {};
    HttpConnection *connection = std::exchange(exchange->connection, nullptr);
    if (!connection)
        return; // left when it is its turn
    m_running.remove(connection);
    connection->disconnect(q);
    connection->deleteLater();
    connection->cut();
    leave(exchange);
}

/// Gives the exchange's place to the next of the same address.
void HttpExchanges::Private::leave(const ExchangePtr &exchange)
{
    const QString key = exchange->address;
    Address &address = m_addresses[key];
    while (!address.waiting.empty() && address.waiting.front()->isOver)
        address.waiting.pop_front();
    if (!address.waiting.empty()) {
        m_ready.push_back(address.waiting.front());
        address.waiting.pop_front();
    } else if (--address.running == 0 && address.resting.isEmpty()) {
        m_addresses.remove(key);
    }
    scheduleStart();
}

void HttpExchanges::Private::tell(const ExchangePtr &exchange, const HttpAnswer &answer) const
{
    QObject::disconnect(exchange->ownerGone);
    exchange->isOver = true;
    if (exchange->owner) // whose end takes the call with it
        QMetaObject::invokeMethod(
            exchange->owner,
            [self = QPointer<HttpExchanges>(q), done = std::move(exchange->done), answer] {
                if (self)
                    done(answer);
            },
            Qt::QueuedConnection);
}

HttpExchanges::HttpExchanges(const HttpLimits &limits, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, limits))
{
}

HttpExchanges::~HttpExchanges() = default;

void HttpExchanges::post(const HttpRequest &request, QObject *owner, const Done &done)
{
    const auto exchange = std::make_shared<Private::Exchange>();
    exchange->request = request;
    exchange->owner = owner;
    exchange->done = done;
    const bool isSecure = request.url.scheme() == QLatin1String("https");
    exchange->peer = {request.url.host(), quint16(request.url.port(isSecure ? 443 : 80)), isSecure,
                      request.fingerprint};
    exchange->address = addressOf(exchange->peer);
    const bool isHttp = isSecure || request.url.scheme() == QLatin1String("http");
    if (isHttp && request.url.isValid() && !exchange->peer.host.isEmpty())
        return d->add(exchange);
    HttpAnswer answer;
    answer.reason = TroubleReason::NoAddress;
    answer.error = QStringLiteral("has no address to ask");
    d->tell(exchange, answer);
}

} // namespace vms_sdk
