#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlElement.h>

#include <QXmlStreamWriter>

#include <algorithm>

namespace vms_sdk {

namespace {

const QString &xmlNamespace()
{
    static const QString uri = QStringLiteral("http://www.w3.org/XML/1998/namespace");
    return uri;
}

class Writer
{
public:
    explicit Writer(QByteArray *document)
        : m_writer(document)
    {
    }

    void write(const XmlElement &root);

private:
    void writeElement(const XmlElement &element);
    void writeText(const QString &text);
    QString qualified(const QString &uri, const QString &prefix, const QString &name, bool isAttribute);
    QString prefixFor(const QString &uri, const QString &prefix, bool isAttribute);
    const QString *inForce(const QString &prefix) const;

    QXmlStreamWriter m_writer;
    QVector<XmlElement::Declaration> m_inForce; ///< the innermost last
};

/// The namespace that the prefix stands for; null when it stands for none.
const QString *Writer::inForce(const QString &prefix) const
{
    const auto found = std::find_if(m_inForce.rbegin(), m_inForce.rend(),
                                    [&prefix](const auto &each) { return each.prefix == prefix; });
    return found == m_inForce.rend() ? nullptr : &found->namespaceUri;
}

QString preferredPrefix(const QString &uri)
{
    struct Known
    {
        const char *prefix, *uri;
    };
    static constexpr Known all[]{{"s", onvif::soapEnvelope}, {"tt", onvif::tt},     {"tds", onvif::tds},
                                 {"trt", onvif::trt},        {"tr2", onvif::tr2},   {"timg", onvif::timg},
                                 {"ter", onvif::ter},        {"wsse", onvif::wsse}, {"wsu", onvif::wsu}};
    for (const Known &known : all)
        if (uri == QLatin1String(known.uri))
            return QLatin1String(known.prefix);
    return QStringLiteral("n");
}

/// A prefix that stands for the namespace; one that is declared for it when there is none yet.
QString Writer::prefixFor(const QString &uri, const QString &prefix, bool isAttribute)
{
    const QString *own = inForce(prefix);
    if ((own ? *own : QString()) == uri && !(isAttribute && prefix.isEmpty() && !uri.isEmpty()))
        return prefix;
    if (uri.isEmpty()) { // only elements come here: attributes without a prefix are in no namespace
        m_inForce.append(XmlElement::Declaration());
        return {};
    }
    for (const XmlElement::Declaration &each : qAsConst(m_inForce))
        if (each.namespaceUri == uri && !each.prefix.isEmpty() && *inForce(each.prefix) == uri)
            return each.prefix;
    QString made = preferredPrefix(uri);
    for (int i = 1; inForce(made); ++i)
        made = preferredPrefix(uri) + QString::number(i);
    m_inForce.append({made, uri});
    return made;
}

QString Writer::qualified(const QString &uri, const QString &prefix, const QString &name, bool isAttribute)
{
    if (uri == xmlNamespace())
        return QStringLiteral("xml:") + name;
    if (isAttribute && uri.isEmpty())
        return name;
    const QString chosen = prefixFor(uri, prefix, isAttribute);
    return chosen.isEmpty() ? name : chosen + QLatin1Char(':') + name;
}

void Writer::writeText(const QString &text)
{
    const QStringList pieces = text.split(QLatin1Char('\r'));
    for (int i = 0; i < pieces.size(); ++i) {
        if (i > 0)
            m_writer.writeEntityReference(QStringLiteral("#13")); // as it is, a reader would take it for a line's end
        m_writer.writeCharacters(pieces.at(i));
    }
}

void Writer::writeElement(const XmlElement &element)
{
    if (element.isText()) {
        writeText(element.content);
        return;
    }
    const int outer = m_inForce.size();
    m_inForce += element.declarations;
    const QString tag = qualified(element.namespaceUri, element.prefix, element.name, false);
    QVector<QPair<QString, QString>> attributes;
    for (const XmlElement::Attribute &each : element.attributes)
        attributes.append({qualified(each.namespaceUri, each.prefix, each.name, true), each.value});
    m_writer.writeStartElement(tag);
    for (int i = outer; i < m_inForce.size(); ++i) {
        const XmlElement::Declaration &each = m_inForce.at(i);
        m_writer.writeAttribute(each.prefix.isEmpty() ? QStringLiteral("xmlns")
                                                      : QStringLiteral("xmlns:") + each.prefix,
                                each.namespaceUri);
    }
    for (const auto &[name, value] : qAsConst(attributes))
        m_writer.writeAttribute(name, value);
    for (const XmlElement &child : element.children)
        writeElement(child);
    m_writer.writeEndElement();
    m_inForce.resize(outer);
}

void Writer::write(const XmlElement &root)
{
    m_writer.writeStartDocument();
    writeElement(root);
    m_writer.writeEndDocument();
}

} // namespace

QByteArray writeXml(const XmlElement &root)
{
    QByteArray document;
    Writer(&document).write(root);
    return document;
}

} // namespace vms_sdk
