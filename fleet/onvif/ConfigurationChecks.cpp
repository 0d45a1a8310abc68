#include "fleet/onvif/ConfigurationChecks.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QVector>

#include <algorithm>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

std::vector<const XmlElement *> elementsAt(const XmlElement &element, const QStringList &path)
{
    std::vector<const XmlElement *> found{&element};
    for (const QString &name : path) {
        std::vector<const XmlElement *> inner;
        for (const XmlElement *each : found) {
            const auto children = each->all(tt, qPrintable(name));
            inner.insert(inner.end(), children.begin(), children.end());
        }
        found = inner;
    }
    return found;
}

enum class Rule
{
    OneOf, ///< of the texts in the options
    Range, ///< between Min and Max in the options
    Words, ///< one of the words of a list
    WordRange, ///< between the two words of a list
    Size, ///< Width and Height as a pair in the options
    Is ///< the text itself
};

struct Check
{
    const char *kind;
    const char *value;
    Rule rule;
    const char *options;
    bool isRequired = true;
};

const QVector<Check> &checks()
{
    static const QVector<Check> all{
        {"VideoSourceConfiguration", "SourceToken", Rule::OneOf, "VideoSourceTokensAvailable"},
        {"VideoSourceConfiguration", "Bounds/@x", Rule::Range, "BoundsRange/XRange"},
        {"VideoSourceConfiguration", "Bounds/@y", Rule::Range, "BoundsRange/YRange"},
        {"VideoSourceConfiguration", "Bounds/@width", Rule::Range, "BoundsRange/WidthRange"},
        {"VideoSourceConfiguration", "Bounds/@height", Rule::Range, "BoundsRange/HeightRange"},
        {"VideoSourceConfiguration", "Extension/Rotate/Mode", Rule::OneOf, "Extension/Rotate/Mode", false},
        {"VideoSourceConfiguration", "Extension/Rotate/Degree", Rule::OneOf, "Extension/Rotate/DegreeList/Items",
         false},

        {"VideoEncoder2", "Resolution", Rule::Size, "ResolutionsAvailable"},
        {"VideoEncoder2", "Quality", Rule::Range, "QualityRange"},
        {"VideoEncoder2", "RateControl/FrameRateLimit", Rule::Words, "@FrameRatesSupported"},
        {"VideoEncoder2", "RateControl/BitrateLimit", Rule::Range, "BitrateRange"},
        {"VideoEncoder2", "RateControl/@ConstantBitRate", Rule::Words, "@ConstantBitRateSupported", false},
        {"VideoEncoder2", "@GovLength", Rule::WordRange, "@GovLengthRange", false},
        {"VideoEncoder2", "@Profile", Rule::Words, "@ProfilesSupported", false},

        {"VideoEncoder1", "Encoding", Rule::Is, "H264"},
        {"VideoEncoder1", "Resolution", Rule::Size, "H264/ResolutionsAvailable"},
        {"VideoEncoder1", "Quality", Rule::Range, "QualityRange"},
        {"VideoEncoder1", "RateControl/FrameRateLimit", Rule::Range, "H264/FrameRateRange"},
        {"VideoEncoder1", "RateControl/EncodingInterval", Rule::Range, "H264/EncodingIntervalRange"},
        {"VideoEncoder1", "RateControl/BitrateLimit", Rule::Range, "Extension/H264/BitrateRange"},
        {"VideoEncoder1", "H264/GovLength", Rule::Range, "H264/GovLengthRange"},
        {"VideoEncoder1", "H264/H264Profile", Rule::OneOf, "H264/H264ProfilesSupported"},
        {"VideoEncoder1", "SessionTimeout", Rule::Is, "PT60S"},

        {"AudioEncoder", "Bitrate", Rule::OneOf, "BitrateList/Items"},
        {"AudioEncoder", "SampleRate", Rule::OneOf, "SampleRateList/Items"},

        {"AudioOutputConfiguration", "OutputToken", Rule::OneOf, "OutputTokensAvailable"},
        {"AudioOutputConfiguration", "OutputLevel", Rule::Range, "OutputLevelRange"},

        {"OSD", "Type", Rule::OneOf, "Type"},
        {"OSD", "Position/Type", Rule::OneOf, "PositionOption"},
        {"OSD", "TextString/Type", Rule::OneOf, "TextOption/Type"},
        {"OSD", "TextString/DateFormat", Rule::OneOf, "TextOption/DateFormat", false},
        {"OSD", "TextString/TimeFormat", Rule::OneOf, "TextOption/TimeFormat", false},
        {"OSD", "TextString/FontSize", Rule::Range, "TextOption/FontSizeRange", false},

        {"ImagingSettings", "BacklightCompensation/Mode", Rule::OneOf, "BacklightCompensation/Mode", false},
        {"ImagingSettings", "Brightness", Rule::Range, "Brightness", false},
        {"ImagingSettings", "ColorSaturation", Rule::Range, "ColorSaturation", false},
        {"ImagingSettings", "Contrast", Rule::Range, "Contrast", false},
        {"ImagingSettings", "IrCutFilter", Rule::OneOf, "IrCutFilterModes", false},
        {"ImagingSettings", "Sharpness", Rule::Range, "Sharpness", false},
        {"ImagingSettings", "WideDynamicRange/Mode", Rule::OneOf, "WideDynamicRange/Mode", false}};
    return all;
}

