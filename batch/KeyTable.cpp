#include "batch/KeyTable.h"

#include "engine/ChangeTexts.h"
#include "run/CfgFamily.h"
#include "video/VideoParamsCfgTask.h"

#include <vms_client_sdk/ForeignText.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace orda_batch {

using orda_batchCfg::CfgChoice;
using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgFamily;
using orda_batchCfg::CfgKey;

namespace {

const QLatin1String anyNumber("N"); // in the names that are shown

const CfgExchange &exchangeWithList(const CfgFamily &family)
{
    const auto found = std::find_if(family.exchanges.cbegin(), family.exchanges.cend(),
                                    [](const CfgExchange &exchange) { return !exchange.listMember.isEmpty(); });
    return found == family.exchanges.cend() ? family.exchanges.constFirst() : *found;
}

QJsonValue jsonOrText(const QString &text)
{
    const QJsonArray read = QJsonDocument::fromJson('[' + text.toUtf8() + ']').array();
    return read.size() == 1 ? read.at(0) : QJsonValue(text);
}

QJsonArray choicesOfKey(const CfgKey &key)
{
    switch (key.type) {
    case CfgKey::Switch:
        return {true, false};
    case CfgKey::NumberSwitch:
        return {1, 0};
    case CfgKey::Text:
    case CfgKey::Number:
        break;
    case CfgKey::Choice: {
        QJsonArray values;
        for (const CfgChoice &choice : key.choices)
            values.append(choice.value);
        return values;
    }
    }
    return {};
}

/// A value whose type the text does not say.
QJsonValue typedValue(const CfgKey &key, const QString &text)
{
    if (key.type == CfgKey::Text)
        return text;
    const QString word = text.trimmed();
    if (key.type == CfgKey::Number) {
        bool isNumber = false;
        const int number = word.toInt(&isNumber);
        return isNumber ? QJsonValue(number) : QJsonValue();
    }
    // Spreadsheets write truth values in capitals.
    const auto sensitivity = key.type == CfgKey::Switch ? Qt::CaseInsensitive : Qt::CaseSensitive;
    const QJsonArray choices = choicesOfKey(key);
    for (const QJsonValue &choice : choices)
        if (word.compare(orda_engine::plainTextOf(choice), sensitivity) == 0)
            return choice;
    return {};
}

} // namespace

KeyTable::KeyTable(const CfgFamily &family, bool isUnchecked)
    : m_family(family)
    , m_exchange(exchangeWithList(family))
    , m_isUnchecked(isUnchecked)
{
}

QStringList KeyTable::names() const
{
    const QString entry =
        m_exchange.listMember.isEmpty() ? QString() : m_exchange.listPrefix + anyNumber + QLatin1Char('.');
    QStringList names;
    for (const CfgKey &key : m_family.keys)
        names.append(entry + key.name);
    return names;
}

std::optional<KeyTable::Name> KeyTable::parts(const QString &name) const
{
    if (m_exchange.listMember.isEmpty())
        return Name{{}, name};
    static const QRegularExpression numbered(QStringLiteral("\\A(N|0|[1-9][0-9]{0,8})\\.(.+)\\z"));
    const auto match = numbered.match(name.mid(m_exchange.listPrefix.size()));
    if (!name.startsWith(m_exchange.listPrefix) || !match.hasMatch())
        return std::nullopt;
    return Name{m_exchange.listPrefix + match.captured(1) + QLatin1Char('.'), match.captured(2)};
}

const CfgKey *KeyTable::keyOf(const QString &name) const
{
    const auto wanted = parts(name);
    const auto found = std::find_if(m_family.keys.cbegin(), m_family.keys.cend(),
                                    [&wanted](const CfgKey &key) { return wanted && key.name == wanted->key; });
    return found == m_family.keys.cend() ? nullptr : &*found;
}

