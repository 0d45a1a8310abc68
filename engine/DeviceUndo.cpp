#include "engine/DeviceUndo.h"

namespace orda_engine {

using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgFamily;
using orda_batchCfg::completeFrom;

ExchangeUndo undoOf(const CfgFamily &family, int place, const QJsonObject &before, const QJsonObject &sent,
                    const QJsonObject &held, bool force)
{
    const CfgExchange &exchange = family.exchanges.at(place);
    ExchangeUndo undo;
    const QJsonObject membersBefore = exchange.membersOf(before);
    const QJsonObject members = exchange.membersOf(held);
    const QJsonObject settings = exchange.settings(sent);
    for (auto it = settings.begin(); it != settings.end(); ++it) {
        const QString &member = it.key();
        const QJsonValue former = membersBefore.value(member); // undefined: the device did not have it
        const QJsonValue found = members.value(member);
        if (former == it.value())
            continue; // only repeated
        if (found == former)
            undo.alreadyBack.append(member);
        else if (former.isUndefined())
            undo.notRemovable.append({place, member, it.value(), found});
        else if (found == it.value())
            undo.goBack.insert(member, former);
        else
            undo.changedSince.append({place, member, it.value(), found});
        if (force && !former.isUndefined() && !found.isUndefined() && found != former)
            undo.goBack.insert(member, former);
    }
    return undo;
}

DeviceUndo undoOf(const CfgFamily &family, const ObjectsByExchange &before, const ObjectsByExchange &sent,
                  const ObjectsByExchange &held, bool force)
{
    DeviceUndo undo;
    for (auto param = sent.begin(); param != sent.end(); ++param) {
        const int place = param.key();
        if (before.contains(place) && held.contains(place))
            undo.insert(place, undoOf(family, place, before.value(place), *param, held.value(place), force));
    }
    return undo;
}

QJsonObject valuesOf(const CfgFamily &family, const DeviceUndo &undo, const ObjectsByExchange &held)
{
    QJsonObject all;
    for (auto it = undo.begin(); it != undo.end(); ++it) {
        if (it->goBack.isEmpty())
            continue;
        const CfgExchange &exchange = family.exchanges.at(it.key());
        const QJsonObject wanted = exchange.withMembers(held.value(it.key()), it->goBack);
        const QJsonObject members = completeFrom(it->goBack, wanted, exchange.fromValues);
        const QJsonObject values = exchange.toValues(members);
        all = completeFrom(all, values, values.keys());
    }
    return all;
}

} // namespace orda_engine
