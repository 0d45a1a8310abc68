#include "journal/HistoryArchive.h"

#include "journal/HistoryFile.h"
#include "journal/HistoryUpkeep.h"
#include "journal/RunRecorder.h"
#include "journal/RunRows.h"

#include <vms_client_sdk/CheckedJson.h>

#include <QDateTime>
#include <QJsonArray>
#include <QSet>
#include <QUuid>

#include <limits>

namespace orda_journal {

namespace {

// What is written out has this in its member "format". Another shape gets another number.
QString formatName()
{
    return QStringLiteral("orda-run-1");
}

QString timeText(qint64 time)
{
    return QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODateWithMs);
}

QJsonObject toJson(const ExchangeRow &row)
{
    QJsonObject exchange{{QStringLiteral("exchange"), row.exchange},
                         {QStringLiteral("before"), row.before},
                         {QStringLiteral("sent"), row.sent},
                         {QStringLiteral("after"), row.after}};
    if (!row.taken.isEmpty()) // most devices do not say it
        exchange.insert(QStringLiteral("taken"), row.taken);
    return exchange;
}

QJsonObject toJson(const DeviceRow &row, const QJsonArray &exchanges)
{
    return {{QStringLiteral("device"), row.devId},
            {QStringLiteral("name"), row.name},
            {QStringLiteral("serialNumber"), row.serialNumber},
            {QStringLiteral("ip"), row.ip},
            {QStringLiteral("ownValues"), row.ownValues},
            {QStringLiteral("outcome"), row.outcome ? QJsonValue(outcomeName(*row.outcome)) : QJsonValue()},
            {QStringLiteral("code"), row.code},
            {QStringLiteral("message"), row.message},
            {QStringLiteral("late"), row.late},
            {QStringLiteral("exchanges"), exchanges}};
}

/// An object of a file, of which each member must be there and no other may be. Keeps the first fault.
class Entry : public vms_sdk::CheckedEntry
{
    Q_DECLARE_TR_FUNCTIONS(orda_journal::HistoryArchive)

public:
    explicit Entry(const QJsonObject &fields)
        : CheckedEntry({}, fields)
    {
    }

    QString neededText(const QString &key) { return has(key) ? text(key) : QString(); }

    QString filledText(const QString &key)
    {
        QString read = neededText(key);
        if (read.isEmpty())
            fail(key, tr("must not be empty"));
        return read;
    }

    QString uuid(const QString &key)
    {
        QString read = neededText(key);
        if (QUuid::fromString(read).isNull() || QUuid::fromString(read).toString(QUuid::WithoutBraces) != read)
            fail(key, tr("must be a UUID such as 6f9c1c9e-8a4b-4f6e-9d57-0c1d2e3f4a5b"));
        return read;
    }

    int number(const QString &key, int least)
    {
        return has(key) ? wholeNumber(key, least, std::numeric_limits<int>::max(), 0) : 0;
    }

    QJsonObject object(const QString &key)
    {
        if (has(key) && !value(key).isObject())
            fail(key, tr("must be an object"));
        return value(key).toObject();
    }

    /// In milliseconds since the epoch.
    qint64 time(const QString &key)
    {
        const QDateTime read = QDateTime::fromString(value(key).toString(), Qt::ISODateWithMs);
        if (!read.isValid() || read.timeSpec() != Qt::UTC || read.toMSecsSinceEpoch() <= 0)
            fail(key, tr("must be a time in UTC such as 2026-02-28T13:45:00.000Z"));
        return read.toMSecsSinceEpoch();
    }

    template <typename ReadEntry>
    void readList(const QString &key, ReadEntry readEntry)
    {
        if (!value(key).isArray())
            return fail(key, tr("must be a list of objects"));
        const QJsonArray list = value(key).toArray();
        for (int i = 0; i < list.size() && fault().isEmpty(); ++i) {
            const QString place = QStringLiteral("%1[%2]").arg(key).arg(i);
            if (!list.at(i).isObject())
                return fail(place, tr("must be an object"));
            Entry entry(list.at(i).toObject());
            readEntry(entry);
            entry.refuseUnknown();
            if (!entry.fault().isEmpty())
                fail(place, entry.fault());
        }
    }

