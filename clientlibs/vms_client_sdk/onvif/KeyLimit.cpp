#include <vms_client_sdk/onvif/KeyLimit.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlPath.h>

#include <QRegularExpression>

#include <algorithm>

namespace vms_sdk {

namespace {

constexpr int maxListed = 8; // the message goes to the journal and into a table cell

std::optional<KeyLimit> rangeOf(const QString &min, const QString &max)
{
    bool isMin = false;
    bool isMax = false;
    KeyLimit limit;
    limit.isRange = true;
    limit.min = min.toDouble(&isMin);
    limit.max = max.toDouble(&isMax);
    return isMin && isMax ? std::optional(limit) : std::nullopt;
}

std::optional<KeyLimit> limitOfAttribute(const XmlElement &scope, const QByteArray &path)
{
    const std::optional<QString> text = textAt(scope, path);
    if (!text)
        return std::nullopt;
    KeyLimit limit;
    limit.words = text->split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    if (path.endsWith("Range"))
        return limit.words.size() == 2 ? rangeOf(limit.words.constFirst(), limit.words.constLast()) : std::nullopt;
    return limit;
}

std::optional<KeyLimit> limitOfElements(const XmlElement &scope, const QByteArray &path)
{
    const std::vector<const XmlElement *> elements = elementsAt(scope, path);
    if (elements.empty())
        return std::nullopt;
    if (elements.front()->child(onvif::tt, "Min"))
        return rangeOf(elements.front()->textOf(onvif::tt, "Min"), elements.front()->textOf(onvif::tt, "Max"));
    KeyLimit limit;
    for (const XmlElement *each : elements)
        limit.words.append(each->text());
    return limit;
}

void addOptions(const XmlElement &options, const QString &encoding, KeyOptions *found)
{
    if (options.child(onvif::tt, "Encoding")) {
        found->encodings.append(options.textOf(onvif::tt, "Encoding"));
        if (found->encodings.constLast() == encoding)
            found->scopes.push_back(&options);
        return;
    }
    for (const XmlElement *each : options.all(onvif::tt, "Options"))
        addOptions(*each, encoding, found);
    const XmlElement *extension = options.child(onvif::tt, "Extension");
    for (const char *name : {"JPEG", "MPEG4", "H264"}) {
        const XmlElement *const places[] = {extension ? extension->child(onvif::tt, name) : nullptr,
                                            options.child(onvif::tt, name)};
        if (places[0] || places[1])
            found->encodings.append(QLatin1String(name));
        for (const XmlElement *place : places)
            if (place && encoding == QLatin1String(name))
                found->scopes.push_back(place);
    }
    found->scopes.push_back(&options);
}

} // namespace

bool KeyLimit::allows(double number) const
{
    if (isRange)
        return number >= min && number <= max;
    return std::any_of(words.begin(), words.end(), [number](const QString &word) {
        bool isNumber = false;
        return word.toDouble(&isNumber) == number && isNumber;
    });
}

QString KeyLimit::text() const
{
    constexpr int digits = 10;
    return isRange ? QStringLiteral("%1 to %2").arg(min, 0, 'g', digits).arg(max, 0, 'g', digits) : listed(words);
}

QString listed(const QStringList &words)
{
    if (words.isEmpty())
        return QStringLiteral("none");
    QString text = QStringList(words.mid(0, maxListed)).join(QLatin1String(", "));
    if (words.size() > maxListed)
        text += QStringLiteral(", and %1 more").arg(words.size() - maxListed);
    return escaped(text);
}

std::optional<KeyLimit> KeyOptions::limitAt(const char *paths) const
{
    if (!*paths)
        return std::nullopt;
    const QByteArrayList alternatives = QByteArray(paths).split('|');
    for (const QByteArray &path : alternatives) {
        for (const XmlElement *scope : scopes) {
            auto limit = path.contains('@') ? limitOfAttribute(*scope, path) : limitOfElements(*scope, path);
            if (limit)
                return limit;
        }
    }
    return std::nullopt;
}

KeyOptions optionsFor(const std::vector<const XmlElement *> &options, const QString &encoding)
{
    KeyOptions found;
    for (const XmlElement *each : options)
        addOptions(*each, encoding, &found);
    return found;
}

} // namespace vms_sdk
