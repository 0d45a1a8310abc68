#include "run/CfgExchange.h"

#include <QHash>
#include <QMap>

#include <utility>

namespace orda_batchCfg {

namespace {

const QJsonObject &channelZeroParam()
{
    static const QJsonObject param{{QStringLiteral("channelid"), 0}};
    return param;
}

/// @p members without those that steer a request and that no device keeps.
QJsonObject kept(QJsonObject members)
{
    for (const auto steering : {QLatin1String("channelid"), QLatin1String("bdefault"), QLatin1String("clienttype")})
        members.remove(steering);
    return members;
}

} // namespace

CfgExchange::CfgExchange(const char *get, const char *set, SetParam buildSetParam)
    : getMethod(QLatin1String(get))
    , setMethod(QLatin1String(set))
    , setParam(std::move(buildSetParam))
{
}

CfgExchange::CfgExchange(const char *get, const char *set, const WrappedParam &param)
    : CfgExchange(get, set, param.setParam)
{
    attribute = param.attribute;
}

CfgExchange CfgExchange::reading(GetParam param) &&
{
    getParam = std::move(param);
    return std::move(*this);
}

CfgExchange CfgExchange::failing(const char *getText, const char *setText) &&
{
    getFailure = getText;
    setFailure = setText;
    return std::move(*this);
}

CfgExchange CfgExchange::onlyWith(int bit) &&
{
    flag = bit;
    return std::move(*this);
}

CfgExchange CfgExchange::foundIn(const char *member) &&
{
    resultMember = QLatin1String(member);
    return std::move(*this);
}

CfgExchange CfgExchange::checkedWhenBack(std::chrono::milliseconds limit) &&
{
    checkWhenBack = true;
    checkLimit = limit;
    return std::move(*this);
}

CfgExchange CfgExchange::listedIn(const char *member, const char *id, const char *prefix) &&
{
    listMember = QLatin1String(member);
    listId = QLatin1String(id);
    listPrefix = QLatin1String(prefix);
    return std::move(*this);
}

CfgExchange CfgExchange::takingFromValues(const QStringList &keys) &&
{
    fromValues = keys;
    return std::move(*this);
}

QJsonObject CfgExchange::heldIn(const QJsonObject &answer) const
{
    const QJsonObject result = answer.value(QLatin1String("result")).toObject();
    return resultMember.isEmpty() ? result : result.value(resultMember).toObject();
}

/// What stands before the dot in the names of each entry's members.
QStringList CfgExchange::entryNames(const QJsonArray &entries) const
{
    QStringList names;
    QHash<int, int> seen;
    for (const QJsonValue &entry : entries) {
        const int id = entry.toObject().value(listId).toInt();
        const int count = ++seen[id];
        const QString name = listPrefix + QString::number(id);
        names.append(count == 1 ? name : QStringLiteral("%1(%2)").arg(name).arg(count));
    }
    return names;
}

QJsonObject CfgExchange::membersOf(const QJsonObject &device) const
{
    if (listMember.isEmpty() || !device.value(listMember).isArray())
        return device;
    QJsonObject members = device;
    const QJsonArray entries = members.take(listMember).toArray();
    const QStringList names = entryNames(entries);
    for (int i = 0; i < entries.size(); ++i) {
        const QJsonObject entry = entries.at(i).toObject();
        for (auto it = entry.begin(); it != entry.end(); ++it)
            if (it.key() != listId)
                members.insert(names.at(i) + QLatin1Char('.') + it.key(), it.value());
    }
    return members;
}

QJsonObject CfgExchange::askedBy(const QJsonObject &values) const
{
    return membersOf(kept(values));
}

QJsonObject CfgExchange::settings(const QJsonObject &param) const
{
    return membersOf(kept(attribute.isEmpty() ? param : param.value(attribute).toObject()));
}

std::optional<CfgExchange::EntryMember> CfgExchange::entryMember(const QString &member) const
{
    const int dot = member.indexOf(QLatin1Char('.'));
    if (listMember.isEmpty() || dot < 0 || !member.startsWith(listPrefix))
        return std::nullopt;
    const QString number = member.mid(listPrefix.size(), dot - listPrefix.size());
    const int bracket = number.indexOf(QLatin1Char('('));
    bool isNumber = false;
    const int id = number.leftRef(bracket).toInt(&isNumber);
    if (!isNumber)
        return std::nullopt;
    return EntryMember{id, bracket < 0, member.mid(dot + 1)};
}

QString CfgExchange::nameInValues(const QString &member) const
{
    if (!member.contains(QLatin1Char('(')))
        return member; // nearly all of them, and this is asked for each
    const auto entry = entryMember(member);
    return entry ? QStringLiteral("%1%2.%3").arg(listPrefix).arg(entry->id).arg(entry->key) : member;
}

QJsonObject CfgExchange::toValues(const QJsonObject &members) const
{
    QJsonObject values;
    QMap<int, QJsonObject> entries;
    for (auto it = members.begin(); it != members.end(); ++it) {
        const auto member = entryMember(it.key());
        if (!member)
            values.insert(it.key(), it.value());
        else if (member->isFirst || !entries.value(member->id).contains(member->key))
            entries[member->id].insert(member->key, it.value());
    }
    QJsonArray list;
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        it->insert(listId, it.key());
        list.append(*it);
    }
    if (!list.isEmpty())
        values.insert(listMember, list);
    return values;
}