    void refuseUnknown()
    {
        const QStringList unknown = unknownKeys();
        if (!unknown.isEmpty())
            fail(unknown.constFirst(), tr("is not known and would be lost"));
    }

private:
    bool has(const QString &key)
    {
        const bool isThere = !value(key).isUndefined();
        if (!isThere)
            fail(key, tr("must be there"));
        return isThere;
    }
};

ExchangeRow exchangeFrom(Entry &entry, const QString &devId, QSet<int> *known)
{
    ExchangeRow row;
    row.devId = devId;
    row.exchange = entry.number(QStringLiteral("exchange"), 0);
    row.before = entry.neededText(QStringLiteral("before"));
    row.sent = entry.neededText(QStringLiteral("sent"));
    row.after = entry.neededText(QStringLiteral("after"));
    row.taken = entry.text(QStringLiteral("taken"));
    if (known->contains(row.exchange))
        entry.fail(QStringLiteral("exchange"), Entry::tr("must not be there twice for one device"));
    known->insert(row.exchange);
    return row;
}

DeviceRow deviceFrom(Entry &entry, QVector<ExchangeRow> *exchanges)
{
    DeviceRow row;
    row.devId = entry.filledText(QStringLiteral("device"));
    row.name = entry.neededText(QStringLiteral("name"));
    row.serialNumber = entry.neededText(QStringLiteral("serialNumber"));
    row.ip = entry.neededText(QStringLiteral("ip"));
    row.ownValues = entry.object(QStringLiteral("ownValues"));
    row.outcome = Outcome(entry.choice(QStringLiteral("outcome"), outcomeNames(), -1));
    row.code = entry.number(QStringLiteral("code"), std::numeric_limits<int>::min());
    row.message = entry.neededText(QStringLiteral("message"));
    row.late = entry.neededText(QStringLiteral("late"));
    QSet<int> known;
    entry.readList(QStringLiteral("exchanges"),
                   [&](Entry &exchange) { exchanges->append(exchangeFrom(exchange, row.devId, &known)); });
    return row;
}

RunRow runFrom(Entry &entry)
{
    RunRow run;
    run.id = entry.uuid(QStringLiteral("run"));
    run.family = entry.filledText(QStringLiteral("family"));
    const QStringList kinds{QStringLiteral("apply"), QStringLiteral("undo")};
    run.kind = kinds.value(entry.choice(QStringLiteral("kind"), kinds, -1));
    const QString undoes = QStringLiteral("undoes");
    if (run.kind == kinds.constLast())
        run.undoes = entry.uuid(undoes);
    else if (!entry.value(undoes).isNull())
        entry.fail(undoes, Entry::tr("must be null, for the run is no undo"));
    run.values = entry.object(QStringLiteral("values"));
    run.program = entry.neededText(QStringLiteral("program"));
    run.began = entry.time(QStringLiteral("began"));
    const QString ended = QStringLiteral("ended");
    if (entry.value(ended).isNull())
        entry.fail(ended, Entry::tr("must be a time: a run that has not ended cannot be taken in"));
    run.ended = entry.time(ended);
    if (run.ended < run.began)
        entry.fail(ended, Entry::tr("must not be before \"began\""));
    return run;
}

bool addRows(HistoryFile *file, const RunDetails &run, bool *isKnown)
{
    *isKnown = false;
    QSqlQuery query = file->prepare(QStringLiteral("SELECT 1 FROM runs WHERE id = ?"));
    if (!file->run(query, run.run.id))
        return false;
    *isKnown = file->next(query);
    query.finish();
    if (*isKnown)
        return true;
    RunRows rows(file);
    RunBegin begin{{}, run.devices, run.run.program, run.run.began, true};
    begin.start.id = run.run.id;
    begin.start.family = run.run.family;
    begin.start.kind = run.run.kind;
    begin.start.undoes = run.run.undoes;
    begin.start.values = run.run.values;
    bool isWritten = file->fault() == HistoryFile::NoFault && rows.write(begin);
    for (auto row = run.exchanges.cbegin(); isWritten && row != run.exchanges.cend(); ++row)
        isWritten = rows.write(*row);
    for (auto row = run.devices.cbegin(); isWritten && row != run.devices.cend(); ++row)
        isWritten = rows.write(*row);
    return isWritten && rows.write(RunEnd{run.run.ended});
}

bool addTo(HistoryFile *file, const RunDetails &run, bool *isKnown)
{
    if (!file->begin())
        return false;
    if (addRows(file, run, isKnown) && file->commit())
        return true;
    file->rollBack();
    return false;
}

QString whyNotWritten(const HistoryFile &file)
{
    return RunRecorder::tr("The history cannot be written. %1").arg(file.error());
}

} // namespace

