#include "batch/HistoryTexts.h"

#include "batch/TextTable.h"
#include "engine/ChangeTexts.h"
#include "programs/Csv.h"

#include <families/Families.h>
#include <run/CfgFamily.h>
#include <vms_client_sdk/ForeignText.h>

#include <QDateTime>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace orda_batch {

using orda_journal::DeviceRow;
using orda_journal::ExchangeRow;
using orda_journal::Outcome;
using orda_journal::outcomeName;
using orda_journal::RunDetails;
using orda_journal::RunRow;

namespace {

using Changes = QHash<QString, QVector<Change>>; // by device

constexpr int shortId = 8; // characters that tell runs apart well enough for people

QJsonObject objectOf(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

QString textOf(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString lineOf(const QJsonObject &object)
{
    return textOf(object) + QLatin1Char('\n');
}

QString localTime(qint64 time)
{
    return QDateTime::fromMSecsSinceEpoch(time).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

QJsonValue utcTime(qint64 time)
{
    return time == 0 ? QJsonValue() : QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODateWithMs);
}

QString tableOf(const QStringList &head, const QVector<QStringList> &rows)
{
    QVector<QStringList> safe;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (const QString &cell : row)
            cells.append(vms_sdk::escaped(cell));
        safe.append(cells);
    }
    return alignedTable(head, safe);
}

QString csvOf(const QStringList &head, const QVector<QStringList> &rows)
{
    QString text = orda_programs::csvLine(head);
    for (const QStringList &row : rows)
        text += orda_programs::csvLine(row);
    return text;
}

// What a run changed, or was to change where the device did not take it.
Changes changesOf(const RunDetails &details)
{
    Changes changes;
    const orda_batchCfg::CfgFamily *family = orda_batchCfg::Families::find(details.run.family);
    if (!family)
        return changes;
    for (const ExchangeRow &row : details.exchanges) {
        if (row.before.isEmpty() || row.sent.isEmpty() || row.exchange >= family->exchanges.size())
            continue;
        const QJsonObject held = family->exchanges.at(row.exchange).heldIn(objectOf(row.before));
        const QJsonObject sent = objectOf(row.sent).value(QLatin1String("param")).toObject();
        const auto found = family->changesBy(row.exchange, held, sent);
        for (const orda_batchCfg::MemberChange &change : found)
            changes[row.devId].append({change.member, change.before, change.after});
    }
    // Their writes were recorded and then did not leave.
    for (const DeviceRow &device : details.devices)
        if (device.outcome == Outcome::Stopped || device.outcome == Outcome::NotReached)
            changes.remove(device.devId);
    return changes;
}

QString textOf(const QVector<Change> &changes)
{
    QStringList texts;
    for (const Change &change : changes)
        texts.append(QStringLiteral("%1: %2 -> %3")
                         .arg(change.key, orda_engine::textOf(change.before), orda_engine::textOf(change.after)));
    return texts.join(QLatin1String(", "));
}

// Null stands for a member that the device does not have, so that each change has the same members.
QJsonArray toJson(const QVector<Change> &changes)
{
    QJsonArray list;
    for (const Change &change : changes)
        list.append(QJsonObject{
            {QStringLiteral("key"), change.key},
            {QStringLiteral("before"), change.before.isUndefined() ? QJsonValue() : change.before},
            {QStringLiteral("after"), change.after},
        });
    return list;
}

QString outcomeOf(const DeviceRow &device)
{
    return device.outcome ? outcomeName(*device.outcome) : QString();
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

QString jsonLines(const RunDetails &details)
{
    const Changes changes = changesOf(details);
    QString lines;
    for (const DeviceRow &device : details.devices) {
        lines += lineOf({{QStringLiteral("run"), details.run.id},
                         {QStringLiteral("device"), device.devId},
                         {QStringLiteral("serialNumber"), device.serialNumber},
                         {QStringLiteral("name"), device.name},
                         {QStringLiteral("ip"), device.ip},
                         {QStringLiteral("outcome"), device.outcome ? QJsonValue(outcomeOf(device)) : QJsonValue()},
                         {QStringLiteral("code"), device.code},
                         {QStringLiteral("message"), device.message},
                         {QStringLiteral("changes"), toJson(changes.value(device.devId))}});
    }
    return lines + lineOf({{QStringLiteral("run"), details.run.id}, {QStringLiteral("summary"), toJson(details.run)}});
}

// The columns of CSV files are called as the members of JSON, in every language: programs look for them.
QString csvLines(const RunDetails &details)
{
    const Changes changes = changesOf(details);
    QVector<QStringList> rows;
    for (const DeviceRow &device : details.devices)
        rows.append({device.devId, device.serialNumber, device.name, device.ip, outcomeOf(device),
                     QString::number(device.code), device.message, textOf(changes.value(device.devId))});
    return csvOf({QStringLiteral("device"), QStringLiteral("serialNumber"), QStringLiteral("name"),
                  QStringLiteral("ip"), QStringLiteral("outcome"), QStringLiteral("code"), QStringLiteral("message"),
                  QStringLiteral("changes")},
                 rows);
}

} // namespace

QString HistoryTexts::list(const QVector<RunRow> &runs, Format format)
{
    if (format == Format::Json) {
        QString lines;
        for (const RunRow &run : runs)
            lines += lineOf(toJson(run));
        return lines;
    }
    QVector<QStringList> rows;
    for (const RunRow &run : runs)
        rows.append({format == Format::Csv ? run.id : run.id.left(shortId), localTime(run.began), run.kind, run.family,
                     QString::number(run.devices), outcomes(run), run.program});
    if (format == Format::Csv)
        return csvOf({QStringLiteral("run"), QStringLiteral("began"), QStringLiteral("kind"), QStringLiteral("family"),
                      QStringLiteral("devices"), QStringLiteral("outcomes"), QStringLiteral("program")},
                     rows);
    return tableOf({tr("Run"), tr("Began"), tr("Kind"), tr("Family"), tr("Devices"), tr("Outcomes"), tr("Program")},
                   rows);
}

QString HistoryTexts::run(const RunDetails &details, Format format)
{
    if (format == Format::Json)
        return jsonLines(details);
    if (format == Format::Csv)
        return csvLines(details);
    const RunRow &run = details.run;
    QVector<QStringList> about{{tr("Kind"), run.kind}, {tr("Family"), run.family}};
    if (!run.undoes.isEmpty())
        about.append({tr("Undoes"), run.undoes});
    about += {{tr("Began"), localTime(run.began)},
              {tr("Ended"), run.ended == 0 ? QString() : localTime(run.ended)},
              {tr("Program"), run.program},
              {tr("Values"), textOf(run.values)},
              {tr("Outcomes"), outcomes(run)}};
    const Changes changes = changesOf(details);
    QVector<QStringList> rows;
    for (const DeviceRow &device : details.devices)
        rows.append({device.devId, device.name, device.ip, outcomeOf(device), device.message,
                     textOf(changes.value(device.devId))});
    return tableOf({tr("Run"), run.id}, about) + QLatin1Char('\n')
         + tableOf({tr("Device"), tr("Name"), tr("IP"), tr("Outcome"), tr("Message"), tr("Changes")}, rows);
}

QString HistoryTexts::outcomes(const RunRow &run)
{
    if (run.ended == 0)
        return run.isUnderWay ? tr("under way") : tr("ended with its program");
    QStringList counts;
    for (auto count = run.counts.cbegin(); count != run.counts.cend(); ++count)
        counts.append(QStringLiteral("%1 %2").arg(count.value()).arg(outcomeName(count.key())));
    return counts.join(QLatin1String(", "));
}

} // namespace orda_batch
