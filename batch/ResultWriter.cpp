#include "batch/ResultWriter.h"

#include "batch/OutputThread.h"
#include "batch/ResultTexts.h"
#include "batch/TextTable.h"
#include "engine/ChangeTexts.h"
#include "programs/Csv.h"
#include "run/ParamsCfgTask.h"

#include <vms_client_sdk/ForeignText.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>

namespace orda_batch {

using orda_journal::Outcome;

namespace {

constexpr int devicesShown = 5; // of those with the same message
constexpr int messagesShown = 20;
constexpr int usualName = 32; // columns: a longer one pushes what follows it
constexpr int firstValue = 3; // column of a reading's table
constexpr int runShown = 8; // of the characters of an id

constexpr std::array allOutcomes{Outcome::Done,    Outcome::Unchanged,     Outcome::Failed,     Outcome::Unknown,
                                 Outcome::Stopped, Outcome::PartlyWritten, Outcome::NotReached, Outcome::Differs};

const char *colorOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Done:
    case Outcome::Unchanged:
        break;
    case Outcome::NotReached:
    case Outcome::Stopped:
        return "\033[33m"; // yellow
    case Outcome::Failed:
    case Outcome::Unknown:
    case Outcome::PartlyWritten:
    case Outcome::Differs:
        return "\033[31m"; // red
    }
    return "";
}

} // namespace

ResultWriter::ResultWriter(OutputThread *output, Format format, bool hasColors)
    : m_output(output)
    , m_format(format)
    , m_hasColors(hasColors)
{
}

void ResultWriter::begin(const QList<vms_sdk::DevInfo> &devices, const QString &runId, const QStringList &valueColumns)
{
    m_runId = runId;
    m_valueColumns = valueColumns;
    if (m_format == Format::Table)
        beginTable(devices);
    if (m_format != Format::Csv)
        return;
    if (!m_output->isTerminal())
        m_output->write(QString(QChar(QChar::ByteOrderMark)).toUtf8()); // by which spreadsheets know UTF-8
    QStringList head = ResultTexts::csvHead();
    if (!m_valueColumns.isEmpty()) { // in place of code and changes
        head.removeAll(QStringLiteral("code"));
        head.removeAll(QStringLiteral("changes"));
        head += m_valueColumns;
    }
    for (QString &cell : head)
        cell = csvText(cell);
    writeCsv(head);
}

void ResultWriter::add(const DeviceResult &result)
{
    if (m_format == Format::Json) {
        m_output->write(ResultTexts::jsonLine(jsonOf(result)));
        return;
    }
    if (m_format == Format::Csv)
        writeCsv(csvCells(result));
    else
        addRow(tableCells(result), colorOf(result.outcome));
    if (result.outcome == Outcome::Done || result.outcome == Outcome::Unchanged || result.outcome == Outcome::Stopped)
        return;
    if (result.outcome == Outcome::Differs && result.message.isEmpty()) // would change, as its row tells
        return;
    Failure &failure = m_failures[result.message.isEmpty() ? ResultTexts::outcome(result.outcome) : result.message];
    if (++failure.count <= devicesShown)
        failure.devIds.append(result.devId);
}

void ResultWriter::end(const Summary &summary)
{
    if (m_format == Format::Json) {
        m_output->write(ResultTexts::jsonLine(jsonOf(summary)));
        return;
    }
    for (const Row &row : qAsConst(m_rows))
        writeRow(row);
    m_rows.clear();
    const QStringList lines = summaryLines(summary);
    for (const QString &line : lines)
        m_output->writeError(vms_sdk::escaped(line).toUtf8() + '\n');
}

QJsonValue ResultWriter::runOf(const QString &runId)
{
    return runId.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(runId);
}

QJsonObject ResultWriter::jsonOf(const DeviceResult &result) const
{
    QJsonObject object = ResultTexts::toJson(m_runId, result);
    if (result.outcome == Outcome::NotReached)
        object.insert(QStringLiteral("reason"), result.reason);
    if (!result.lacking.isEmpty())
        object.insert(QStringLiteral("lacking"), QJsonArray::fromStringList(result.lacking));
    if (!result.values.isEmpty())
        object.insert(QStringLiteral("values"), result.values);
    return object;
}

