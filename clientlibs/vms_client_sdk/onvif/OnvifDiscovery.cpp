#include <vms_client_sdk/onvif/OnvifDiscovery.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/onvif/DiscoveryMessages.h>

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QUdpSocket>
#include <QUuid>

#include <utility>

namespace vms_sdk {

using namespace std::chrono_literals;

namespace {

// Where devices listen for probes: given out to WS-Discovery for all networks.
constexpr char multicastGroup[] = "239.255.255.250";
constexpr quint16 multicastPort = 3702;
// A search is of the link, as WS-Discovery has it: no router passes this on.
constexpr int timeToLive = 1;
// A datagram may be lost. The pause doubles, as "SOAP over UDP" has it; a device answers the same message once.
constexpr auto firstPause = 250ms;
constexpr int timesSent = 3;
// More than any link has; who makes them up must not fill the memory.
constexpr int maxCameras = 10'000;
// Read in one go: a flood must not hold up the window.
constexpr int maxAtOnce = 50;

bool isUsable(const QNetworkInterface &interface)
{
    const QNetworkInterface::InterfaceFlags flags = interface.flags();
    return flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning)
        && (flags.testFlag(QNetworkInterface::CanMulticast) || flags.testFlag(QNetworkInterface::IsLoopBack));
}

QList<QHostAddress> ipv4Of(const QNetworkInterface &interface)
{
    QList<QHostAddress> found;
    const QList<QNetworkAddressEntry> entries = interface.addressEntries();
    for (const QNetworkAddressEntry &entry : entries)
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
            found.append(entry.ip());
    return found;
}

} // namespace

class OnvifDiscovery::Private
{
public:
    explicit Private(OnvifDiscovery *owner);

    QString open(const QString &name);
    bool send();
    void close();

    QTimer end, again;
    bool isOn = false;

private:
    void openOn(const QNetworkInterface &interface);
    void read(QUdpSocket *socket);
    bool take(const ProbeAnswer &answer);

    OnvifDiscovery *q;
    QList<QUdpSocket *> m_sockets;
    QStringList m_messageIds;
    QByteArrayList m_probes;
    QSet<QString> m_found; // endpoints with their senders
    int m_timesSent = 0;
    QString m_error; // of the last socket that did not work
};

OnvifDiscovery::Private::Private(OnvifDiscovery *owner)
    : q(owner)
{
    end.setSingleShot(true);
    again.setSingleShot(true);
    QObject::connect(&end, &QTimer::timeout, q, &OnvifDiscovery::stop);
    QObject::connect(&again, &QTimer::timeout, q, [this] { send(); });
}

QString OnvifDiscovery::Private::open(const QString &name)
{
    const QStringList names = name.isEmpty() ? interfaces() : QStringList{name};
    if (names.isEmpty())
        return OnvifDiscovery::tr(
            "There is no network to search: no interface is up that has an IPv4 address and multicast.");
    if (!name.isEmpty()) {
        const QNetworkInterface interface = QNetworkInterface::interfaceFromName(name);
        const QStringList others = interfaces();
        if (!interface.isValid())
            return others.isEmpty()
                     ? OnvifDiscovery::tr(R"(There is no network interface "%1", nor another that can be searched.)")
                           .arg(name)
                     : OnvifDiscovery::tr(R"(There is no network interface "%1"; these can be searched: %2.)")
                           .arg(name, others.join(QStringLiteral(", ")));
        if (!isUsable(interface) || ipv4Of(interface).isEmpty())
            return OnvifDiscovery::tr(
                       R"(The network interface "%1" cannot be searched: it is not up, or has no IPv4 address or no )"
                       "multicast.")
                .arg(name);
    }
    m_messageIds.clear();
    for (int i = 0; i < probeCount; ++i)
        m_messageIds.append(QStringLiteral("urn:uuid:") + QUuid::createUuid().toString(QUuid::WithoutBraces));
    m_probes = probeMessages(m_messageIds);
    m_found.clear();
    m_timesSent = 0;
    for (const QString &each : names)
        openOn(QNetworkInterface::interfaceFromName(each));
    if (m_sockets.isEmpty() || !send()) {
        close();
        return OnvifDiscovery::tr("The search cannot be sent: %1").arg(m_error);
    }
    return {};
}

