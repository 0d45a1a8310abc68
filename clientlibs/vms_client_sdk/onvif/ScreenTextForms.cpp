#include <vms_client_sdk/onvif/ScreenTextForms.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/onvif/KeyMap.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlPath.h>

namespace vms_sdk {

const ScreenTextKind dateText{"DateAndTime", "timeFormat", "timePos", "timeStyle", "left_top", true};
const ScreenTextKind plainText{"Plain", "channelName", "position", "nameStyle", "left_bottom", false};

namespace {

const KeyWords corners[] = {{"UpperLeft", "left_top"},
                            {"UpperRight", "right_top"},
                            {"LowerLeft", "left_bottom"},
                            {"LowerRight", "right_bottom"}};
const KeyWords dateFormats[] = {
    {"yyyy-MM-dd", "YYYY-MM-DD"}, {"MM/dd/yyyy", "MM/DD/YYYY"}, {"dd/MM/yyyy", "DD/MM/YYYY"}};
const char fullTime[] = "HH:mm:ss";
const QLatin1String freePlace("Custom");

/// Our word for a camera's, or the camera's own.
template <size_t count>
QString oursOf(const KeyWords (&words)[count], const QString &camera, bool *isOurs = nullptr)
{
    for (const KeyWords &each : words) {
        if (camera == QLatin1String(each.camera)) {
            if (isOurs)
                *isOurs = true;
            return QLatin1String(each.ours);
        }
    }
    return camera;
}

QString placeText(const QString &x, const QString &y)
{
    return QStringLiteral("%1(%2,%3)").arg(freePlace, x, y);
}

/// The coordinates of a free place.
struct Coordinates
{
    QString x, y;
};

std::optional<Coordinates> coordinatesOf(const QString &position)
{
    const QString inside = position.mid(freePlace.size() + 1).chopped(position.endsWith(QLatin1Char(')')) ? 1 : 0);
    const QStringList parts = inside.split(QLatin1Char(','));
    if (parts.size() != 2)
        return std::nullopt;
    const Coordinates found{parts.constFirst(), parts.constLast()};
    const auto isOnScreen = [](const QString &text) {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        return isNumber && number >= -1 && number <= 1; // from one edge to the other; "nan" is none of these
    };
    const bool isWhole = position == placeText(found.x, found.y);
    return isWhole && isOnScreen(found.x) && isOnScreen(found.y) ? std::optional(found) : std::nullopt;
}

QString formatText(const QString &date, const QString &time)
{
    bool isOurs = false;
    const QString ours = oursOf(dateFormats, date, &isOurs);
    if (isOurs && time == QLatin1String(fullTime))
        return ours + QLatin1String(" hh:mm:ss");
    return QString(date + QLatin1Char(' ') + time).trimmed();
}

struct Format
{
    QString date, time;
};

/// The formats that the camera offers. One that names none has to take the usual ones.
std::vector<Format> cameraFormats(const XmlElement &options)
{
    QStringList dates;
    QStringList times;
    for (const XmlElement *each : elementsAt(options, "TextOption/DateFormat"))
        dates.append(each->text());
    for (const XmlElement *each : elementsAt(options, "TextOption/TimeFormat"))
        times.append(each->text());
    if (dates.isEmpty())
        for (const KeyWords &each : dateFormats)
            dates.append(QLatin1String(each.camera));
    if (times.isEmpty())
        times.append(QLatin1String(fullTime));
    std::vector<Format> formats;
    for (const QString &date : qAsConst(dates))
        for (const QString &time : qAsConst(times))
            formats.push_back({date, time});
    return formats;
}

XmlElement &partOfText(XmlElement *osd, const char *name)
{
    XmlElement &text = osd->childMade(onvif::tt, "TextString");
    return placed(
        &text, name,
        {"Type", "DateFormat", "TimeFormat", "FontSize", "FontColor", "BackgroundColor", "PlainText", "Extension"});
}

QString setFormat(const QString &format, const XmlElement &options, XmlElement *osd)
{
    const std::vector<Format> formats = cameraFormats(options);
    for (const Format &each : formats) {
        if (formatText(each.date, each.time) != format)
            continue;
        partOfText(osd, "DateFormat").setText(each.date);
        partOfText(osd, "TimeFormat").setText(each.time);
        return {};
    }
    return notAllowed(QLatin1String(dateText.contentKey), format, listed(formatsOf(options)));
}

} // namespace

bool isOfKind(const XmlElement &osd, const ScreenTextKind &kind)
{
    return osd.textOf(onvif::tt, "Type") == QLatin1String("Text")
        && textAt(osd, "TextString/Type").value_or(QString()) == QLatin1String(kind.type);
}

QString positionOf(const XmlElement &osd)
{
    const QString type = textAt(osd, "Position/Type").value_or(QString());
    const auto x = textAt(osd, "Position/Pos/@x");
    const auto y = textAt(osd, "Position/Pos/@y");
    return type == freePlace && x && y ? placeText(*x, *y) : oursOf(corners, type);
}

QString setPosition(const ScreenTextKind &kind, const QString &position, const XmlElement &options, XmlElement *osd)
{
    const std::optional<Coordinates> free = coordinatesOf(position);
    QStringList allowed;
    for (const XmlElement *each : elementsAt(options, "PositionOption")) {
        const QString type = each->text();
        const bool isFree = type == freePlace;
        allowed.append(isFree ? placeText(QStringLiteral("x"), QStringLiteral("y")) : oursOf(corners, type));
        if (isFree ? !free : allowed.constLast() != position)
            continue;
        XmlElement &place = osd->childMade(onvif::tt, "Position");
        placed(&place, "Type", {"Type", "Pos", "Extension"}).setText(type);
        if (isFree) {
            XmlElement &pos = placed(&place, "Pos", {"Pos", "Extension"});
            pos.setAttribute("x", free->x);
            pos.setAttribute("y", free->y);
        } else {
            removeChild(&place, "Pos");
        }
        return {};
    }
    return notAllowed(QLatin1String(kind.positionKey), position, listed(allowed << QStringLiteral("hide")));
}

QStringList cornersOf(const XmlElement &options)
{
    QStringList found;
    for (const XmlElement *each : elementsAt(options, "PositionOption")) {
        bool isCorner = false;
        const QString corner = oursOf(corners, each->text(), &isCorner);
        if (isCorner)
            found.append(corner);
    }
    return found;
}

QString contentOf(const ScreenTextKind &kind, const XmlElement &osd)
{
    if (!kind.isDate)
        return textAt(osd, "TextString/PlainText").value_or(QString());
    return formatText(textAt(osd, "TextString/DateFormat").value_or(QString()),
                      textAt(osd, "TextString/TimeFormat").value_or(QString()));
}

QString setContent(const ScreenTextKind &kind, const QString &content, const XmlElement &options, XmlElement *osd)
{
    if (kind.isDate)
        return setFormat(content, options, osd);
    if (holdsControls(content) || !isXmlText(content))
        return notAllowed(QLatin1String(kind.contentKey), content,
                          QStringLiteral("neither control characters nor parts of characters"));
    partOfText(osd, "PlainText").setText(content);
    return {};
}

QStringList formatsOf(const XmlElement &options)
{
    QStringList formats;
    const std::vector<Format> all = cameraFormats(options);
    for (const Format &each : all)
        formats.append(formatText(each.date, each.time));
    return formats;
}

namespace {

/// Takes out what other keys say; what stays in it is the style.
void clearContent(XmlElement *osd)
{
    osd->setAttribute("token", {});
    const auto clear = [](XmlElement *parent, std::initializer_list<const char *> names) {
        for (const char *name : names)
            removeChild(parent, name);
    };
    if (XmlElement *text = osd->child(onvif::tt, "TextString"))
        clear(text, {"DateFormat", "TimeFormat", "PlainText"});
    if (XmlElement *place = osd->child(onvif::tt, "Position"))
        clear(place, {"Type", "Pos"});
    if (XmlElement *source = osd->child(onvif::tt, "VideoSourceConfigurationToken"))
        source->children.clear();
}

} // namespace

QString styleOf(const XmlElement &osd)
{
    XmlElement style = osd;
    clearContent(&style);
    const XmlElement *text = style.child(onvif::tt, "TextString");
    const XmlElement *place = style.child(onvif::tt, "Position");
    const bool isPlain = style.children.size() <= 4 && style.attributes.size() <= 1 && text
                      && text->attributes.isEmpty() && text->children.size() <= 1 && place
                      && place->attributes.isEmpty() && place->children.empty();
    return isPlain ? QString() : QString::fromUtf8(writeXml(style));
}

std::optional<XmlElement> madeText(const ScreenTextKind &kind, const QString &style, const QString &sourceConfiguration,
                                   const char *ofNamespace)
{
    if (!style.isEmpty()) {
        XmlRead former = readXml(style.toUtf8());
        if (!former.root || former.root->name != QLatin1String("OSD") || !isOfKind(*former.root, kind))
            return std::nullopt;
        clearContent(&*former.root);
        former.root->childMade(onvif::tt, "VideoSourceConfigurationToken").setText(sourceConfiguration);
        former.root->namespaceUri = QLatin1String(ofNamespace);
        return former.root;
    }
    XmlElement osd(ofNamespace, "OSD");
    osd.setAttribute("token", {}); // the camera gives it one
    osd.append(XmlElement(onvif::tt, "VideoSourceConfigurationToken", sourceConfiguration));
    osd.append(XmlElement(onvif::tt, "Type", QStringLiteral("Text")));
    osd.append(XmlElement(onvif::tt, "Position"));
    osd.append(XmlElement(onvif::tt, "TextString")).append(XmlElement(onvif::tt, "Type", QLatin1String(kind.type)));
    return osd;
}

} // namespace vms_sdk
