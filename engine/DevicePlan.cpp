#include "engine/DevicePlan.h"

#include <QSet>

namespace orda_engine {

using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgFamily;

DevicePlan planOf(const CfgFamily &family, int flags, const QJsonObject &values, const ObjectsByExchange &held,
                  Unreported unreported)
{
    DevicePlan plan;
    QSet<QString> lacking, written;
    const QVector<int> exchanges = family.exchangesOf(flags);
    for (const int place : exchanges) {
        const auto device = held.constFind(place);
        if (device == held.constEnd() && unreported == Unreported::Sent)
            continue;
        const CfgExchange &exchange = family.exchanges.at(place);
        const QJsonObject asked = exchange.askedBy(values);
        for (auto it = asked.begin(); it != asked.end(); ++it)
            lacking.insert(it.key());
        if (device == held.constEnd())
            continue; // ONVIF has no counterpart for it
        const QJsonObject param = exchange.setParam(values, *device);
        const QVector<MemberChange> changes = family.changesBy(place, *device, param);
        QSet<QString> changing;
        for (const MemberChange &change : changes) {
            changing.insert(change.member);
            if (change.before.isUndefined() && unreported == Unreported::Dropped)
                continue;
            (change.before.isUndefined() ? plan.added : plan.changes).append(change);
        }
        const QJsonObject members = exchange.membersOf(*device);
        const QJsonObject settings = exchange.settings(param);
        for (auto it = settings.begin(); it != settings.end(); ++it) {
            const QString name = exchange.nameInValues(it.key());
            if (!asked.contains(name) || (unreported == Unreported::Dropped && !members.contains(it.key())))
                continue;
            written.insert(name);
            if (!changing.contains(it.key()))
                ++plan.alreadySo;
        }
    }
    plan.lacking = (lacking - written).values();
    plan.lacking.sort();
    return plan;
}

namespace {

void appendPlanned(QVector<MemberDifference> &differences, const QVector<MemberChange> &changes)
{
    for (const MemberChange &change : changes)
        differences.append({change.exchange, change.member, change.after, change.before});
}

} // namespace

QVector<MemberDifference> differencesOf(const CfgFamily &family, int flags, const QJsonObject &values,
                                        const ObjectsByExchange &sent, const ObjectsByExchange &held,
                                        Unreported unreported)
{
    QVector<MemberDifference> differences;
    ObjectsByExchange notSent;
    for (auto device = held.begin(); device != held.end(); ++device) {
        const int place = device.key();
        if (!sent.contains(place)) {
            notSent.insert(place, *device);
            continue;
        }
        const CfgExchange &exchange = family.exchanges.at(place);
        const QJsonObject members = exchange.membersOf(*device);
        const QJsonObject asked = exchange.askedBy(values);
        const QJsonObject settings = exchange.settings(sent.value(place));
        for (auto it = settings.begin(); it != settings.end(); ++it) {
            const QJsonValue found = members.value(it.key());
            if (found != it.value() && asked.contains(exchange.nameInValues(it.key())))
                differences.append({place, it.key(), it.value(), found});
        }
    }
    const DevicePlan plan = planOf(family, flags, values, notSent, unreported);
    appendPlanned(differences, plan.changes);
    appendPlanned(differences, plan.added);
    return differences;
}

} // namespace orda_engine
