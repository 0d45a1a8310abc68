#include "fleet/onvif/OnvifReply.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <algorithm>
#include <array>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

struct Prefix
{
    const char *uri, *usual, *numbered;
};
constexpr std::array<Prefix, 7> prefixes{{{soapEnvelope, "env", "SOAP-ENV"},
                                          {tt, "tt", "ns1"},
                                          {tds, "tds", "ns2"},
                                          {trt, "trt", "ns3"},
                                          {tr2, "tr2", "ns4"},
                                          {timg, "timg", "ns5"},
                                          {ter, "ter", "ns6"}}};

/// Null for what a camera's maker has added.
const Prefix *knownPrefix(const QString &uri)
{
    const auto found = std::find_if(prefixes.begin(), prefixes.end(),
                                    [&](const Prefix &each) { return uri == QLatin1String(each.uri); });
    return found == prefixes.end() ? nullptr : &*found;
}

bool isEnvelope(const Prefix &prefix)
{
    return QLatin1String(prefix.uri) == QLatin1String(soapEnvelope);
}

QString prefixIn(const Prefix &prefix, XmlStyle style)
{
    if (style == XmlStyle::DefaultNamespaces && isEnvelope(prefix))
        return QStringLiteral("s");
    return QLatin1String(style == XmlStyle::Numbered ? prefix.numbered : prefix.usual);
}

/// Gives the elements of the standard the camera's prefixes. What its maker has added stays as it is.
void restyle(XmlElement *element, XmlStyle style, const QString &outerDefault)
{
    if (element->isText())
        return;
    const Prefix *known = knownPrefix(element->namespaceUri);
    auto &declarations = element->declarations;
    declarations.erase(std::remove_if(declarations.begin(), declarations.end(),
                                      [](const auto &each) { return knownPrefix(each.namespaceUri) != nullptr; }),
                       declarations.end());
    QString innerDefault = outerDefault;
    if (known && style == XmlStyle::DefaultNamespaces && !isEnvelope(*known)) {
        element->prefix.clear();
        if (element->namespaceUri != outerDefault)
            declarations.prepend({{}, element->namespaceUri});
        innerDefault = element->namespaceUri;
    } else if (known) {
        element->prefix = prefixIn(*known, style);
    } else if (element->prefix.isEmpty()) {
        innerDefault = element->namespaceUri;
    }
    for (XmlElement &child : element->children)
        restyle(&child, style, innerDefault);
}

XmlElement faultElement(const OnvifReply &reply, XmlStyle style)
{
    XmlElement fault(soapEnvelope, "Fault");
    XmlElement *code = &fault.append(XmlElement(soapEnvelope, "Code"));
    for (int i = 0; i < reply.faultCodes.size(); ++i) {
        if (i > 0)
            code = &code->append(XmlElement(soapEnvelope, "Subcode"));
        const QString prefix = prefixIn(*knownPrefix(QLatin1String(i == 0 ? soapEnvelope : ter)), style);
        code->append(XmlElement(soapEnvelope, "Value", prefix + QLatin1Char(':') + reply.faultCodes.at(i)));
    }
    XmlElement text(soapEnvelope, "Text", reply.reason);
    text.attributes.append({QStringLiteral("http://www.w3.org/XML/1998/namespace"), QStringLiteral("xml"),
                            QStringLiteral("lang"), QStringLiteral("en")});
    fault.append(XmlElement(soapEnvelope, "Reason")).append(text);
    return fault;
}

} // namespace

XmlElement renamed(XmlElement element, const char *ofNamespace, const QString &name)
{
    element.namespaceUri = QLatin1String(ofNamespace);
    element.name = name;
    return element;
}

QByteArray soapDocument(const OnvifReply &reply, XmlStyle style)
{
    XmlElement envelope(soapEnvelope, "Envelope");
    XmlElement &body = envelope.append(XmlElement(soapEnvelope, "Body"));
    body.append(reply.isFault() ? faultElement(reply, style) : reply.response);
    restyle(&envelope, style, {});
    for (const Prefix &each : prefixes) {
        const bool isTer = QLatin1String(each.uri) == QLatin1String(ter); // names in faults need it
        if (isEnvelope(each) || isTer || style != XmlStyle::DefaultNamespaces)
            envelope.declarations.append({prefixIn(each, style), QLatin1String(each.uri)});
    }
    return vms_sdk::writeXml(envelope);
}

} // namespace device_fleet
