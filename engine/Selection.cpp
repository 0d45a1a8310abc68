#include "engine/Selection.h"

#include "run/CfgFamily.h"

namespace orda_engine {

using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgKey;

int Selection::flagsOf(const QString &devId) const
{
    const QJsonObject wanted = valuesOf(devId);
    if (!wanted.isEmpty())
        return family->flagsOf(wanted);
    int all = 0;
    for (const CfgExchange &exchange : family->exchanges)
        all |= exchange.flag;
    return all;
}

QJsonObject Selection::readValuesOf(const QString &devId) const
{
    QJsonObject wanted = valuesOf(devId);
    for (const CfgKey &key : family->keys)
        if (!wanted.contains(key.name) && key.type == CfgKey::Choice)
            wanted.insert(key.name, key.choices.at(key.initial).value);
    return wanted;
}

} // namespace orda_engine