QJsonObject ResultWriter::jsonOf(const Summary &summary) const
{
    QJsonObject outcomes;
    for (const Outcome outcome : allOutcomes)
        if (const int count = summary.outcomes.value(outcome))
            outcomes.insert(orda_journal::outcomeName(outcome), count);
    QJsonObject object{{QStringLiteral("command"), summary.command}, {QStringLiteral("family"), summary.family},
                       {QStringLiteral("devices"), summary.devices}, {QStringLiteral("leftOut"), summary.leftOut},
                       {QStringLiteral("outcomes"), outcomes},       {QStringLiteral("exitCode"), summary.exitCode}};
    const auto insertText = [&object](const QString &key, const QString &text) {
        if (!text.isEmpty())
            object.insert(key, text);
    };
    insertText(QStringLiteral("undoes"), summary.undoes);
    insertText(QStringLiteral("stopped"), summary.stopped);
    insertText(QStringLiteral("error"), summary.error);
    return {{QStringLiteral("run"), runOf(summary.runId)}, {QStringLiteral("summary"), object}};
}

QString ResultWriter::csvText(const QString &text) const
{
    return orda_programs::csvCell(m_output->isTerminal() ? vms_sdk::escaped(text) : text);
}

void ResultWriter::writeCsv(const QStringList &cells)
{
    m_output->write((cells.join(QLatin1Char(',')) + QLatin1String("\r\n")).toUtf8());
}

QStringList ResultWriter::csvCells(const DeviceResult &result) const
{
    QStringList cells{csvText(result.devId), csvText(result.serialNumber), csvText(result.name), csvText(result.ip),
                      orda_journal::outcomeName(result.outcome)};
    if (m_valueColumns.isEmpty())
        return cells << QString::number(result.code) << csvText(withLacking(result.message, result))
                     << csvText(ResultTexts::changes(result.changes, QStringLiteral("; ")));
    cells.append(csvText(result.message));
    for (const QString &column : m_valueColumns) {
        const QJsonValue value = result.values.value(column);
        if (value.isUndefined())
            cells.append(QString());
        else if (value.isDouble())
            cells.append(orda_engine::textOf(value)); // a negative number is no formula
        else
            cells.append(csvText(orda_engine::plainTextOf(value)));
    }
    return cells;
}

void ResultWriter::beginTable(const QList<vms_sdk::DevInfo> &devices)
{
    QStringList head{tr("Device"), tr("Name"), tr("IP address")};
    if (m_valueColumns.isEmpty())
        head += {tr("Outcome"), tr("Message")};
    else
        head += m_valueColumns;
    m_widths.clear();
    for (const QString &cell : qAsConst(head))
        m_widths.append(shownWidth(cell));
    const auto widen = [this](int column, const QString &text) {
        m_widths[column] = std::max(m_widths.at(column), shownWidth(vms_sdk::escaped(text)));
    };
    for (const vms_sdk::DevInfo &device : devices) {
        widen(0, device.id);
        widen(1, device.name);
        widen(2, device.ip);
    }
    m_widths[1] = std::min(m_widths.at(1), usualName);
    if (m_valueColumns.isEmpty())
        for (const Outcome outcome : allOutcomes)
            widen(3, ResultTexts::outcome(outcome));
    addRow(head);
}

/// How wide columns of values are is known when there is the last of them.
void ResultWriter::addRow(const QStringList &cells, const char *color)
{
    QStringList safe;
    for (const QString &cell : cells)
        safe.append(vms_sdk::escaped(cell));
    if (m_valueColumns.isEmpty()) {
        writeRow({safe, color});
        return;
    }
    for (int column = firstValue; column < safe.size() && safe.size() == m_widths.size(); ++column)
        m_widths[column] = std::max(m_widths.at(column), shownWidth(safe.at(column)));
    m_rows.append({safe, color});
}

