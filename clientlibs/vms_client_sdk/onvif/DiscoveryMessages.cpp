#include <vms_client_sdk/onvif/DiscoveryMessages.h>

#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlElement.h>

#include <QHostAddress>
#include <QStringList>

#include <algorithm>

namespace vms_sdk {

using namespace onvif;

namespace {

// Names of WS-Discovery: its action, and whom a probe by multicast is for.
constexpr char probeAction[] = "http://schemas.xmlsoap.org/ws/2005/04/discovery/Probe";
constexpr char everybody[] = "urn:schemas-xmlsoap-org:ws:2005:04:discovery";

QByteArray probeMessage(const QString &messageId, const char *type)
{
    XmlElement envelope(soapEnvelope, "Envelope");
    envelope.declarations = {{QStringLiteral("s"), QLatin1String(soapEnvelope)},
                             {QStringLiteral("a"), QLatin1String(wsa)},
                             {QStringLiteral("d"), QLatin1String(wsdd)},
                             {QStringLiteral("dn"), QLatin1String(dn)},
                             {QStringLiteral("tds"), QLatin1String(tds)}};
    XmlElement &header = envelope.append(XmlElement(soapEnvelope, "Header"));
    header.append(XmlElement(wsa, "Action", QLatin1String(probeAction)));
    header.append(XmlElement(wsa, "MessageID", messageId));
    header.append(XmlElement(wsa, "To", QLatin1String(everybody)));
    XmlElement &probe = envelope.append(XmlElement(soapEnvelope, "Body")).append(XmlElement(wsdd, "Probe"));
    probe.append(XmlElement(wsdd, "Types", QLatin1String(type)));
    return writeXml(envelope);
}

QStringList words(const QString &text)
{
    return text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString shortText(const QString &text)
{
    return text.size() <= maxFoundText ? text : QString();
}

/// Texts of one category, such as "onvif://www.onvif.org/name/Gate%201", as far as there is room for them.
QString fromScopes(const QStringList &scopes, const QString &category)
{
    const QString start = QStringLiteral("onvif://www.onvif.org/%1/").arg(category);
    QStringList parts;
    int length = 0;
    for (const QString &scope : scopes) {
        if (!scope.startsWith(start, Qt::CaseInsensitive))
            continue;
        const QString part =
            QString::fromUtf8(QByteArray::fromPercentEncoding(scope.mid(start.size()).toUtf8())).trimmed();
        const int longer = length + part.size() + (parts.isEmpty() ? 0 : 2); // with ", "
        if (part.isEmpty() || parts.contains(part) || longer > maxFoundText)
            continue;
        parts.append(part);
        length = longer;
    }
    return parts.join(QStringLiteral(", "));
}

/// IPv6 addresses of a link mean nothing without the interface, which no answer names.
bool isOfLinkOnly(const QUrl &address)
{
    const QHostAddress host(address.host());
    return host.protocol() == QAbstractSocket::IPv6Protocol && host.isLinkLocal();
}

QList<QUrl> addressesIn(const QString &text, const QString &sender)
{
    QList<QUrl> all;
    const QStringList texts = words(text);
    for (const QString &each : texts) {
        const QUrl url(shortText(each), QUrl::StrictMode);
        const bool isWeb = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
        if (isWeb && url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty() && !all.contains(url))
            all.append(url);
        if (all.size() == maxFoundAddresses)
            break;
    }
    const auto elsewhere = std::remove_if(all.begin(), all.end(), isOfLinkOnly);
    if (elsewhere != all.begin())
        all.erase(elsewhere, all.end());
    std::stable_partition(all.begin(), all.end(), [&sender](const QUrl &url) { return url.host() == sender; });
    return all;
}

FoundCamera cameraIn(const XmlElement &match, const QString &sender)
{
    FoundCamera camera;
    camera.sender = sender;
    if (const XmlElement *reference = match.child(wsa, "EndpointReference"))
        camera.endpoint = shortText(reference->textOf(wsa, "Address"));
    const QStringList scopes = words(match.textOf(wsdd, "Scopes"));
    camera.name = fromScopes(scopes, QStringLiteral("name"));
    camera.hardware = fromScopes(scopes, QStringLiteral("hardware"));
    camera.location = fromScopes(scopes, QStringLiteral("location"));
    camera.addresses = addressesIn(match.textOf(wsdd, "XAddrs"), sender);
    if (camera.endpoint.isEmpty() && !camera.addresses.isEmpty())
        camera.endpoint = camera.addresses.constFirst().toString(QUrl::FullyEncoded);
    return camera;
}

} // namespace

QByteArrayList probeMessages(const QStringList &messageIds)
{
    return {probeMessage(messageIds.value(0), "tds:Device"),
            probeMessage(messageIds.value(1), "dn:NetworkVideoTransmitter")};
}

ProbeAnswer readProbeAnswer(const QByteArray &datagram, const QString &sender)
{
    const XmlRead xml = readXml(datagram);
    if (!xml.root)
        return {{}, {}, xml.error};
    const XmlElement *header = xml.root->child(soapEnvelope, "Header");
    const XmlElement *body = xml.root->child(soapEnvelope, "Body");
    const XmlElement *matches = body ? body->child(wsdd, "ProbeMatches") : nullptr;
    if (!xml.root->is(soapEnvelope, "Envelope") || !header || !matches)
        return {{}, {}, QStringLiteral("it is no answer to a probe")};
    ProbeAnswer answer;
    answer.relatesTo = header->textOf(wsa, "RelatesTo");
    for (const XmlElement *match : matches->all(wsdd, "ProbeMatch")) {
        const FoundCamera camera = cameraIn(*match, sender);
        if (!camera.addresses.isEmpty())
            answer.cameras.append(camera);
    }
    return answer;
}

} // namespace vms_sdk
