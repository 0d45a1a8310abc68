#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>
#include <vector>

QT_BEGIN_NAMESPACE
class QXmlStreamWriter;
QT_END_NAMESPACE

namespace vms_sdk {

/// An element of an XML text, or a piece of text between elements, with all that is in it. Plain data. What was read is
/// written again as it came: prefixes, declarations of namespaces, attributes and elements that nobody here knows, and
/// texts; comments and processing instructions are left out.
class XmlElement
{
public:
    struct Attribute
    {
        QString namespaceUri; ///< empty for most attributes
        QString prefix;
        QString name;
        QString value;
    };
    struct Declaration
    {
        QString prefix; ///< empty: of elements without a prefix
        QString namespaceUri;
    };

    XmlElement() = default;
    /// Prefixes are chosen when it is written.
    XmlElement(const char *ofNamespace, const char *called, const QString &text = {});

    bool isText() const { return name.isEmpty(); }
    bool is(const char *ofNamespace, const char *called) const;

    // Null and empty where there is none. Of several the first.
    const XmlElement *child(const char *ofNamespace, const char *called) const;
    XmlElement *child(const char *ofNamespace, const char *called);
    std::vector<const XmlElement *> all(const char *ofNamespace, const char *called) const;
    /// All pieces of text directly in it, trimmed.
    QString text() const;
    /// The text of a child, trimmed.
    QString textOf(const char *ofNamespace, const char *called) const;
    /// Of an attribute without a namespace.
    QString attribute(const char *called) const;
    bool hasAttribute(const char *called) const;

    /// Replaces all that is in it.
    void setText(const QString &text);
    void setAttribute(const char *called, const QString &value);
    XmlElement &append(XmlElement element); ///< @return the one in it
    /// The child, made at the end when there is none yet.
    XmlElement &childMade(const char *ofNamespace, const char *called);

    QString namespaceUri;
    QString prefix;
    QString name; ///< local; empty for a piece of text
    QString content; ///< of a piece of text
    QVector<Declaration> declarations; ///< made on this element
    QVector<Attribute> attributes;
    std::vector<XmlElement> children;
};

/// What came of reading an XML text.
struct XmlRead
{
    std::optional<XmlElement> root;
    QString error; ///< why there is none, for the log; a printable line without the text's own words
    int count = 0; ///< of elements, attributes and declarations
};

/// How deeply elements may be nested: answers of cameras stay under 20.
inline constexpr int maxXmlDepth = 64;
/// Attributes and declarations count as elements: they take as long to read, and as much memory. The largest answers,
/// the profiles of a recorder with 64 channels, have about 10,000.
inline constexpr int maxXmlElements = 50'000;
/// Of one element. Qt compares each with all others: ten thousands of them would hold up all devices for minutes.
inline constexpr int maxXmlAttributes = 300;
/// Declarations of namespaces in force at one place; Qt searches them all for each name. Devices declare up to 100.
inline constexpr int maxXmlDeclarations = 300;
/// Characters of a namespace: each element in it may come to have a copy. Those of the standard have up to 90.
inline constexpr int maxXmlNamespace = 500;

/// Reads a whole document. Document types and entities of its own are refused, and what is beyond the limits above.
XmlRead readXml(const QByteArray &document);

/// A part of a document with all declarations that are in force where it stands, so that it keeps its meaning, names in
/// its values included, when it is written elsewhere.
/// @param path from the root to the part: each a child of the one before
XmlElement detached(const std::vector<const XmlElement *> &path);
/// The same of a document that is of no further use. @param part the end of the path; it is moved out of the document
XmlElement detached(const std::vector<const XmlElement *> &path, XmlElement *part);

/// Whether XML can carry the text: it has no control characters and no half characters.
bool isXmlText(const QString &text);

/// Writes a document, in UTF-8. Where an element's own prefix does not stand for its namespace, a declaration is made.
/// All texts in it must be isXmlText().
QByteArray writeXml(const XmlElement &root);

} // namespace vms_sdk
