#include "engine/Selection.h"

#include "run/CfgFamily.h"

#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/OnvifCode.h>

#include <algorithm>

namespace orda_engine {

using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgFamily;
using orda_batchCfg::CfgKey;

namespace {

/// Such a key has no flag: which exchange has it only the device can say.
bool hasUnknownKey(const CfgFamily &family, const QJsonObject &wanted)
{
    const QStringList names = wanted.keys();
    return std::any_of(names.cbegin(), names.cend(), [&family](const QString &name) {
        return std::none_of(family.keys.cbegin(), family.keys.cend(),
                            [&name](const CfgKey &key) { return key.name == name; });
    });
}

} // namespace

Selection Selection::withoutDuplicates() const
{
    Selection once = *this;
    once.devIds.removeDuplicates();
    return once;
}

int Selection::flagsFor(const QJsonObject &wanted) const
{
    if (!wanted.isEmpty() && !hasUnknownKey(*family, wanted))
        return family->flagsOf(wanted);
    int all = 0;
    for (const CfgExchange &exchange : family->exchanges)
        all |= exchange.flag;
    return all;
}

QJsonObject Selection::readValuesFor(QJsonObject wanted) const
{
    for (const CfgKey &key : family->keys)
        if (!wanted.contains(key.name) && key.type == CfgKey::Choice)
            wanted.insert(key.name, key.choices.at(key.initial).value);
    return wanted;
}

namespace {

bool speaksOnvif(const QString &devId)
{
    return orda_data::DevsMgrData::instance().getDevInfoById(devId).protocol == vms_sdk::DevProtocol::Onvif;
}

Unreported unreportedBy(const QString &devId)
{
    return speaksOnvif(devId) ? Unreported::Dropped : Unreported::Sent;
}

} // namespace

int Selection::readableFlags(const QString &devId, int flags) const
{
    if (!speaksOnvif(devId))
        return flags;
    int unknown = 0;
    bool isAnyKnown = false;
    const QVector<int> exchanges = family->exchangesOf(flags);
    for (const int place : exchanges) {
        const CfgExchange &exchange = family->exchanges.at(place);
        const bool isKnown = vms_sdk::isKnownToOnvif(exchange.getMethod);
        isAnyKnown = isAnyKnown || isKnown;
        unknown |= isKnown ? 0 : exchange.flag;
    }
    return isAnyKnown ? flags & ~unknown : flags;
}

DevicePlan Selection::planOf(const QString &devId, const ObjectsByExchange &held) const
{
    return orda_engine::planOf(*family, flagsOf(devId), valuesOf(devId), held, unreportedBy(devId));
}

QVector<MemberDifference> Selection::differencesOf(const QString &devId, const ObjectsByExchange &sent,
                                                   const ObjectsByExchange &held) const
{
    return orda_engine::differencesOf(*family, flagsOf(devId), valuesOf(devId), sent, held, unreportedBy(devId));
}

bool Selection::isKnownToOnvif(const QJsonObject &wanted, QStringList *unknownKeys) const
{
    bool isKnown = true;
    const QVector<int> exchanges = family->exchangesOf(flagsFor(wanted));
    for (const int place : exchanges) {
        const CfgExchange &exchange = family->exchanges.at(place);
        if (vms_sdk::isKnownToOnvif(exchange.setMethod))
            continue;
        isKnown = false;
        for (const CfgKey &key : family->keys)
            if (key.flag == exchange.flag && wanted.contains(key.name) && !unknownKeys->contains(key.name))
                unknownKeys->append(key.name);
    }
    return isKnown;
}

OnvifGap Selection::onvifGap() const
{
    OnvifGap gap;
    QStringList unknown;
    const bool isKnown = isKnownToOnvif(values, &unknown); // of nearly all devices
    bool isAsOthers = false;
    for (const QString &devId : devIds) {
        if (!speaksOnvif(devId))
            continue;
        const auto own = ownValues.constFind(devId);
        if (own == ownValues.constEnd() ? isKnown : isKnownToOnvif(*own, &gap.keys))
            continue;
        ++gap.devices;
        isAsOthers = isAsOthers || own == ownValues.constEnd();
    }
    if (isAsOthers)
        gap.keys = unknown + gap.keys;
    gap.keys.removeDuplicates();
    return gap;
}

} // namespace orda_engine
