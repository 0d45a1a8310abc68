#include <vms_client_sdk/onvif/XmlElement.h>

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace vms_sdk {

namespace {

const QString &xmlNamespace()
{
    static const QString uri = QStringLiteral("http://www.w3.org/XML/1998/namespace");
    return uri;
}

template <typename Children>
auto findChild(Children &children, const char *ofNamespace, const char *called)
{
    const auto found = std::find_if(children.begin(), children.end(),
                                    [=](const XmlElement &child) { return child.is(ofNamespace, called); });
    return found == children.end() ? nullptr : &*found;
}

} // namespace

XmlElement::XmlElement(const char *ofNamespace, const char *called, const QString &text)
    : namespaceUri(QLatin1String(ofNamespace))
    , name(QLatin1String(called))
{
    if (!text.isEmpty())
        setText(text);
}

bool XmlElement::is(const char *ofNamespace, const char *called) const
{
    return name == QLatin1String(called) && namespaceUri == QLatin1String(ofNamespace);
}

const XmlElement *XmlElement::child(const char *ofNamespace, const char *called) const
{
    return findChild(children, ofNamespace, called);
}

XmlElement *XmlElement::child(const char *ofNamespace, const char *called)
{
    return findChild(children, ofNamespace, called);
}

std::vector<const XmlElement *> XmlElement::all(const char *ofNamespace, const char *called) const
{
    std::vector<const XmlElement *> found;
    for (const XmlElement &each : children)
        if (each.is(ofNamespace, called))
            found.push_back(&each);
    return found;
}

QString XmlElement::text() const
{
    QString joined;
    for (const XmlElement &each : children)
        joined += each.content;
    return joined.trimmed();
}

QString XmlElement::textOf(const char *ofNamespace, const char *called) const
{
    const XmlElement *found = child(ofNamespace, called);
    return found ? found->text() : QString();
}

QString XmlElement::attribute(const char *called) const
{
    for (const Attribute &each : attributes)
        if (each.namespaceUri.isEmpty() && each.name == QLatin1String(called))
            return each.value;
    return {};
}

bool XmlElement::hasAttribute(const char *called) const
{
    return std::any_of(attributes.begin(), attributes.end(), [called](const Attribute &each) {
        return each.namespaceUri.isEmpty() && each.name == QLatin1String(called);
    });
}

void XmlElement::setText(const QString &text)
{
    children.clear();
    XmlElement piece;
    piece.content = text;
    append(std::move(piece));
}

void XmlElement::setAttribute(const char *called, const QString &value)
{
    for (Attribute &each : attributes) {
        if (each.namespaceUri.isEmpty() && each.name == QLatin1String(called)) {
            each.value = value;
            return;
        }
    }
    attributes.append({{}, {}, QLatin1String(called), value});
}

XmlElement &XmlElement::append(XmlElement element)
{
    children.push_back(std::move(element));
    return children.back();
}

XmlElement &XmlElement::childMade(const char *ofNamespace, const char *called)
{
    XmlElement *found = child(ofNamespace, called);
    return found ? *found : append(XmlElement(ofNamespace, called));
}

namespace {

/// Builds the tree of one document without calling itself, so that no depth can exhaust the stack.
class Reader
{
public:
    explicit Reader(const QByteArray &document)
        : m_reader(document)
    {
    }

    XmlRead read();

private:
    void begin();
    void end();
    void addText();
    QString shared(const QStringRef &uri);

    QXmlStreamReader m_reader;
    std::vector<XmlElement> m_open;
    std::optional<XmlElement> m_root;
    QSet<QString> m_uris; ///< so that all names in a namespace share one text
    int m_count = 0; ///< of elements, attributes and declarations
    int m_inForce = 0; ///< declarations
    bool m_isNamespaceTooLong = false;
};

XmlRead Reader::read()
{
    while (!m_reader.atEnd()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            return {{}, QStringLiteral("it declares a document type or entities")};
        case QXmlStreamReader::StartElement:
            if (int(m_open.size()) == maxXmlDepth)
                return {{}, QStringLiteral("its elements are nested too deeply")};
            begin();
            if (m_count > maxXmlElements)
                return {{}, QStringLiteral("it has too many elements or attributes")};
            if (m_inForce > maxXmlDeclarations)
                return {{}, QStringLiteral("it declares too many namespaces")};
            if (m_isNamespaceTooLong)
                return {{}, QStringLiteral("it declares a namespace that is too long")};
            break;
        case QXmlStreamReader::EndElement:
            end();
            break;
        case QXmlStreamReader::Characters:
            addText();
            break;
        default:
            break;
        }
    }
    if (m_reader.hasError())
        return {{}, QStringLiteral("it is no XML, from byte %1 on").arg(m_reader.characterOffset())};
    return {std::move(m_root), {}, m_count};
}

QString Reader::shared(const QStringRef &uri)
{
    if (uri.isEmpty() || uri.size() > maxXmlNamespace)
        return {};
    return *m_uris.insert(uri.toString());
}

void Reader::begin()
{
    XmlElement element;
    element.namespaceUri = shared(m_reader.namespaceUri());
    element.prefix = m_reader.prefix().toString();
    element.name = m_reader.name().toString();
    const QXmlStreamNamespaceDeclarations declarations = m_reader.namespaceDeclarations();
    for (const QXmlStreamNamespaceDeclaration &each : declarations) {
        m_isNamespaceTooLong |= each.namespaceUri().size() > maxXmlNamespace;
        element.declarations.append({each.prefix().toString(), shared(each.namespaceUri())});
    }
    m_inForce += declarations.size();
    const QXmlStreamAttributes attributes = m_reader.attributes();
    m_count += 1 + declarations.size() + attributes.size();
    for (const QXmlStreamAttribute &each : attributes)
        element.attributes.append(
            {shared(each.namespaceUri()), each.prefix().toString(), each.name().toString(), each.value().toString()});
    m_open.push_back(std::move(element));
}

void Reader::end()
{
    XmlElement element = std::move(m_open.back());
    m_open.pop_back();
    m_inForce -= element.declarations.size();
    // White space between elements only sets them out.
    const bool hasElements = std::any_of(element.children.begin(), element.children.end(),
                                         [](const XmlElement &child) { return !child.isText(); });
    if (hasElements) {
        const auto isBlank = [](const XmlElement &child) {
            return child.isText() && child.content.trimmed().isEmpty();
        };
        element.children.erase(std::remove_if(element.children.begin(), element.children.end(), isBlank),
                               element.children.end());
    }
    if (m_open.empty())
        m_root = std::move(element);
    else
        m_open.back().children.push_back(std::move(element));
}

void Reader::addText()
{
    if (m_open.empty())
        return; // white space around the root
    std::vector<XmlElement> &children = m_open.back().children;
    if (children.empty() || !children.back().isText())
        children.emplace_back();
    children.back().content += m_reader.text(); // a comment or CDATA parts what is one text
}

/// At least as many as the attributes of the element with the most. Each has a "=" of its own, which may not stand
/// beyond the next "<".
int mostAttributes(const QByteArray &document)
{
    int most = 0;
    int count = 0;
    for (const char c : document) {
        if (c == '<')
            count = 0;
        else if (c == '=')
            most = qMax(most, ++count);
    }
    return most;
}

} // namespace