QString KeyTable::rangeOf(const QString &name) const
{
    const CfgKey *key = keyOf(name);
    if (!key)
        return {};
    if (key->type == CfgKey::Number)
        return tr("%1 to %2").arg(key->minimum).arg(key->maximum);
    if (key->type == CfgKey::Text)
        return tr("up to %1 characters").arg(key->maximum);
    QStringList choices;
    const QJsonArray values = choicesOfKey(*key);
    for (const QJsonValue &value : values)
        choices.append(orda_engine::plainTextOf(value));
    return choices.join(QStringLiteral(", "));
}

QString KeyTable::typeOf(const QString &name) const
{
    const CfgKey *key = keyOf(name);
    if (!key)
        return {};
    switch (key->type) {
    case CfgKey::Switch:
    case CfgKey::NumberSwitch:
        return QStringLiteral("switch");
    case CfgKey::Text:
        return QStringLiteral("text");
    case CfgKey::Number:
        return QStringLiteral("number");
    case CfgKey::Choice:
        break;
    }
    return QStringLiteral("choice");
}

QJsonArray KeyTable::choicesOf(const QString &name) const
{
    const CfgKey *key = keyOf(name);
    return key ? choicesOfKey(*key) : QJsonArray();
}

/// A name that the table has, for one that is written wrongly; empty when none is like it.
QString KeyTable::nearestTo(const QString &name) const
{
    const QString written = name.mid(name.lastIndexOf(QLatin1Char('.')) + 1);
    const auto key = std::find_if(m_family.keys.cbegin(), m_family.keys.cend(), [&written](const CfgKey &candidate) {
        return candidate.name.compare(written, Qt::CaseInsensitive) == 0;
    });
    if (key == m_family.keys.cend())
        return {};
    if (m_exchange.listMember.isEmpty())
        return key->name;
    const auto numbered = parts(name.toLower());
    return (numbered ? numbered->entry : m_exchange.listPrefix + QLatin1String("0.")) + key->name;
}

QString KeyTable::faultOfKey(const QString &name) const
{
    const auto named = parts(name);
    const bool isNumbered = named && !named->entry.endsWith(anyNumber + QLatin1Char('.'));
    if (isNumbered && keyOf(name))
        return {};
    const QString inValues = m_exchange.nameInValues(name);
    if (inValues != name && keyOf(inValues))
        return tr(R"("%1" cannot be set by itself; "%2" sets it for all channels)").arg(name, inValues);
    if (isNumbered && m_isUnchecked) {
        if (name.isEmpty() || vms_sdk::holdsControls(name))
            return tr("a key must not be empty or hold line breaks, tabs or control characters");
        // Neither plan nor undo would see a member that steers the request, or the number of a stream.
        if (!m_exchange.askedBy(toValues({{name, true}})).contains(name))
            return tr(R"("%1" is no setting)").arg(name);
        return {};
    }
    const QString keys = tr("keys of %1: %2").arg(m_family.name, names().join(QStringLiteral(", ")));
    const QString nearest = nearestTo(name);
    return nearest.isEmpty() ? tr(R"(unknown key "%1"; %2)").arg(name, keys)
                             : tr(R"(unknown key "%1", perhaps "%2"; %3)").arg(name, nearest, keys);
}

QJsonValue KeyTable::fromText(const QString &name, const QString &text, QString *error) const
{
    error->clear();
    const CfgKey *key = keyOf(name);
    if (!key)
        return jsonOrText(text); // unchecked
    QJsonValue value = typedValue(*key, text);
    const QString fault = faultOfValue(*key, value);
    if (fault.isEmpty() || (m_isUnchecked && key->type == CfgKey::Text))
        return value;
    if (m_isUnchecked)
        return jsonOrText(text);
    // Without the quotes that the choices have in JSON.
    *error = key->type == CfgKey::Choice ? tr("must be one of %1").arg(rangeOf(name)) : fault;
    return value;
}

QString KeyTable::faultOf(const QString &name, const QJsonValue &value) const
{
    const CfgKey *key = keyOf(name);
    return m_isUnchecked || !key ? QString() : faultOfValue(*key, value);
}

