#include "journal/RunRows.h"

#include "journal/HistoryFile.h"
#include "journal/HistoryUpkeep.h"
#include "journal/Logging.h"

#include <QJsonDocument>

namespace orda_journal {

RunRows::RunRows(HistoryFile *file)
    : m_file(file)
    , m_putExchange(file->prepare(QStringLiteral(
          "INSERT INTO exchanges (device, exchange, before, sent, after, taken) VALUES (?, ?, ?, ?, ?, ?) "
          "ON CONFLICT (device, exchange) DO UPDATE SET "
          "before = iif(excluded.before = '', before, excluded.before), "
          "sent = iif(excluded.sent = '', sent, excluded.sent), "
          "after = iif(excluded.after = '', after, excluded.after), "
          "taken = iif(excluded.taken = '', taken, excluded.taken)")))
    , m_putDevice(
          file->prepare(QStringLiteral("UPDATE devices SET outcome = ?, code = ?, message = ? WHERE number = ?")))
    , m_putLate(file->prepare(QStringLiteral("UPDATE devices SET late = ? WHERE number = ?")))
{
}

bool RunRows::write(const RunBegin &begin)
{
    const RunStart &run = begin.start;
    QSqlQuery query = m_file->prepare(QStringLiteral(
        "INSERT INTO runs (number, id, family, kind, undoes, parameters, program, began, devices) VALUES "
        "(CASE WHEN ? THEN (SELECT min(0, ifnull(min(number), 0)) - 1 FROM runs) END, "
        "?, ?, ?, ?, ?, ?, ?, ?)"));
    if (!m_file->run(query, begin.isFromElsewhere, run.id, run.family, run.kind, run.undoes, jsonText(run.values),
                     begin.program, begin.began, begin.devices.size()))
        return false;
    m_number = query.lastInsertId().toLongLong();
    query = m_file->prepare(
        QStringLiteral("INSERT INTO devices (run, id, name, serialnumber, ip, parameters) VALUES (?, ?, ?, ?, ?, ?)"));
    m_numbers.reserve(begin.devices.size());
    for (const DeviceRow &device : begin.devices) {
        if (!m_file->run(query, m_number, device.devId, device.name, device.serialNumber, device.ip,
                         device.ownValues.isEmpty() ? QString() : jsonText(device.ownValues)))
            return false;
        m_numbers.insert(device.devId, query.lastInsertId().toLongLong());
    }
    return true;
}

bool RunRows::write(const ExchangeRow &row)
{
    const qint64 device = numberOf(row.devId);
    return device == 0 || m_file->run(m_putExchange, device, row.exchange, row.before, row.sent, row.after, row.taken);
}

bool RunRows::write(const DeviceRow &row)
{
    const qint64 device = numberOf(row.devId);
    if (device == 0)
        return true;
    if (row.outcome && !m_hasEnded
        && !m_file->run(m_putDevice, outcomeName(*row.outcome), row.code, row.message, device))
        return false;
    return row.late.isEmpty() || m_file->run(m_putLate, row.late, device);
}

bool RunRows::write(const RunEnd &end)
{
    if (m_hasEnded)
        return true;
    m_hasEnded = true;
    return finishRun(m_file, m_number, end.ended);
}

qint64 RunRows::numberOf(const QString &devId) const
{
    const qint64 number = m_numbers.value(devId);
    if (number == 0)
        qCWarning(logJournal).noquote() << "not among the devices of the run:" << devId;
    return number;
}

} // namespace orda_journal
