#include <vms_client_sdk/onvif/SoapMessage.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QCryptographicHash>
#include <QRandomGenerator>

#include <array>

namespace vms_sdk {

using namespace onvif;

namespace {

// WS-UsernameToken asks for no certain length; 16 bytes do not come twice.
constexpr std::size_t nonceWords = 4;

constexpr char passwordDigest[] =
    "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-username-token-profile-1.0#PasswordDigest";
constexpr char base64Binary[] =
    "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-soap-message-security-1.0#Base64Binary";

// What a log line, or a message in a window, takes of a device's words.
constexpr int maxReason = 300;

} // namespace

UsernameToken makeUsernameToken(const QString &userName, const QString &password, const QDateTime &deviceTime)
{
    std::array<quint32, nonceWords> words{};
    QRandomGenerator::system()->fillRange(words.data(), int(words.size()));
    const QByteArray nonce(reinterpret_cast<const char *>(words.data()), int(sizeof words));
    UsernameToken token;
    token.userName = userName;
    token.nonce = nonce.toBase64();
    token.created = deviceTime.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzzZ"));
    const QByteArray hashed = nonce + token.created.toLatin1() + password.toUtf8();
    token.digest = QCryptographicHash::hash(hashed, QCryptographicHash::Sha1).toBase64();
    return token;
}

QByteArray soapRequest(const XmlElement &operation, const std::optional<UsernameToken> &token)
{
    XmlElement envelope(soapEnvelope, "Envelope");
    if (token) {
        XmlElement &header = envelope.append(XmlElement(soapEnvelope, "Header"));
        XmlElement &security = header.append(XmlElement(wsse, "Security"));
        // A device that does not know of it must say so, and not carry out what nobody has signed.
        security.attributes.append(
            {QLatin1String(soapEnvelope), {}, QStringLiteral("mustUnderstand"), QStringLiteral("1")});
        XmlElement &shown = security.append(XmlElement(wsse, "UsernameToken"));
        shown.append(XmlElement(wsse, "Username", token->userName));
        XmlElement &password = shown.append(XmlElement(wsse, "Password", QString::fromLatin1(token->digest)));
        password.setAttribute("Type", QLatin1String(passwordDigest));
        XmlElement &nonce = shown.append(XmlElement(wsse, "Nonce", QString::fromLatin1(token->nonce)));
        nonce.setAttribute("EncodingType", QLatin1String(base64Binary));
        shown.append(XmlElement(wsu, "Created", token->created));
    }
    envelope.append(XmlElement(soapEnvelope, "Body")).append(operation);
    return writeXml(envelope);
}

bool SoapFault::is(const char *name) const
{
    return codes.contains(QLatin1String(name));
}

QString SoapFault::text() const
{
    const QString particular = codes.mid(1).join(QLatin1Char('/'));
    const QString all = (particular.isEmpty() ? codes.join(QLatin1Char('/')) : particular).left(maxReason);
    if (reason.isEmpty())
        return all.isEmpty() ? QStringLiteral("a fault without a code") : escaped(all);
    return escaped(QStringLiteral("%1: %2").arg(all, reason.simplified().left(maxReason)));
}

namespace {

/// "ter:NotAuthorized" gives "NotAuthorized": devices use any prefix, and some use none.
QString localName(const QString &qualified)
{
    return qualified.mid(qualified.indexOf(QLatin1Char(':')) + 1).left(maxReason);
}

SoapFault readFault(const XmlElement &fault)
{
    SoapFault read;
    const char *const ofNamespace = soapEnvelope;
    for (const XmlElement *code = fault.child(ofNamespace, "Code"); code; code = code->child(ofNamespace, "Subcode"))
        read.codes.append(localName(code->textOf(ofNamespace, "Value")));
    if (const XmlElement *reason = fault.child(ofNamespace, "Reason"))
        read.reason = reason->textOf(ofNamespace, "Text");
    return read;
}

} // namespace

SoapAnswer readSoapAnswer(const QByteArray &document)
{
    // When a camera's program has crashed, its HTTP server may answer nothing with status 200.
    if (document.trimmed().isEmpty())
        return {{}, {}, QStringLiteral("the answer is empty")};
    XmlRead xml = readXml(document);
    if (!xml.root)
        return {{}, {}, QStringLiteral("the answer cannot be read: %1").arg(xml.error)};
    XmlElement &envelope = *xml.root;
    XmlElement *body = envelope.child(soapEnvelope, "Body");
    if (!envelope.is(soapEnvelope, "Envelope") || !body)
        return {{}, {}, QStringLiteral("the answer is no SOAP 1.2 message")};
    for (XmlElement &element : body->children) {
        if (element.is(soapEnvelope, "Fault"))
            return {{}, readFault(element), {}};
        if (!element.isText())
            return {detached({&envelope, body, &element}, &element), {}, {}, xml.count};
    }
    return {{}, {}, QStringLiteral("the answer is empty")};
}

} // namespace vms_sdk
