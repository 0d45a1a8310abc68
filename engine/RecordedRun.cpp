#include "engine/RecordedRun.h"

#include "journal/TrackedRun.h"

#include <families/Families.h>

#include <QJsonDocument>

#include <iterator>

namespace orda_engine {

using orda_batchCfg::CfgExchange;
using orda_journal::Outcome;

namespace {

// A write has left, or may have.
bool mayBeWritten(const orda_journal::DeviceRow &device)
{
    switch (device.outcome.value_or(Outcome::Unknown)) {
    case Outcome::Done:
    case Outcome::Unknown:
    case Outcome::PartlyWritten:
    case Outcome::Differs:
        return true;
    case Outcome::Unchanged:
    case Outcome::Failed:
    case Outcome::Stopped:
    case Outcome::NotReached:
        break;
    }
    return false;
}

QJsonObject objectOf(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

/// The "param" of the write; of a device that says what it took of it, only that.
QJsonObject sentIn(const orda_journal::ExchangeRow &row, const CfgExchange &exchange)
{
    if (row.taken.isEmpty())
        return objectOf(row.sent).value(QLatin1String("param")).toObject();
    return orda_journal::paramOfTaken(exchange, exchange.heldIn(objectOf(row.before)), objectOf(row.taken));
}

/// Whether the row tells of a write to a device that had been read before.
bool isWrite(const orda_journal::ExchangeRow &row, const orda_batchCfg::CfgFamily &family)
{
    return !row.before.isEmpty() && !row.sent.isEmpty() && row.exchange >= 0 && row.exchange < family.exchanges.size();
}

} // namespace

RecordedRun::RecordedRun(const orda_journal::RunDetails &details)
    : m_id(details.run.id)
    , m_isUndo(details.run.kind == QLatin1String("undo"))
{
    m_written.family = orda_batchCfg::Families::find(details.run.family);
    if (!m_written.family) {
        m_error = tr("The run is of \"%1\", of which this program knows nothing.").arg(details.run.family);
        return;
    }
    if (details.run.isUnderWay) {
        m_error = tr("The run is still under way.");
        return;
    }
    m_written.values = details.run.values;
    for (const orda_journal::DeviceRow &device : details.devices)
        if (!device.ownValues.isEmpty())
            m_written.ownValues.insert(device.devId, device.ownValues);
    for (const orda_journal::ExchangeRow &row : details.exchanges)
        take(row);
    for (const orda_journal::DeviceRow &device : details.devices)
        if (mayBeWritten(device) && m_devices.contains(device.devId))
            m_written.devIds.append(device.devId);
    if (m_written.devIds.isEmpty())
        m_error = tr("The run has written to no device.");
}

void RecordedRun::take(const orda_journal::ExchangeRow &row)
{
    if (!isWrite(row, *m_written.family))
        return; // nothing has left
    const CfgExchange &exchange = m_written.family->exchanges.at(row.exchange);
    const QJsonObject before = exchange.heldIn(objectOf(row.before));
    const QJsonObject sent = sentIn(row, exchange);
    RecordedDevice &device = m_devices[row.devId];
    device.sent.insert(row.exchange, sent);
    device.before.insert(row.exchange, before);
    if (!row.taken.isEmpty())
        return;
    // What the run did not ask for it only repeated. Where that differs, somebody else changed it between two tries of
    // the run, and an undo must not take it back.
    const QJsonObject asked = exchange.askedBy(m_written.valuesOf(row.devId));
    QJsonObject repeated = exchange.settings(sent);
    for (auto it = repeated.begin(); it != repeated.end();)
        it = asked.contains(exchange.nameInValues(it.key())) ? repeated.erase(it) : std::next(it);
    device.before.insert(row.exchange, exchange.withMembers(before, repeated));
}

// An undo has no values of its own: what it has changed is what it wanted.
QVector<MemberDifference> RecordedRun::differences(const QString &devId, const ObjectsByExchange &held) const
{
    const orda_batchCfg::CfgFamily &family = *m_written.family;
    const RecordedDevice recorded = device(devId);
    if (!m_isUndo)
        return m_written.differencesOf(devId, recorded.sent, held);
    QVector<MemberDifference> differences;
    for (auto sent = recorded.sent.begin(); sent != recorded.sent.end(); ++sent) {
        if (!held.contains(sent.key()))
            continue;
        const QJsonObject members = family.exchanges.at(sent.key()).membersOf(held.value(sent.key()));
        const auto changes = family.changesBy(sent.key(), recorded.before.value(sent.key()), *sent);
        for (const MemberChange &change : changes)
            if (members.value(change.member) != change.after)
                differences.append({change.exchange, change.member, change.after, members.value(change.member)});
    }
    return differences;
}

QHash<QString, QVector<MemberChange>> changesOf(const orda_journal::RunDetails &details)
{
    QHash<QString, QVector<MemberChange>> changes;
    const orda_batchCfg::CfgFamily *family = orda_batchCfg::Families::find(details.run.family);
    if (!family)
        return changes;
    for (const orda_journal::ExchangeRow &row : details.exchanges)
        if (isWrite(row, *family)) {
            const CfgExchange &exchange = family->exchanges.at(row.exchange);
            changes[row.devId] +=
                family->changesBy(row.exchange, exchange.heldIn(objectOf(row.before)), sentIn(row, exchange));
        }
    // Their writes were recorded and then did not leave.
    for (const orda_journal::DeviceRow &device : details.devices)
        if (device.outcome == Outcome::Stopped || device.outcome == Outcome::NotReached)
            changes.remove(device.devId);
    return changes;
}

} // namespace orda_engine