QJsonObject CfgExchange::withMembers(const QJsonObject &device, const QJsonObject &members) const
{
    if (listMember.isEmpty() || !device.value(listMember).isArray())
        return mergeKnownKeys(device, members);
    QJsonArray entries = device.value(listMember).toArray();
    const QStringList names = entryNames(entries);
    for (int i = 0; i < entries.size(); ++i) {
        QJsonObject entry = entries.at(i).toObject();
        for (auto it = entry.begin(); it != entry.end(); ++it) {
            const auto member = members.constFind(names.at(i) + QLatin1Char('.') + it.key());
            if (member != members.constEnd())
                *it = *member;
        }
        if (entries.at(i).isObject())
            entries.replace(i, entry);
    }
    QJsonObject changed = mergeKnownKeys(device, members);
    changed.insert(listMember, entries);
    return changed;
}

QJsonObject CfgExchange::writeBack(const QJsonObject &device, const QJsonObject &members,
                                   const QJsonObject &values) const
{
    const QJsonObject wanted = withMembers(device, members);
    const QJsonObject steering = completeFrom(completeFrom({}, wanted, fromValues), values, fromValues);
    return setParam(steering, wanted);
}

bool CfgExchange::holds(const QJsonObject &param, const QJsonObject &device) const
{
    const QJsonObject set = settings(param);
    const QJsonObject held = membersOf(device);
    for (auto it = set.begin(); it != set.end(); ++it)
        if (it.value() != held.value(it.key()))
            return false;
    return true;
}

CfgExchange::GetParam channelZero()
{
    return [](const QJsonObject &) { return channelZeroParam(); };
}

QJsonObject mergeKnownKeys(QJsonObject device, const QJsonObject &values)
{
    for (auto it = values.begin(); it != values.end(); ++it) {
        const auto known = device.find(it.key());
        if (known != device.end())
            *known = it.value();
    }
    return device;
}

QJsonObject completeFrom(QJsonObject values, const QJsonObject &device, const QStringList &keys)
{
    for (const QString &key : keys)
        if (!values.contains(key) && device.contains(key))
            values.insert(key, device.value(key));
    return values;
}

CfgExchange::WrappedParam mergedUnder(const char *attribute)
{
    const QString name = QLatin1String(attribute);
    return {name, [name](const QJsonObject &values, QJsonObject device) {
                QJsonObject param = channelZeroParam();
                param.insert(name, mergeKnownKeys(std::move(device), values));
                return param;
            }};
}

} // namespace orda_batchCfg