/// A camera answers only whom it can reach: where an interface has addresses in several networks, each asks.
void OnvifDiscovery::Private::openOn(const QNetworkInterface &interface)
{
    const QList<QHostAddress> addresses = ipv4Of(interface);
    for (const QHostAddress &address : addresses) {
        auto *socket = new QUdpSocket(q);
        if (!socket->bind(address, 0)) {
            m_error = socket->errorString();
            delete socket;
            continue;
        }
        socket->setMulticastInterface(interface);
        socket->setSocketOption(QAbstractSocket::MulticastTtlOption, timeToLive);
        QObject::connect(socket, &QUdpSocket::readyRead, q, [this, socket] { read(socket); });
        m_sockets.append(socket);
    }
}

/// @return whether one probe at least has left
bool OnvifDiscovery::Private::send()
{
    bool isSent = false;
    for (QUdpSocket *socket : qAsConst(m_sockets)) {
        for (const QByteArray &probe : qAsConst(m_probes)) {
            if (socket->writeDatagram(probe, QHostAddress(QLatin1String(multicastGroup)), multicastPort) > 0)
                isSent = true;
            else
                m_error = socket->errorString();
        }
    }
    if (++m_timesSent < timesSent)
        again.start(firstPause * m_timesSent);
    return isSent;
}

void OnvifDiscovery::Private::close()
{
    again.stop();
    end.stop();
    for (QUdpSocket *socket : qAsConst(m_sockets)) {
        socket->close();
        socket->deleteLater(); // it may be the one whose signal is being handled
    }
    m_sockets.clear();
}

void OnvifDiscovery::Private::read(QUdpSocket *socket)
{
    // More comes with the next signal.
    for (int i = 0; i < maxAtOnce && socket->hasPendingDatagrams(); ++i) {
        const QNetworkDatagram datagram = socket->receiveDatagram();
        const ProbeAnswer answer = readProbeAnswer(datagram.data(), datagram.senderAddress().toString());
        if (!answer.error.isEmpty())
            qCDebug(sdkLog).noquote() << "Something from" << datagram.senderAddress().toString()
                                      << "was dropped in a search:" << answer.error;
        else if (!m_messageIds.contains(answer.relatesTo))
            qCDebug(sdkLog).noquote() << "An answer of" << datagram.senderAddress().toString()
                                      << "was dropped: it is to no probe of this search";
        else if (!take(answer))
            return;
    }
}

/// @return false when this search has ended meanwhile
bool OnvifDiscovery::Private::take(const ProbeAnswer &answer)
{
    const QPointer<OnvifDiscovery> self(q);
    const QStringList messageIds = m_messageIds;
    for (const FoundCamera &camera : answer.cameras) {
        const QString key = camera.endpoint + QLatin1Char(' ') + camera.sender;
        if (m_found.size() == maxCameras || m_found.contains(key))
            continue;
        m_found.insert(key);
        emit q->found(camera);
        if (!self || !isOn || m_messageIds != messageIds)
            return false;
    }
    return true;
}

OnvifDiscovery::OnvifDiscovery(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    qRegisterMetaType<FoundCamera>();
}

OnvifDiscovery::~OnvifDiscovery() = default;

QStringList OnvifDiscovery::interfaces()
{
    QStringList names;
    const QList<QNetworkInterface> all = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &interface : all)
        if (isUsable(interface) && !interface.flags().testFlag(QNetworkInterface::IsLoopBack)
            && !ipv4Of(interface).isEmpty())
            names.append(interface.name());
    return names;
}

QString OnvifDiscovery::start(const QString &interface, std::chrono::milliseconds duration)
{
    stop();
    QString error = d->open(interface);
    if (!error.isEmpty())
        return error;
    d->isOn = true;
    d->end.start(duration);
    return {};
}

void OnvifDiscovery::stop()
{
    d->close();
    if (std::exchange(d->isOn, false))
        emit finished();
}

} // namespace vms_sdk