QJsonObject HistoryArchive::toJson(const RunDetails &run)
{
    QHash<QString, QJsonArray> exchanges; // by device
    for (const ExchangeRow &row : run.exchanges)
        exchanges[row.devId].append(orda_journal::toJson(row));
    QJsonArray devices;
    for (const DeviceRow &row : run.devices)
        devices.append(orda_journal::toJson(row, exchanges.value(row.devId)));
    const RunRow &row = run.run;
    return {{QStringLiteral("format"), formatName()},
            {QStringLiteral("run"), row.id},
            {QStringLiteral("family"), row.family},
            {QStringLiteral("kind"), row.kind},
            {QStringLiteral("undoes"), row.undoes.isEmpty() ? QJsonValue() : QJsonValue(row.undoes)},
            {QStringLiteral("values"), row.values},
            {QStringLiteral("program"), row.program},
            {QStringLiteral("began"), timeText(row.began)},
            {QStringLiteral("ended"), row.ended == 0 ? QJsonValue() : QJsonValue(timeText(row.ended))},
            {QStringLiteral("devices"), devices}};
}

RunDetails HistoryArchive::fromJson(const QJsonObject &object, QString *error)
{
    RunDetails details;
    Entry entry(object);
    const QString format = QStringLiteral("format");
    if (entry.value(format) != formatName()) {
        entry.fail(format, tr("must be \"%1\", as in a run that was written out").arg(formatName()));
        *error = entry.fault();
        return details;
    }
    details.run = runFrom(entry);
    QSet<QString> known;
    entry.readList(QStringLiteral("devices"), [&](Entry &device) {
        details.devices.append(deviceFrom(device, &details.exchanges));
        const DeviceRow &row = details.devices.constLast();
        if (known.contains(row.devId))
            device.fail(QStringLiteral("device"), tr("must not be there twice"));
        known.insert(row.devId);
        ++details.run.counts[row.outcome.value()];
    });
    details.run.devices = details.devices.size();
    entry.refuseUnknown();
    *error = entry.fault();
    return details;
}

HistoryArchive::HistoryArchive(const HistoryOptions &options)
    : m_options(options)
{
}

QString HistoryArchive::add(const RunDetails &run, bool *isKnown)
{
    *isKnown = false;
    if (run.run.ended == 0)
        return tr("The run has not ended.");
    HistoryFile file(m_options);
    const bool isAdded = file.openToWrite(nullptr) && settleRuns(&file) && addTo(&file, run, isKnown);
    return isAdded ? QString() : whyNotWritten(file);
}

QString HistoryArchive::prune(int *removed)
{
    *removed = 0;
    HistoryFile file(m_options);
    if (!identityOf(m_options.path))
        return {}; // there is no history yet, and this is no reason to begin one
    const bool isPruned = file.openToWrite(nullptr) && settleRuns(&file) && pruneRuns(&file, removed);
    return isPruned ? QString() : whyNotWritten(file);
}

} // namespace orda_journal
