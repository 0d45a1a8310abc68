#include <vms_client_sdk/onvif/XmlElement.h>

#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

namespace vms_sdk {

namespace {

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
    QString shared(const QStringRef &text);
    QString sharedUri(const QStringRef &uri);

    QXmlStreamReader m_reader;
    std::vector<XmlElement> m_open;
    std::optional<XmlElement> m_root;
    QSet<QString> m_texts; ///< names and namespaces, of which a document repeats a few: each is kept once
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

QString Reader::shared(const QStringRef &text)
{
    if (text.isEmpty())
        return {};
    const auto known = m_texts.constFind(QString::fromRawData(text.unicode(), text.size()));
    return known != m_texts.constEnd() ? *known : *m_texts.insert(text.toString());
}

QString Reader::sharedUri(const QStringRef &uri)
{
    return uri.size() > maxXmlNamespace ? QString() : shared(uri);
}

void Reader::begin()
{
    XmlElement element;
    element.namespaceUri = sharedUri(m_reader.namespaceUri());
    element.prefix = shared(m_reader.prefix());
    element.name = shared(m_reader.name());
    const QXmlStreamNamespaceDeclarations declarations = m_reader.namespaceDeclarations();
    for (const QXmlStreamNamespaceDeclaration &each : declarations) {
        m_isNamespaceTooLong |= each.namespaceUri().size() > maxXmlNamespace;
        element.declarations.append({shared(each.prefix()), sharedUri(each.namespaceUri())});
    }
    m_inForce += declarations.size();
    const QXmlStreamAttributes attributes = m_reader.attributes();
    m_count += 1 + declarations.size() + attributes.size();
    for (const QXmlStreamAttribute &each : attributes)
        element.attributes.append(
            {sharedUri(each.namespaceUri()), shared(each.prefix()), shared(each.name()), each.value().toString()});
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

namespace {

/// Those that are in force at the end of the path, as far as what is there uses them.
QVector<XmlElement::Declaration> declarationsFor(const std::vector<const XmlElement *> &path)
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
    QSet<QString> used;
    addPrefixes(*path.back(), known, &used);
    QVector<XmlElement::Declaration> needed;
    for (const XmlElement::Declaration &each : qAsConst(inForce))
        if (used.contains(each.prefix) && !(each.prefix.isEmpty() && each.namespaceUri.isEmpty()))
            needed.append(each);
    return needed;
}

} // namespace

XmlElement detached(const std::vector<const XmlElement *> &path)
{
    XmlElement part = *path.back();
    part.declarations = declarationsFor(path);
    return part;
}

XmlElement detached(const std::vector<const XmlElement *> &path, XmlElement *part)
{
    const QVector<XmlElement::Declaration> declarations = declarationsFor(path);
    part->declarations = declarations;
    return std::move(*part);
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

} // namespace vms_sdk
