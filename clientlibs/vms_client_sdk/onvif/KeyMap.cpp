#include <vms_client_sdk/onvif/KeyMap.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/Rotation.h>
#include <vms_client_sdk/onvif/XmlPath.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vms_sdk {

namespace {

constexpr double wholeShare = 100;
constexpr double hertzInKiloHertz = 1000;
const QLatin1String constantRate("cbr");
const QLatin1String variableRate("vbr");

QByteArray pathOf(const KeyRow &row, const XmlElement &configuration)
{
    const QByteArray encoding = configuration.textOf(onvif::tt, "Encoding").toLatin1();
    const QByteArrayList alternatives = QByteArray(row.path).replace('$', encoding).split('|');
    for (const QByteArray &path : alternatives)
        if (textAt(configuration, path))
            return path;
    return alternatives.constFirst();
}

bool isWhole(double number)
{
    return std::floor(number) == number;
}

QString numberText(double number)
{
    constexpr int digits = 10; // more than a camera's float has
    return QString::number(number, 'g', digits);
}

bool isTrue(const QString &text)
{
    return text == QLatin1String("true") || text == QLatin1String("1");
}

/// Whether the options say that the bit rate can be held constant; none: they do not say.
std::optional<bool> constantRateKnown(const KeyRow &row, const KeyOptions &options)
{
    const auto limit = options.limitAt(row.limits);
    if (!limit || limit->words.isEmpty())
        return std::nullopt;
    return isTrue(limit->words.constFirst());
}

/// The range of a share; none when it has no width, or one that no number of a camera's can have.
std::optional<KeyLimit> widthOf(const KeyRow &row, const KeyOptions &options)
{
    const auto limit = options.limitAt(row.limits);
    const double width = limit && limit->isRange ? limit->max - limit->min : 0;
    return width > 0 && width <= double(std::numeric_limits<float>::max()) ? limit : std::nullopt;
}

double shareOf(double number, const KeyLimit &range)
{
    return qBound(0.0, std::round((number - range.min) / (range.max - range.min) * wholeShare), wholeShare);
}

QJsonValue oursOf(const KeyRow &row, const QString &word)
{
    for (const KeyWords *each = row.words; each && each->camera; ++each) {
        if (word != QLatin1String(each->camera))
            continue;
        const QString ours = QLatin1String(each->ours);
        return row.form == KeyForm::Flag ? QJsonValue(ours.toInt()) : QJsonValue(ours);
    }
    const bool hasOwnWord = row.form != KeyForm::Flag && !word.isEmpty();
    return hasOwnWord ? QJsonValue(word.toLower()) : QJsonValue(QJsonValue::Undefined);
}

QJsonValue numberOf(const KeyRow &row, const QString &text, const KeyOptions &options)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number))
        return QJsonValue::Undefined;
    if (row.form == KeyForm::KiloHertz)
        return number * hertzInKiloHertz;
    if (row.form == KeyForm::Number)
        return number;
    const auto range = widthOf(row, options);
    return range ? QJsonValue(shareOf(number, *range)) : QJsonValue(QJsonValue::Undefined);
}

/// The camera's words among which one is chosen.
QStringList wordsOf(const KeyRow &row, const KeyOptions &options)
{
    if (row.form == KeyForm::Encoding)
        return options.encodings;
    if (row.form == KeyForm::Word)
        return options.limitAt(row.limits).value_or(KeyLimit()).words;
    QStringList words;
    for (const KeyWords *each = row.words; each && each->camera; ++each)
        words.append(QLatin1String(each->camera));
    return words;
}

QString setWord(const KeyRow &row, const QJsonValue &wanted, const KeyOptions &options, XmlElement *configuration)
{
    const QStringList words = wordsOf(row, options);
    QStringList allowed;
    for (const QString &word : words) {
        const QJsonValue ours = oursOf(row, word);
        if (ours == wanted) {
            setTextAt(configuration, pathOf(row, *configuration), word);
            return {};
        }
        allowed.append(ours.toVariant().toString());
    }
    allowed.removeDuplicates();
    return notAllowed(QLatin1String(row.key), wanted, listed(allowed));
}

QString setConstantRate(const KeyRow &row, const QJsonValue &wanted, const KeyOptions &options,
                        XmlElement *configuration)
{
    const bool isConstant = wanted == constantRate;
    if (!isConstant && wanted != variableRate)
        return notAllowed(QLatin1String(row.key), wanted, listed({constantRate, variableRate}));
    if (isConstant && !constantRateKnown(row, options).value_or(true))
        return notAllowed(QLatin1String(row.key), wanted, variableRate);
    setTextAt(configuration, pathOf(row, *configuration),
              isConstant ? QStringLiteral("true") : QStringLiteral("false"));
    return {};
}

