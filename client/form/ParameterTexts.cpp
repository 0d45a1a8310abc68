#include "client/form/ParameterTexts.h"

#include "client/form/FormPage.h"
#include "engine/ChangeTexts.h"

#include <QRegularExpression>

#include <algorithm>

namespace orda_client {

using orda_batchCfg::CfgChoice;
using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgKey;

namespace {

/// A member among those that have one title, in words where there are some.
QString partOf(const QString &key)
{
    if (key == QLatin1String("width"))
        return ParameterTexts::tr("width");
    if (key == QLatin1String("height"))
        return ParameterTexts::tr("height");
    if (key == QLatin1String("bManualcfgonline"))
        return ParameterTexts::tr("online service set by hand");
    if (key == QLatin1String("bManualcfgbussiness"))
        return ParameterTexts::tr("business service set by hand");
    return key;
}

} // namespace

ParameterTexts::ParameterTexts(const QWidget *form, const orda_batchCfg::CfgFamily &family)
    : m_family(family)
{
    const FormPage page = FormPage::of(form, family);
    for (const FormPage::Member &member : page.members) {
        m_order.append(member.name);
        m_titles.insert(member.name, member.title);
    }
    // Several members of one editor would have one title.
    QHash<QString, int> times;
    for (const QString &title : qAsConst(m_titles))
        ++times[title];
    for (auto member = m_titles.begin(); member != m_titles.end(); ++member)
        if (times.value(member.value()) > 1)
            member.value() =
                QStringLiteral("%1 (%2)").arg(member.value(), partOf(member.key().section(QLatin1Char('.'), -1)));
}

QString ParameterTexts::title(const QString &member) const
{
    QString known = m_titles.value(member);
    if (!known.isEmpty())
        return known;
    // A recorder has several streams of one number.
    static const QRegularExpression numbered(QStringLiteral("\\A(.*)\\(([0-9]+)\\)(\\..*)\\z"));
    const auto match = numbered.match(member);
    const QString first = match.hasMatch() ? m_titles.value(match.captured(1) + match.captured(3)) : QString();
    return first.isEmpty() ? member : QStringLiteral("%1 (%2)").arg(first, match.captured(2));
}

const CfgKey *ParameterTexts::keyOf(const QString &member) const
{
    const QString name = member.section(QLatin1Char('.'), -1);
    const auto found = std::find_if(m_family.keys.cbegin(), m_family.keys.cend(),
                                    [&name](const CfgKey &key) { return key.name == name; });
    return found == m_family.keys.cend() ? nullptr : &*found;
}

QString ParameterTexts::value(const QString &member, const QJsonValue &value) const
{
    const CfgKey *key = keyOf(member);
    if (key && key->type == CfgKey::Switch && value.isBool())
        return value.toBool() ? tr("on") : tr("off");
    if (key && key->type == CfgKey::NumberSwitch && (value == 0 || value == 1))
        return value == 1 ? tr("on") : tr("off");
    if (key) {
        for (const CfgChoice &choice : key->choices)
            if (choice.text && choice.value == value)
                return m_family.translated(choice.text);
    }
    return value.isUndefined() ? QStringLiteral("–") : orda_engine::shortened(orda_engine::plainTextOf(value));
}

QString ParameterTexts::change(const QString &member, const QJsonValue &before, const QJsonValue &after) const
{
    return tr("%1: %2 → %3", "parameter, before, after")
        .arg(title(member), value(member, before), value(member, after));
}

QStringList ParameterTexts::list(const QJsonObject &values) const
{
    QJsonObject asked;
    for (const CfgExchange &exchange : m_family.exchanges) {
        const QJsonObject members = exchange.askedBy(values);
        for (auto member = members.begin(); member != members.end(); ++member)
            asked.insert(member.key(), member.value());
    }
    QStringList names = asked.keys();
    const auto place = [this](const QString &name) {
        const int known = m_order.indexOf(name);
        return known < 0 ? m_order.size() : known;
    };
    std::stable_sort(names.begin(), names.end(),
                     [&place](const QString &a, const QString &b) { return place(a) < place(b); });
    QStringList texts;
    for (const QString &name : qAsConst(names))
        texts.append(tr("%1: %2", "parameter, value").arg(title(name), value(name, asked.value(name))));
    return texts;
}

} // namespace orda_client