XmlRead readXml(const QByteArray &document)
{
    if (mostAttributes(document) > maxXmlAttributes)
        return {{}, QStringLiteral("it has an element with too many attributes")};
    return Reader(document).read();
}

namespace {

bool mayBeInPrefix(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.isSurrogate() || c == QLatin1Char('_') || c == QLatin1Char('-')
        || c == QLatin1Char('.');
}

/// The prefixes that an element and all in it use, those in values included: there they stand for types and topics.
void addPrefixes(const XmlElement &element, const QSet<QString> &known, QSet<QString> *used)
{
    const auto addFrom = [&](const QString &value) {
        const auto nextColon = [&value](int from) { return value.indexOf(QLatin1Char(':'), from); };
        for (int colon = nextColon(0); colon >= 0; colon = nextColon(colon + 1)) {
            int begin = colon;
            while (begin > 0 && mayBeInPrefix(value.at(begin - 1)))
                --begin;
            const QString prefix = value.mid(begin, colon - begin);
            if (known.contains(prefix))
                used->insert(prefix);
        }
    };
    if (element.isText())
        return addFrom(element.content);
    used->insert(element.prefix);
    for (const XmlElement::Attribute &each : element.attributes) {
        used->insert(each.prefix);
        addFrom(each.value);
    }
    for (const XmlElement &child : element.children)
        addPrefixes(child, known, used);
}

} // namespace

XmlElement detached(const std::vector<const XmlElement *> &path)
{
    QVector<XmlElement::Declaration> inForce;
    QSet<QString> known;
    for (const XmlElement *element : path) {
        for (const XmlElement::Declaration &each : element->declarations) {
            inForce.erase(std::remove_if(inForce.begin(), inForce.end(),
                                         [&each](const auto &earlier) { return earlier.prefix == each.prefix; }),
                          inForce.end());
            inForce.append(each);
            known.insert(each.prefix);
        }
    }
    XmlElement part = *path.back();
    QSet<QString> used;
    addPrefixes(part, known, &used);
    part.declarations.clear();
    for (const XmlElement::Declaration &each : qAsConst(inForce))
        if (used.contains(each.prefix) && !(each.prefix.isEmpty() && each.namespaceUri.isEmpty()))
            part.declarations.append(each);
    return part;
}

bool isXmlText(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (c.isSurrogate() || c.unicode() >= 0xfffe
                 || (c.unicode() < 0x20 && c != QLatin1Char('\t') && c != QLatin1Char('\n') && c != QLatin1Char('\r')))
            return false;
    }
    return true;
}

namespace {

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