QString setShare(const KeyRow &row, const QJsonValue &wanted, const KeyOptions &options, XmlElement *configuration)
{
    const double share = wanted.toDouble(-1);
    const auto range = widthOf(row, options);
    if (!range || !isWhole(share) || share < 0 || share > wholeShare)
        return notAllowed(QLatin1String(row.key), wanted, QStringLiteral("0 to 100"));
    const double exact = range->min + share / wholeShare * (range->max - range->min);
    // The shortest text that is read back as the same share.
    constexpr int mostDecimals = 6; // a float has no more
    const int last = row.form == KeyForm::WholeShare ? 0 : mostDecimals;
    QString text;
    for (int decimals = 0; decimals <= last; ++decimals) {
        text = QString::number(exact, 'f', decimals);
        const double rounded = text.toDouble();
        if (rounded >= range->min && rounded <= range->max && shareOf(rounded, *range) == share)
            break;
    }
    setTextAt(configuration, pathOf(row, *configuration), text);
    return {};
}

QString setNumber(const KeyRow &row, const QJsonValue &wanted, const KeyOptions &options, XmlElement *configuration)
{
    const bool isKiloHertz = row.form == KeyForm::KiloHertz;
    const double number = wanted.toDouble(-1) / (isKiloHertz ? hertzInKiloHertz : 1);
    auto limit = options.limitAt(row.limits);
    const bool isListed = limit && !limit->isRange && limit->allows(number);
    const bool isInt =
        isWhole(number) && number >= 0 && number <= std::numeric_limits<int>::max(); // as the schema has it
    if (wanted.isDouble() && (isListed || (isInt && (!limit || limit->allows(number))))) {
        setTextAt(configuration, pathOf(row, *configuration), numberText(number));
        return {};
    }
    if (limit && isKiloHertz)
        for (QString &word : limit->words)
            word = numberText(word.toDouble() * hertzInKiloHertz);
    return notAllowed(QLatin1String(row.key), wanted, limit ? limit->text() : QStringLiteral("whole numbers"));
}

} // namespace

QString notAllowed(const QString &key, const QJsonValue &wanted, const QString &allowed)
{
    constexpr int longest = 80; // of a value that is shown
    QString value = QString::fromUtf8(QJsonDocument(QJsonArray{wanted}).toJson(QJsonDocument::Compact));
    value = value.mid(1, value.size() - 2);
    if (value.size() > longest)
        value = value.left(longest) + QChar(0x2026);
    return QStringLiteral("%1 %2: the device allows %3").arg(escaped(key), escaped(value), allowed);
}

QJsonValue valueOf(const KeyRow &row, const XmlElement &configuration, const KeyOptions &options)
{
    if (row.form == KeyForm::Rotation)
        return rotationOf(configuration, options);
    const QByteArray path = pathOf(row, configuration);
    const std::optional<QString> text = textAt(configuration, path);
    if (row.form == KeyForm::ConstantRate) {
        const bool hasPlace = !elementsAt(configuration, path.left(path.lastIndexOf('/'))).empty();
        if (!text && !(hasPlace && constantRateKnown(row, options).value_or(false)))
            return QJsonValue::Undefined;
        return QString(isTrue(text.value_or(QString())) ? constantRate : variableRate);
    }
    if (!text)
        return QJsonValue::Undefined;
    switch (row.form) {
    case KeyForm::Word:
    case KeyForm::Encoding:
    case KeyForm::Flag:
        return oursOf(row, *text);
    default:
        return numberOf(row, *text, options);
    }
}

QString setValue(const KeyRow &row, const QJsonValue &wanted, const KeyOptions &options, XmlElement *configuration)
{
    switch (row.form) {
    case KeyForm::Rotation:
        return setRotation(QLatin1String(row.key), wanted, options, configuration);
    case KeyForm::ConstantRate:
        return setConstantRate(row, wanted, options, configuration);
    case KeyForm::Share:
    case KeyForm::WholeShare:
        return setShare(row, wanted, options, configuration);
    case KeyForm::Number:
    case KeyForm::KiloHertz:
        return setNumber(row, wanted, options, configuration);
    default:
        return setWord(row, wanted, options, configuration);
    }
}

void fitValue(const KeyRow &row, const KeyOptions &options, XmlElement *configuration)
{
    const QByteArray path = pathOf(row, *configuration);
    const std::optional<QString> text = textAt(*configuration, path);
    const auto limit = options.limitAt(row.limits);
    if (!text || !limit)
        return;
    if (limit->isRange) {
        const double number = text->toDouble();
        const bool isEmpty = !(limit->max >= limit->min); // or one of its ends is no number
        if (!isEmpty && !limit->allows(number))
            setTextAt(configuration, path, numberText(number < limit->min ? limit->min : limit->max));
    } else if (!limit->words.isEmpty() && !limit->words.contains(*text)) {
        const QString usual = QStringLiteral("Main"); // of the profiles of a video encoding
        setTextAt(configuration, path, limit->words.contains(usual) ? usual : limit->words.constFirst());
    }
}

} // namespace vms_sdk
