#include "fleet/onvif/ProbeResponder.h"

#include "fleet/onvif/CameraServices.h"
#include "fleet/onvif/OnvifDevice.h"
#include "fleet/onvif/OnvifSite.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QUuid>

#include <algorithm>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

constexpr char group[] = "239.255.255.250"; // of WS-Discovery, as is the port
constexpr quint16 discoveryPort = 3702;

// A burst of a thousand datagrams would be more than a client's socket holds.
constexpr int datagramsAtOnce = 10;
constexpr std::chrono::milliseconds sendingInterval{5};
constexpr int maxWaiting = 20000; // beyond that probes come faster than they can be answered

QStringList words(const QString &list)
{
    return list.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// Whether a camera is of one of the types: prefixes are the client's own.
bool isOfTypes(const XmlElement &probe)
{
    const QStringList types = words(probe.textOf(wsdd, "Types"));
    return types.isEmpty() || std::any_of(types.begin(), types.end(), [](const QString &type) {
               return type.endsWith(QLatin1String(":NetworkVideoTransmitter"))
                   || type.endsWith(QLatin1String(":Device"));
           });
}

bool hasScopes(const CameraState &camera, const XmlElement &probe)
{
    const QStringList wanted = words(probe.textOf(wsdd, "Scopes"));
    const QStringList own = scopesOf(camera);
    return std::all_of(wanted.begin(), wanted.end(), [&own](const QString &scope) {
        return std::any_of(own.begin(), own.end(), [&scope](const QString &each) { return each.startsWith(scope); });
    });
}

QString endpoint(const CameraState &camera)
{
    const QUuid ownNamespace(QStringLiteral("{7d6f1c1e-6f0c-4d2b-9d53-0c0e5a7a7b11}"));
    return QStringLiteral("urn:uuid:")
         + QUuid::createUuidV5(ownNamespace, camera.serialNumber).toString(QUuid::WithoutBraces);
}

XmlElement match(const OnvifDevice &camera)
{
    XmlElement one(wsdd, "ProbeMatch");
    one.append(XmlElement(wsa, "EndpointReference")).append(XmlElement(wsa, "Address", endpoint(camera.state())));
    XmlElement &types = one.append(XmlElement(wsdd, "Types", QStringLiteral("dn:NetworkVideoTransmitter")));
    types.declarations.append({QStringLiteral("dn"), QLatin1String(dn)});
    one.append(XmlElement(wsdd, "Scopes", scopesOf(camera.state()).join(QLatin1Char(' '))));
    one.append(XmlElement(wsdd, "XAddrs", camera.url()));
    one.append(XmlElement(wsdd, "MetadataVersion", QStringLiteral("1")));
    return one;
}

QByteArray probeMatches(const OnvifDevice &camera, const QString &messageId)
{
    XmlElement envelope(soapEnvelope, "Envelope");
    XmlElement &header = envelope.append(XmlElement(soapEnvelope, "Header"));
    header.append(
        XmlElement(wsa, "MessageID", QStringLiteral("urn:uuid:") + QUuid::createUuid().toString(QUuid::WithoutBraces)));
    header.append(XmlElement(wsa, "RelatesTo", messageId));
    header.append(XmlElement(wsa, "To", QLatin1String(wsa) + QStringLiteral("/role/anonymous")));
    header.append(XmlElement(wsa, "Action", QLatin1String(wsdd) + QStringLiteral("/ProbeMatches")));
    envelope.append(XmlElement(soapEnvelope, "Body")).append(XmlElement(wsdd, "ProbeMatches")).append(match(camera));
    return vms_sdk::writeXml(envelope);
}

} // namespace

ProbeResponder::ProbeResponder(const OnvifSite &site, QObject *parent)
    : QObject(parent)
    , m_site(site)
{
    connect(&m_socket, &QUdpSocket::readyRead, this, &ProbeResponder::readProbes);
    connect(&m_sending, &QTimer::timeout, this, &ProbeResponder::sendSome);
}

QString ProbeResponder::start()
{
    if (!m_socket.bind(QHostAddress::AnyIPv4, discoveryPort, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint))
        return tr("cannot listen to probes on port %1: %2").arg(discoveryPort).arg(m_socket.errorString());
    int joined = 0;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &each : interfaces) {
        const bool isUp = each.flags() & QNetworkInterface::IsUp;
        if (isUp && (each.flags() & QNetworkInterface::CanMulticast)
            && m_socket.joinMulticastGroup(QHostAddress(QLatin1String(group)), each))
            ++joined;
    }
    return joined > 0 ? QString() : tr("cannot listen to probes: no network interface takes part in multicast");
}

void ProbeResponder::readProbes()
{
    while (m_socket.hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket.receiveDatagram();
        const vms_sdk::XmlRead read = vms_sdk::readXml(datagram.data());
        if (read.root)
            answer(*read.root, datagram.senderAddress(), quint16(datagram.senderPort()));
    }
}

void ProbeResponder::answer(const XmlElement &envelope, const QHostAddress &to, quint16 port)
{
    const XmlElement *header = envelope.child(soapEnvelope, "Header");
    const XmlElement *body = envelope.child(soapEnvelope, "Body");
    const XmlElement *probe = body ? body->child(wsdd, "Probe") : nullptr;
    const QString messageId = header ? header->textOf(wsa, "MessageID") : QString();
    if (!probe || messageId.isEmpty() || !isOfTypes(*probe))
        return;
    for (const OnvifDevice *camera : m_site.discoverable())
        if (hasScopes(camera->state(), *probe) && m_answers.size() < maxWaiting)
            m_answers.enqueue({probeMatches(*camera, messageId), to, port});
    m_sending.start(sendingInterval);
}

void ProbeResponder::sendSome()
{
    for (int i = 0; i < datagramsAtOnce && !m_answers.isEmpty(); ++i) {
        const Answer next = m_answers.dequeue();
        m_socket.writeDatagram(next.datagram, next.to, next.port);
    }
    if (m_answers.isEmpty())
        m_sending.stop();
}

} // namespace device_fleet