/// 25 and 25.0 are the same.
bool isSame(const QString &a, const QString &b)
{
    bool isNumber = false, isOtherNumber = false;
    const double number = a.toDouble(&isNumber), other = b.toDouble(&isOtherNumber);
    return isNumber && isOtherNumber ? number == other : a == b;
}

bool isOneOf(const QString &value, const QStringList &allowed)
{
    return std::any_of(allowed.begin(), allowed.end(), [&](const QString &each) { return isSame(value, each); });
}

bool isWithin(const QString &value, const QString &min, const QString &max)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && !min.isEmpty() && number >= min.toDouble() && number <= max.toDouble();
}

bool isAllowed(const QString &value, const Check &check, const XmlElement &options)
{
    const QString path = QLatin1String(check.options);
    switch (check.rule) {
    case Rule::OneOf:
        return isOneOf(value, textsAt(options, path));
    case Rule::Range:
        return isWithin(value, textsAt(options, path + QStringLiteral("/Min")).value(0),
                        textsAt(options, path + QStringLiteral("/Max")).value(0));
    case Rule::Words: {
        const QStringList words = textsAt(options, path).value(0).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        // What a camera cannot do it may be told not to do.
        return isOneOf(value, words) || value == QLatin1String("false");
    }
    case Rule::WordRange: {
        const QStringList words = textsAt(options, path).value(0).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        return isWithin(value, words.value(0), words.value(1));
    }
    case Rule::Size: {
        const auto sizes = elementsAt(options, path.split(QLatin1Char('/')));
        return std::any_of(sizes.begin(), sizes.end(), [&](const XmlElement *size) {
            return value == size->textOf(tt, "Width") + QLatin1Char('x') + size->textOf(tt, "Height");
        });
    }
    case Rule::Is:
        return value == path;
    }
    return false;
}

QString valueToCheck(const XmlElement &sent, const Check &check)
{
    const QString path = QLatin1String(check.value);
    if (check.rule != Rule::Size)
        return textsAt(sent, path).value(0);
    return textsAt(sent, path + QStringLiteral("/Width")).value(0) + QLatin1Char('x')
         + textsAt(sent, path + QStringLiteral("/Height")).value(0);
}

/// The options for the encoding; null when there are none for it.
const XmlElement *optionsFor(const XmlElement &sent, const std::vector<XmlElement> &options)
{
    const QString encoding = sent.textOf(tt, "Encoding");
    for (const XmlElement &each : options)
        if (!each.child(tt, "Encoding") || each.textOf(tt, "Encoding") == encoding)
            return &each;
    return nullptr;
}

QString whyNoText(const XmlElement &osd)
{
    const QString type = textsAt(osd, QStringLiteral("TextString/Type")).value(0);
    if (type == QLatin1String("Plain") && textsAt(osd, QStringLiteral("TextString/PlainText")).isEmpty())
        return QStringLiteral("TextString/PlainText is missing");
    const bool isCustom = textsAt(osd, QStringLiteral("Position/Type")).value(0) == QLatin1String("Custom");
    if (isCustom && textsAt(osd, QStringLiteral("Position/Pos/@x")).isEmpty())
        return QStringLiteral("Position/Pos is missing");
    return {};
}

} // namespace

QStringList textsAt(const XmlElement &element, const QString &path)
{
    QStringList names = path.split(QLatin1Char('/'));
    const QString attribute = names.constLast().startsWith(QLatin1Char('@')) ? names.takeLast().mid(1) : QString();
    QStringList texts;
    const auto found = elementsAt(element, names);
    for (const XmlElement *each : found) {
        if (attribute.isEmpty())
            texts.append(each->text());
        else if (each->hasAttribute(qPrintable(attribute)))
            texts.append(each->attribute(qPrintable(attribute)));
    }
    return texts;
}

QString whyNotAllowed(const QString &kind, bool isVer20, const XmlElement &sent, const std::vector<XmlElement> &options)
{
    QString table = kind;
    if (kind == QLatin1String(videoEncoderKind))
        table = isVer20 ? QStringLiteral("VideoEncoder2") : QStringLiteral("VideoEncoder1");
    else if (kind == QLatin1String(audioEncoderKind))
        table = QStringLiteral("AudioEncoder");
    const XmlElement *allowed = optionsFor(sent, options);
    if (!allowed)
        return QStringLiteral("Encoding \"%1\" is not supported").arg(sent.textOf(tt, "Encoding"));
    for (const Check &check : checks()) {
        if (table != QLatin1String(check.kind))
            continue;
        const QString value = valueToCheck(sent, check);
        const bool isThere = !value.isEmpty() && value != QLatin1String("x");
        if (!isThere && check.isRequired)
            return QStringLiteral("%1 is missing").arg(QLatin1String(check.value));
        if (isThere && !isAllowed(value, check, *allowed))
            return QStringLiteral("%1 \"%2\" is out of range").arg(QLatin1String(check.value), value);
    }
    return kind == QLatin1String(osdKind) ? whyNoText(sent) : QString();
}

} // namespace device_fleet