/// @param text of the device, to which is added what it lacks
QString ResultWriter::withLacking(const QString &text, const DeviceResult &result)
{
    if (result.lacking.isEmpty())
        return text;
    const QString lacking = tr("does not have %1").arg(result.lacking.join(QLatin1String(", ")));
    return text.isEmpty() ? lacking : text + QLatin1String("; ") + lacking;
}

QStringList ResultWriter::tableCells(const DeviceResult &result) const
{
    QStringList cells{result.devId, result.name, result.ip};
    if (m_valueColumns.isEmpty()) {
        const bool saysMore =
            !result.message.isEmpty() && result.message != orda_batchCfg::ParamsCfgTask::successText();
        const QString changes = ResultTexts::changes(result.changes, QStringLiteral(", "));
        return cells << ResultTexts::outcome(result.outcome)
                     << withLacking(saysMore || changes.isEmpty() ? result.message : changes, result);
    }
    if (result.outcome != Outcome::Done) // there are no values, but there is a reason
        return cells << tr("%1: %2").arg(ResultTexts::outcome(result.outcome), result.message);
    for (const QString &column : m_valueColumns)
        cells.append(orda_engine::plainTextOf(result.values.value(column)));
    return cells;
}

void ResultWriter::writeRow(const Row &row)
{
    const QByteArray line = alignedLine(row.cells, m_widths).toUtf8();
    const bool isColored = m_hasColors && *row.color;
    m_output->write(isColored ? row.color + line + "\033[0m\n" : line + '\n');
}

QStringList ResultWriter::summaryLines(const Summary &summary) const
{
    QString line = (summary.command + QLatin1Char(' ') + summary.family).trimmed() + QLatin1String(": ");
    line += summary.devices == 1 ? tr("1 device") : tr("%1 devices").arg(summary.devices);
    QStringList counts;
    int written = 0;
    for (const Outcome outcome : allOutcomes) {
        const int count = summary.outcomes.value(outcome);
        if (count > 0)
            counts.append(ResultTexts::counted(count, outcome));
        if (outcome == Outcome::Done || outcome == Outcome::Unknown || outcome == Outcome::PartlyWritten
            || outcome == Outcome::Differs)
            written += count;
    }
    if (!counts.isEmpty())
        line += QLatin1String(": ") + counts.join(QLatin1String(", "));
    if (summary.leftOut > 0)
        line += QLatin1String("; ")
              + (summary.leftOut == 1 ? tr("1 other left out") : tr("%1 others left out").arg(summary.leftOut));
    QStringList lines = QStringList{line} + failureLines();

    const bool isWriting = summary.command == QLatin1String("apply") || summary.command == QLatin1String("undo");
    if (isWriting && written > 0 && !summary.runId.isEmpty())
        lines.append(tr("run %1… (orda_batch undo %1 takes it back)").arg(summary.runId.left(runShown)));
    if (!summary.stopped.isEmpty())
        lines.append(tr("stopped: %1").arg(summary.stopped));
    if (!summary.error.isEmpty())
        lines.append(tr("error: %1").arg(summary.error));
    return lines;
}

/// "3 × Failed to …: dev-0001, dev-0002, dev-0007", the most frequent first.
QStringList ResultWriter::failureLines() const
{
    QStringList messages = m_failures.keys();
    std::stable_sort(messages.begin(), messages.end(), [this](const QString &a, const QString &b) {
        return m_failures.value(a).count > m_failures.value(b).count;
    });
    QStringList lines;
    for (const QString &message : qAsConst(messages)) {
        if (lines.size() == messagesShown) {
            lines.append(tr("  and %n other message(s)", nullptr, messages.size() - messagesShown));
            break;
        }
        const Failure failure = m_failures.value(message);
        const QString more = failure.count > devicesShown ? QStringLiteral(", …") : QString();
        lines.append(
            QStringLiteral("  %1 × %2: %3")
                .arg(QString::number(failure.count), message, failure.devIds.join(QLatin1String(", ")) + more));
    }
    return lines;
}

} // namespace orda_batch
