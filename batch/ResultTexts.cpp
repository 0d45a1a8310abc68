#include "batch/ResultTexts.h"

#include "engine/ChangeTexts.h"

#include <vms_client_sdk/ForeignText.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace orda_batch {

using orda_journal::Outcome;

namespace {

QJsonValue orNull(const QJsonValue &value)
{
    return value.isUndefined() ? QJsonValue(QJsonValue::Null) : value;
}

} // namespace

QString ResultTexts::outcome(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Done:
        return tr("done");
    case Outcome::Unchanged:
        return tr("unchanged");
    case Outcome::Failed:
        return tr("failed");
    case Outcome::Unknown:
        return tr("unknown");
    case Outcome::Stopped:
        return tr("stopped");
    case Outcome::PartlyWritten:
        return tr("partly written");
    case Outcome::NotReached:
        return tr("not reached");
    case Outcome::Differs:
        return tr("differs");
    }
    return {};
}

QString ResultTexts::counted(int count, Outcome outcome)
{
    return tr("%1 %2", "a number of devices and their outcome, as in \"3 failed\"")
        .arg(QString::number(count), ResultTexts::outcome(outcome));
}

QString ResultTexts::changes(const QVector<Change> &changes, const QString &separator)
{
    QStringList parts;
    for (const Change &change : changes)
        parts.append(QStringLiteral("%1: %2 -> %3")
                         .arg(change.key, orda_engine::shortened(orda_engine::textOf(change.before)),
                              orda_engine::shortened(orda_engine::textOf(change.after))));
    return parts.join(separator);
}

QJsonArray ResultTexts::toJson(const QVector<Change> &changes)
{
    QJsonArray list;
    for (const Change &change : changes)
        list.append(QJsonObject{{QStringLiteral("key"), change.key},
                                {QStringLiteral("before"), orNull(change.before)},
                                {QStringLiteral("after"), orNull(change.after)}});
    return list;
}

QJsonObject ResultTexts::toJson(const QString &runId, const DeviceResult &result)
{
    return {{QStringLiteral("run"), runId.isEmpty() ? QJsonValue() : QJsonValue(runId)},
            {QStringLiteral("device"), result.devId},
            {QStringLiteral("serialNumber"), result.serialNumber},
            {QStringLiteral("name"), result.name},
            {QStringLiteral("ip"), result.ip},
            {QStringLiteral("outcome"), orda_journal::outcomeName(result.outcome)},
            {QStringLiteral("code"), result.code},
            {QStringLiteral("message"), result.message},
            {QStringLiteral("changes"), toJson(result.changes)}};
}

QStringList ResultTexts::csvHead()
{
    return {QStringLiteral("device"),  QStringLiteral("serialNumber"), QStringLiteral("name"),
            QStringLiteral("ip"),      QStringLiteral("outcome"),      QStringLiteral("code"),
            QStringLiteral("message"), QStringLiteral("changes")};
}

QByteArray ResultTexts::jsonLine(const QJsonObject &object)
{
    QString text = QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    if (vms_sdk::holdsInvisible(text)) {
        QString safe;
        for (const QChar unit : qAsConst(text))
            safe += unit.isSurrogate() ? QString(unit) : vms_sdk::escaped(unit);
        text = safe;
    }
    return text.toUtf8() + '\n';
}

} // namespace orda_batch
