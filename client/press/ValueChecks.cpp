#include "client/press/ValueChecks.h"

#include "client/form/FormPage.h"
#include "engine/Selection.h"

#include <QAbstractButton>
#include <QHash>
#include <QHostAddress>
#include <QJsonArray>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace orda_client {

namespace {

using orda_batchCfg::CfgExchange;

bool hasBlank(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return character.isSpace(); });
}

/// An IP address or a host name. Digits and dots alone are an address, or a mistake.
bool isHost(const QString &text)
{
    static const QRegularExpression numbers(QStringLiteral("\\A[0-9]+(\\.[0-9]+)*\\z"));
    static const QRegularExpression name(QStringLiteral("\\A[\\w-]{1,63}(\\.[\\w-]{1,63})*\\.?\\z"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    if (numbers.match(text).hasMatch())
        return text.count(QLatin1Char('.')) == 3 && !QHostAddress(text).isNull();
    return name.match(text).hasMatch() || !QHostAddress(text).isNull();
}

bool isUrl(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool isKnown = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    // QUrl makes a whole address of "10.0.1".
    return url.isValid() && isKnown && isHost(url.host()) && text.contains(url.host(), Qt::CaseInsensitive);
}

bool isPortMissing(const QString &text)
{
    return QUrl(text, QUrl::StrictMode).port(1) == 0;
}

/// What looks wrong about one value; empty when nothing does.
using Check = QString (*)(const QJsonValue &value);

QString checkName(const QJsonValue &value)
{
    return value.toString().trimmed().isEmpty() ? ValueChecks::tr("empty", "of a value that looks wrong") : QString();
}

QString checkPort(const QJsonValue &value)
{
    return value.toInt() == 0 ? ValueChecks::tr("0 is no port") : QString();
}

QString checkAddress(const QString &text, bool isGood, const QString &complaint)
{
    if (text.trimmed().isEmpty())
        return checkName(text);
    if (hasBlank(text))
        return ValueChecks::tr("there is a blank in \"%1\"").arg(text);
    if (!isGood)
        return complaint;
    return isPortMissing(text) ? checkPort(0) : QString();
}

QString checkUrl(const QJsonValue &value)
{
    const QString text = value.toString();
    return checkAddress(text, isUrl(text), ValueChecks::tr("\"%1\" is no web address (http:// or https://)").arg(text));
}

QString checkServer(const QJsonValue &value)
{
    const QString text = value.toString();
    return checkAddress(text, isHost(text) || isUrl(text),
                        ValueChecks::tr("\"%1\" is neither an IP address nor the name of a server").arg(text));
}

const QHash<QString, Check> &checks()
{
    static const QHash<QString, Check> byMember{
        {QStringLiteral("qbcloud_addr"), checkUrl},        {QStringLiteral("onlineserverip"), checkServer},
        {QStringLiteral("onlineserverport"), checkPort},   {QStringLiteral("businessserverip"), checkServer},
        {QStringLiteral("businessserverport"), checkPort}, {QStringLiteral("channelName"), checkName},
    };
    return byMember;
}

QJsonObject askedBy(const FormPage &page)
{
    QJsonObject asked;
    for (const CfgExchange &exchange : page.family->exchanges) {
        const QJsonObject members = exchange.askedBy(page.values);
        for (auto member = members.begin(); member != members.end(); ++member)
            asked.insert(member.key(), member.value());
    }
    return asked;
}

// The video page sends what a stream's panel had when it was hidden.
QStringList sentUnticked(const FormPage &page, const QJsonObject &asked)
{
    QStringList titles;
    for (const FormPage::Member &member : page.members)
        if (!member.boxes.isEmpty() && !member.isMeant() && asked.contains(member.name))
            titles.append(member.title);
    titles.removeDuplicates();
    if (titles.isEmpty())
        return {};
    return {ValueChecks::tr("not ticked, but sent all the same: %1").arg(titles.join(QStringLiteral("; ")))};
}

// Without any, a write would repeat what the stream has, or send what nobody has ticked.
QStringList entriesWithoutTicks(const FormPage &page)
{
    QStringList texts;
    for (const CfgExchange &exchange : page.family->exchanges) {
        const QJsonArray entries = page.values.value(exchange.listMember).toArray();
        for (const QJsonValue &entry : entries) {
            const int id = entry.toObject().value(exchange.listId).toInt();
            const QString prefix = QStringLiteral("%1%2.").arg(exchange.listPrefix).arg(id);
            QString title;
            bool isOneMeant = false;
            for (const FormPage::Member &member : page.members) {
                if (!member.name.startsWith(prefix) || member.boxes.isEmpty() || !member.boxes.constLast())
                    continue;
                title = member.boxes.constLast()->text(); // the box of the entry itself
                isOneMeant = isOneMeant || member.isMeant();
            }
            if (!isOneMeant)
                texts.append(ValueChecks::tr("%1: nothing that is ticked applies to it").arg(title));
        }
    }
    return texts;
}

// Platform 9100 takes the addresses of its two servers; without any it only forgets those that were given by hand.
bool isNoServerGiven(const QJsonObject &asked)
{
    return asked.value(QLatin1String("bManualcfgonline")) == false
        && asked.value(QLatin1String("bManualcfgbussiness")) == false;
}

} // namespace

QStringList ValueChecks::of(const FormPage &page)
{
    if (!page.family)
        return {};
    const QJsonObject asked = askedBy(page);
    QStringList texts = entriesWithoutTicks(page) + sentUnticked(page, asked);
    for (const FormPage::Member &member : page.members) {
        const Check check = asked.contains(member.name) ? checks().value(member.name) : nullptr;
        const QString complaint = check ? check(asked.value(member.name)) : QString();
        if (!complaint.isEmpty())
            texts.append(tr("%1: %2", "parameter, what looks wrong").arg(member.title, complaint));
        if (member.name == QLatin1String("bManualcfgonline") && isNoServerGiven(asked))
            texts.append(tr("%1: no address is given").arg(member.title));
    }
    return texts;
}

QStringList ValueChecks::onvifGap(const FormPage &page, const QStringList &devIds)
{
    if (!page.family)
        return {};
    const orda_engine::OnvifGap gap = orda_engine::Selection{page.family, devIds, page.values}.onvifGap();
    if (gap.devices == 0)
        return {};
    QStringList titles;
    for (const FormPage::Member &member : page.members)
        if (gap.keys.contains(member.name))
            titles.append(member.title);
    titles.removeDuplicates(); // one box may set several members
    if (titles.isEmpty())
        return {}; // nothing would be set
    return {tr("%Ln of the devices speak(s) ONVIF, which does not know this: %1", nullptr, gap.devices)
                .arg(titles.join(QStringLiteral("; ")))};
}

} // namespace orda_client
