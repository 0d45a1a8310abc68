#include "batch/HistoryTexts.h"

#include "batch/ResultTexts.h"
#include "batch/TextTable.h"
#include "engine/RecordedRun.h"
#include "programs/Csv.h"

#include <families/Families.h>
#include <vms_client_sdk/ForeignText.h>

#include <QDateTime>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace orda_batch {

using orda_journal::DeviceRow;
using orda_journal::Outcome;
using orda_journal::outcomeName;
using orda_journal::RunDetails;
using orda_journal::RunRow;
using orda_programs::csvCell;
using orda_programs::csvLine;

namespace {

using Changes = QHash<QString, QVector<Change>>; // by device

constexpr int shortId = 8; // characters that tell runs apart well enough for people

QString localTime(qint64 time)
{
    return QDateTime::fromMSecsSinceEpoch(time).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

QJsonValue utcTime(qint64 time)
{
    return time == 0 ? QJsonValue() : QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODateWithMs);
}

QByteArray tableOf(const QStringList &head, const QVector<QStringList> &rows)
{
    QVector<QStringList> safe;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (const QString &cell : row)
            cells.append(vms_sdk::escaped(cell));
        safe.append(cells);
    }
    return alignedTable(head, safe).toUtf8();
}

// As results have them.
Changes changesOf(const RunDetails &details)
{
    Changes changes;
    const auto found = orda_engine::changesOf(details);
    for (auto device = found.begin(); device != found.end(); ++device)
        for (const orda_engine::MemberChange &change : *device)
            changes[device.key()].append({change.member, change.before, change.after});
    return changes;
}

QJsonObject toJson(const RunRow &run)
{
    QJsonObject outcomes;
    for (auto count = run.counts.cbegin(); count != run.counts.cend(); ++count)
        outcomes.insert(outcomeName(count.key()), count.value());
    return {{QStringLiteral("run"), run.id},
            {QStringLiteral("began"), utcTime(run.began)},
            {QStringLiteral("ended"), utcTime(run.ended)},
            {QStringLiteral("underWay"), run.isUnderWay},
            {QStringLiteral("kind"), run.kind},
            {QStringLiteral("family"), run.family},
            {QStringLiteral("undoes"), run.undoes.isEmpty() ? QJsonValue() : QJsonValue(run.undoes)},
            {QStringLiteral("program"), run.program},
            {QStringLiteral("devices"), run.devices},
            {QStringLiteral("outcomes"), outcomes},
            {QStringLiteral("values"), run.values}};
}

QByteArray jsonLines(const RunDetails &details)
{
    const Changes changes = changesOf(details);
    QByteArray lines;
    for (const DeviceRow &device : details.devices) {
        DeviceResult result{
            device.devId, device.serialNumber, device.name, device.ip, device.outcome.value_or(Outcome::Done),
            device.code,  device.message};
        result.changes = changes.value(device.devId);
        QJsonObject line = ResultTexts::toJson(details.run.id, result);
        if (!device.outcome)
            line.insert(QStringLiteral("outcome"), QJsonValue());
        lines += ResultTexts::jsonLine(line);
    }
    return lines
         + ResultTexts::jsonLine(
               {{QStringLiteral("run"), details.run.id}, {QStringLiteral("summary"), toJson(details.run)}});
}

QByteArray csvLines(const RunDetails &details)
{
    const Changes changes = changesOf(details);
    QString lines = csvLine(ResultTexts::csvHead());
    for (const DeviceRow &device : details.devices) {
        const QString outcome = device.outcome ? outcomeName(*device.outcome) : QString();
        const QString code = QString::number(device.code); // a negative number is no formula
        const QString changed = ResultTexts::changes(changes.value(device.devId), QStringLiteral("; "));
        const QStringList cells{csvCell(device.devId),
                                csvCell(device.serialNumber),
                                csvCell(device.name),
                                csvCell(device.ip),
                                outcome,
                                code,
                                csvCell(device.message),
                                csvCell(changed)};
        lines += cells.join(QLatin1Char(',')) + QLatin1String("\r\n");
    }
    return lines.toUtf8();
}

/// "3 failed" in every language.
QString countedName(int count, Outcome outcome)
{
    return QStringLiteral("%1 %2").arg(QString::number(count), outcomeName(outcome));
}

QByteArray csvList(const QVector<RunRow> &runs)
{
    QString lines =
        csvLine({QStringLiteral("run"), QStringLiteral("began"), QStringLiteral("kind"), QStringLiteral("family"),
                 QStringLiteral("devices"), QStringLiteral("outcomes"), QStringLiteral("program")});
    for (const RunRow &run : runs)
        lines += csvLine({run.id, localTime(run.began), run.kind, run.family, QString::number(run.devices),
                          HistoryTexts::outcomes(run, countedName), run.program});
    return lines.toUtf8();
}

} // namespace

QByteArray HistoryTexts::list(const QVector<RunRow> &runs, Format format)
{
    if (format == Format::Csv)
        return csvList(runs);
    QByteArray lines;
    QVector<QStringList> rows;
    for (const RunRow &run : runs) {
        if (format == Format::Json)
            lines += ResultTexts::jsonLine(toJson(run));
        rows.append({run.id.left(shortId), localTime(run.began), run.kind, run.family, QString::number(run.devices),
                     outcomes(run, ResultTexts::counted), run.program});
    }
    return format == Format::Json
             ? lines
             : tableOf({tr("Run"), tr("Began"), tr("Kind"), tr("Family"), tr("Devices"), tr("Outcomes"), tr("Program")},
                       rows);
}

QByteArray HistoryTexts::run(const RunDetails &details, Format format)
{
    if (format == Format::Json)
        return jsonLines(details);
    if (format == Format::Csv)
        return csvLines(details);
    const RunRow &run = details.run;
    QVector<QStringList> about{{tr("Kind"), run.kind}, {tr("Family"), run.family}};
    if (!run.undoes.isEmpty())
        about.append({tr("Undoes"), run.undoes});
    about.append({tr("Began"), localTime(run.began)});
    if (run.ended != 0)
        about.append({tr("Ended"), localTime(run.ended)});
    about += {{tr("Program"), run.program},
              {tr("Values"), QString::fromUtf8(QJsonDocument(run.values).toJson(QJsonDocument::Compact))},
              {tr("Outcomes"), outcomes(run, ResultTexts::counted)}};
    const Changes changes = changesOf(details);
    QVector<QStringList> rows;
    for (const DeviceRow &device : details.devices)
        rows.append({device.devId, device.name, device.ip,
                     device.outcome ? ResultTexts::outcome(*device.outcome) : QString(), device.message,
                     ResultTexts::changes(changes.value(device.devId), QStringLiteral(", "))});
    return tableOf({tr("Run"), run.id}, about) + '\n'
         + tableOf({tr("Device"), tr("Name"), tr("IP address"), tr("Outcome"), tr("Message"), tr("Changes")}, rows);
}

QString HistoryTexts::outcomes(const RunRow &run, QString (*counted)(int, Outcome))
{
    if (run.ended == 0)
        return run.isUnderWay ? tr("under way") : tr("ended with its program");
    QStringList counts;
    for (auto count = run.counts.cbegin(); count != run.counts.cend(); ++count)
        counts.append(counted(count.value(), count.key()));
    return counts.join(QLatin1String(", "));
}

} // namespace orda_batch
