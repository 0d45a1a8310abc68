#include "engine/RecordedRun.h"

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

} // namespace

RecordedRun::RecordedRun(const orda_journal::RunDetails &details)
    : m_id(details.run.id)
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
    if (row.before.isEmpty() || row.sent.isEmpty() || row.exchange < 0
        || row.exchange >= m_written.family->exchanges.size())
        return; // nothing has left
    const CfgExchange &exchange = m_written.family->exchanges.at(row.exchange);
    const QJsonObject before = exchange.heldIn(objectOf(row.before));
    const QJsonObject sent = objectOf(row.sent).value(QLatin1String("param")).toObject();
    // What the run did not ask for it only repeated. Where that differs, somebody else changed it between two tries of
    // the run, and an undo must not take it back.
    const QJsonObject asked = exchange.askedBy(m_written.valuesOf(row.devId));
    QJsonObject repeated = exchange.settings(sent);
    for (auto it = repeated.begin(); it != repeated.end();)
        it = asked.contains(exchange.nameInValues(it.key())) ? repeated.erase(it) : std::next(it);
    RecordedDevice &device = m_devices[row.devId];
    device.before.insert(row.exchange, exchange.withMembers(before, repeated));
    device.sent.insert(row.exchange, sent);
}

} // namespace orda_engine
