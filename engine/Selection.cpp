#include "engine/Selection.h"

#include "run/CfgFamily.h"

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

} // namespace orda_engine
