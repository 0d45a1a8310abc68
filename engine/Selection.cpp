#include "engine/Selection.h"

#include "run/CfgFamily.h"

namespace orda_engine {

using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgKey;

Selection Selection::withoutDuplicates() const
{
    Selection once = *this;
    once.devIds.removeDuplicates();
    return once;
}

int Selection::flagsFor(const QJsonObject &wanted) const
{
    if (!wanted.isEmpty())
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
