#include "journal/HistoryReader.h"

#include "journal/HistoryFile.h"

#include <QJsonDocument>

namespace orda_journal {

namespace {

QJsonObject objectOf(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

RunRow runOf(const QSqlQuery &query)
{
    const auto text = [&query](int column) { return query.value(column).toString(); };
    RunRow run{text(0), text(1), text(2), text(3), objectOf(text(4)), text(5)};
    run.began = query.value(6).toLongLong();
    run.ended = query.value(7).toLongLong();
    run.devices = query.value(8).toInt();
    const QJsonObject counts = objectOf(text(9));
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        bool isKnown = false;
        const Outcome outcome = outcomeFromName(count.key(), &isKnown);
        if (isKnown)
            run.counts.insert(outcome, count.value().toInt());
    }
    return run;
}

DeviceRow deviceOf(const QSqlQuery &query)
{
    const auto text = [&query](int column) { return query.value(column).toString(); };
    bool isKnown = false;
    const Outcome outcome = outcomeFromName(text(1), &isKnown);
    return {text(0),
            isKnown ? std::optional(outcome) : std::nullopt,
            query.value(2).toInt(),
            text(3),
            text(4),
            text(5),
            text(6),
            text(7),
            objectOf(text(8))};
}

} // namespace

class HistoryReader::Connection
{
public:
    explicit Connection(const HistoryOptions &options)
        : file(options)
    {
    }

    /// @return whether there is something to read; no history yet is no error
    bool isReady()
    {
        file.clearError();
        return (file.isOpen() && file.isInPlace()) || (file.openToRead() && file.isOpen());
    }

    QVector<RunRow> runs(const QString &condition, const QVariant &value)
    {
        QVector<RunRow> found;
        QSqlQuery query = file.prepare(
            QStringLiteral(
                "SELECT id, family, kind, undoes, parameters, program, began, ended, devices, outcomes FROM runs ")
            + condition);
        if (file.run(query, value))
            while (file.next(query))
                found.append(runOf(query));
        for (RunRow &run : found)
            run.isUnderWay = run.ended == 0 && FileLock::isTaken(file.lockPath(run.id));
        return found;
    }

    void readDevices(RunDetails *details)
    {
        QSqlQuery query = file.prepare(
            QStringLiteral("SELECT id, outcome, code, message, late, name, serialnumber, ip, parameters FROM devices "
                           "WHERE run = (SELECT number FROM runs WHERE id = ?) ORDER BY number"));
        if (file.run(query, details->run.id))
            while (file.next(query))
                details->devices.append(deviceOf(query));
    }

    void readExchanges(RunDetails *details)
    {
        QSqlQuery query = file.prepare(QStringLiteral(
            "SELECT devices.id, exchange, before, sent, after, taken FROM devices JOIN exchanges ON device = number "
            "WHERE run = (SELECT number FROM runs WHERE id = ?) ORDER BY number, exchange"));
        const auto text = [&query](int column) { return query.value(column).toString(); };
        if (file.run(query, details->run.id))
            while (file.next(query))
                details->exchanges.append({text(0), query.value(1).toInt(), text(2), text(3), text(4), text(5)});
    }

    HistoryFile file;
};

HistoryReader::HistoryReader(const HistoryOptions &options)
    : m_connection(std::make_unique<Connection>(options))
{
}

HistoryReader::~HistoryReader() = default;

QString HistoryReader::error() const
{
    const HistoryFile &file = m_connection->file;
    return file.fault() == HistoryFile::NoFault ? QString()
                                                : HistoryFile::tr("The history cannot be read. %1").arg(file.error());
}

QVector<RunRow> HistoryReader::runs(int limit)
{
    if (!m_connection->isReady())
        return {};
    return m_connection->runs(QStringLiteral("ORDER BY began DESC, number DESC LIMIT ?"), limit > 0 ? limit : -1);
}

QStringList HistoryReader::findRuns(const QString &idOrPrefix)
{
    if (idOrPrefix.isEmpty() || !m_connection->isReady())
        return {};
    QStringList ids;
    const QVector<RunRow> found =
        idOrPrefix == QLatin1String("last")
            ? m_connection->runs(QStringLiteral("ORDER BY number DESC LIMIT ?"), 1) // a clock may have been put back
            : m_connection->runs(QStringLiteral("WHERE instr(id, ?) = 1 ORDER BY began DESC, number DESC LIMIT 2"),
                                 idOrPrefix);
    for (const RunRow &run : found)
        ids.append(run.id);
    return ids;
}

std::optional<RunDetails> HistoryReader::run(const QString &id)
{
    if (!m_connection->isReady())
        return std::nullopt;
    HistoryFile &file = m_connection->file;
    std::optional<RunDetails> details;
    if (!file.run(QStringLiteral("BEGIN"))) // all of it as it was at one moment
        return std::nullopt;
    const QVector<RunRow> found = m_connection->runs(QStringLiteral("WHERE id = ?"), id);
    if (!found.isEmpty()) {
        details = RunDetails{found.constFirst()};
        m_connection->readDevices(&*details);
        m_connection->readExchanges(&*details);
    }
    file.rollBack();
    return file.fault() == HistoryFile::NoFault ? details : std::nullopt;
}

QVector<LatestOutcome> HistoryReader::latestOutcomes()
{
    if (!m_connection->isReady())
        return {};
    HistoryFile &file = m_connection->file;
    // Beside max() SQLite takes the other columns from the row that has it.
    QSqlQuery query = file.prepare(
        QStringLiteral("SELECT devices.id, serialnumber, outcome, runs.id, family, max(began) FROM devices "
                       "JOIN runs ON runs.number = run WHERE outcome <> '' GROUP BY devices.id, serialnumber"));
    QVector<LatestOutcome> latest;
    if (!file.run(query))
        return {};
    while (file.next(query)) {
        const auto text = [&query](int column) { return query.value(column).toString(); };
        bool isKnown = false;
        LatestOutcome outcome;
        outcome.device.devId = text(0);
        outcome.device.serialNumber = text(1);
        outcome.device.outcome = outcomeFromName(text(2), &isKnown);
        outcome.runId = text(3);
        outcome.family = text(4);
        outcome.began = query.value(5).toLongLong();
        if (isKnown)
            latest.append(outcome);
    }
    return latest;
}

} // namespace orda_journal
