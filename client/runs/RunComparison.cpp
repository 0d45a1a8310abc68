#include "client/runs/RunComparison.h"

#include <families/Families.h>

#include <QHash>
#include <QJsonDocument>
#include <QMap>
#include <QSet>

namespace orda_client {

using orda_journal::DeviceRow;
using orda_journal::ExchangeRow;
using orda_journal::Outcome;
using orda_journal::RunDetails;

namespace {

QJsonObject objectOf(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

/// Members of one device, by exchange.
struct Members
{
    QMap<int, QJsonObject> read, written;
};

QHash<QString, Members> membersIn(const RunDetails &run)
{
    QHash<QString, Members> members;
    const orda_batchCfg::CfgFamily *family = orda_batchCfg::Families::find(run.run.family);
    if (!family)
        return members;
    QHash<QString, QJsonObject> ownValues;
    QSet<QString> notWritten; // their writes were recorded and then did not leave
    for (const DeviceRow &device : run.devices) {
        ownValues.insert(device.devId, device.ownValues);
        if (device.outcome == Outcome::Stopped || device.outcome == Outcome::NotReached)
            notWritten.insert(device.devId);
    }
    for (const ExchangeRow &row : run.exchanges) {
        if (row.exchange < 0 || row.exchange >= family->exchanges.size())
            continue;
        const orda_batchCfg::CfgExchange &exchange = family->exchanges.at(row.exchange);
        Members &device = members[row.devId];
        device.read.insert(row.exchange, exchange.membersOf(exchange.heldIn(objectOf(row.before))));
        if (row.sent.isEmpty() || notWritten.contains(row.devId))
            continue;
        // Only what was asked for: the rest of a write repeats what was read.
        const QJsonObject own = ownValues.value(row.devId);
        const QJsonObject asked = exchange.askedBy(own.isEmpty() ? run.run.values : own);
        const QJsonObject sent = exchange.settings(objectOf(row.sent).value(QLatin1String("param")).toObject());
        QJsonObject written;
        for (auto member = sent.begin(); member != sent.end(); ++member)
            if (asked.contains(exchange.nameInValues(member.key())))
                written.insert(member.key(), *member);
        device.written.insert(row.exchange, written);
    }
    return members;
}

QString differences(const QMap<int, QJsonObject> &first, const QMap<int, QJsonObject> &second,
                    const ParameterTexts &texts)
{
    QStringList parts;
    QMap<int, QJsonObject> either = first;
    for (auto place = second.begin(); place != second.end(); ++place)
        either.insert(place.key(), *place);
    for (auto exchange = either.cbegin(); exchange != either.cend(); ++exchange) {
        const int place = exchange.key();
        const QJsonObject a = first.value(place), b = second.value(place);
        QStringList names = a.keys() + b.keys();
        names.removeDuplicates();
        for (const QString &name : qAsConst(names))
            if (a.value(name) != b.value(name))
                parts.append(texts.change(name, a.value(name), b.value(name)));
    }
    return parts.join(QStringLiteral("; "));
}

} // namespace

QVector<ComparedDevice> compareRuns(const RunDetails &first, const RunDetails &second, const ParameterTexts &texts)
{
    const QHash<QString, Members> inFirst = membersIn(first), inSecond = membersIn(second);
    QHash<QString, DeviceRow> others;
    for (const DeviceRow &device : second.devices)
        others.insert(device.devId, device);
    QVector<ComparedDevice> compared;
    for (const DeviceRow &device : first.devices) {
        ComparedDevice both;
        both.first = device;
        const auto other = others.find(device.devId);
        if (other == others.end() || device.isReplacedBy(other->serialNumber)) {
            both.state = ComparedDevice::OnlyInFirst;
        } else {
            both.second = *other;
            const Members a = inFirst.value(device.devId), b = inSecond.value(device.devId);
            both.read = differences(a.read, b.read, texts);
            both.written = differences(a.written, b.written, texts);
            both.state = device.outcome != other->outcome              ? ComparedDevice::OutcomesDiffer
                       : both.read.isEmpty() && both.written.isEmpty() ? ComparedDevice::Same
                                                                       : ComparedDevice::ValuesDiffer;
            others.erase(other);
        }
        compared.append(both);
    }
    for (const DeviceRow &device : second.devices) {
        if (!others.contains(device.devId))
            continue;
        ComparedDevice only;
        only.state = ComparedDevice::OnlyInSecond;
        only.second = device;
        compared.append(only);
    }
    return compared;
}

} // namespace orda_client