QString KeyTable::faultOfValue(const CfgKey &key, const QJsonValue &value)
{
    switch (key.type) {
    case CfgKey::Switch:
        return value.isBool() ? QString() : tr("must be true or false");
    case CfgKey::NumberSwitch:
        return value == 1 || value == 0 ? QString() : tr("must be 1 or 0");
    case CfgKey::Text:
        if (!value.isString())
            return tr("must be a text in quotes");
        if (vms_sdk::holdsControls(value.toString()))
            return tr("must not hold line breaks, tabs or control characters");
        return value.toString().size() <= key.maximum ? QString()
                                                      : tr("must not be longer than %1 characters").arg(key.maximum);
    case CfgKey::Number: {
        const double number = value.toDouble(NAN);
        const bool isRight = number >= key.minimum && number <= key.maximum && std::floor(number) == number;
        return isRight ? QString() : tr("must be a whole number from %1 to %2").arg(key.minimum).arg(key.maximum);
    }
    case CfgKey::Choice:
        break;
    }
    QStringList texts;
    const QJsonArray choices = choicesOfKey(key);
    for (const QJsonValue &choice : choices)
        texts.append(orda_engine::textOf(choice));
    return choices.contains(value) ? QString() : tr("must be one of %1").arg(texts.join(QStringLiteral(", ")));
}

QString KeyTable::faultOfResolution(const QString &entry, const QJsonObject &byName) const
{
    const QJsonValue width = byName.value(entry + QLatin1String("width"));
    const QJsonValue height = byName.value(entry + QLatin1String("height"));
    if (!width.isDouble() || !height.isDouble())
        return {};
    const bool isSubStream = entry != m_exchange.listPrefix + QLatin1String("0.");
    const QVector<QSize> sizes = orda_batchCfg::videoResolutions(isSubStream);
    if (sizes.contains(QSize(width.toInt(), height.toInt())))
        return {};
    QStringList texts;
    for (const QSize &size : sizes)
        texts.append(QStringLiteral("%1×%2").arg(size.width()).arg(size.height()));
    return tr(R"(%1×%2 is no resolution of "%3", which has %4)")
        .arg(QString::number(width.toInt()), QString::number(height.toInt()), entry.chopped(1),
             texts.join(QStringLiteral(", ")));
}

QString KeyTable::faultTogether(const QJsonObject &byName) const
{
    if (m_isUnchecked)
        return {};
    const bool isVideo = &m_family == &orda_batchCfg::VideoParamsCfgTask::family();
    QStringList faults;
    const QStringList names = byName.keys();
    for (const QString &name : names) {
        const CfgKey *key = keyOf(name);
        if (!key)
            continue;
        const QString entry = parts(name)->entry;
        for (const QString &other : key->needs)
            if (!byName.contains(entry + other))
                faults.append(tr(R"("%1" needs "%2" beside it)").arg(name, entry + other));
        if (isVideo && key->name == QLatin1String("width"))
            faults.append(faultOfResolution(entry, byName));
    }
    faults.removeAll({});
    return faults.join(QStringLiteral("; "));
}

QJsonObject KeyTable::toValues(const QJsonObject &byName) const
{
    return m_exchange.toValues(byName);
}

QStringList KeyTable::membersWithKey(const QStringList &members) const
{
    struct Place
    {
        int stream, key;
        QString member;
    };
    QVector<Place> places;
    for (const QString &member : members) {
        const QString name = m_exchange.nameInValues(member);
        if (const CfgKey *key = keyOf(name)) {
            const QString entry = parts(name)->entry;
            const int stream = entry.mid(m_exchange.listPrefix.size()).chopped(entry.isEmpty() ? 0 : 1).toInt();
            places.append({stream, int(key - m_family.keys.constData()), member});
        }
    }
    std::sort(places.begin(), places.end(), [](const Place &a, const Place &b) {
        const int aSize = a.member.size();
        const int bSize = b.member.size(); // "stream0(2)" after "stream0"
        return std::tie(a.stream, a.key, aSize, a.member) < std::tie(b.stream, b.key, bSize, b.member);
    });
    QStringList sorted;
    for (const Place &place : qAsConst(places))
        sorted.append(place.member);
    return sorted;
}

} // namespace orda_batch
