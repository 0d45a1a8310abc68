#include "run/CfgFamily.h"

#include <QCoreApplication>

#include <algorithm>

namespace orda_batchCfg {

CfgChoice::CfgChoice(const char *latin1, const char *shownText)
    : value(QLatin1String(latin1))
    , text(shownText)
{
}

CfgChoice::CfgChoice(int number, const char *shownText)
    : value(number)
    , text(shownText)
{
}

CfgKey CfgKey::switchOf(const char *name, int flag)
{
    return {QLatin1String(name), Switch, flag};
}

CfgKey CfgKey::numberSwitch(const char *name, int flag)
{
    return {QLatin1String(name), NumberSwitch, flag};
}

CfgKey CfgKey::text(const char *name, int maxLength, int flag)
{
    return {QLatin1String(name), Text, flag, 0, maxLength};
}

CfgKey CfgKey::number(const char *name, int minimum, int maximum, int initial, int flag)
{
    return {QLatin1String(name), Number, flag, minimum, maximum, initial};
}

CfgKey CfgKey::choice(const char *name, const QVector<CfgChoice> &choices, int flag, int initial)
{
    return {QLatin1String(name), Choice, flag, 0, 0, initial, choices};
}

CfgKey CfgKey::needing(const QStringList &others) &&
{
    needs = others;
    return std::move(*this);
}

int CfgFamily::exchangeFrom(int from, int flags) const
{
    for (int i = from; i < exchanges.size(); ++i) {
        const int flag = exchanges.at(i).flag;
        if (flag == 0 || (flags & flag) != 0)
            return i;
    }
    return -1;
}

QVector<int> CfgFamily::exchangesOf(int flags) const
{
    QVector<int> places;
    for (int i = exchangeFrom(0, flags); i >= 0; i = exchangeFrom(i + 1, flags))
        places.append(i);
    return places.isEmpty() ? QVector<int>{exchanges.size() - 1} : places;
}

QVector<MemberChange> CfgFamily::changesBy(int exchange, const QJsonObject &device, const QJsonObject &param) const
{
    QVector<MemberChange> changes;
    const QJsonObject members = exchanges.at(exchange).membersOf(device);
    const QJsonObject settings = exchanges.at(exchange).settings(param);
    for (auto it = settings.begin(); it != settings.end(); ++it) {
        const QJsonValue held = members.value(it.key());
        if (held != it.value())
            changes.append({exchange, it.key(), held, it.value()});
    }
    return changes;
}

QString CfgFamily::translated(const char *text) const
{
    return QCoreApplication::translate(context->className(), text);
}

QString CfgFamily::recordFile() const
{
    return QStringLiteral("vms_%1_params_batch_cfg_record.txt").arg(name);
}

int CfgFamily::flagsOf(const QJsonObject &values) const
{
    int flags = 0;
    for (const CfgKey &key : keys)
        if (values.contains(key.name))
            flags |= key.flag;
    return flags;
}

const CfgKey &CfgFamily::key(const char *latin1) const
{
    const auto found = std::find_if(keys.begin(), keys.end(), [latin1](const CfgKey &candidate) {
        return candidate.name == QLatin1String(latin1);
    });
    if (found == keys.end())
        qFatal("family %s has no key %s", qPrintable(name), latin1);
    return *found;
}

} // namespace orda_batchCfg
