#include "client/runs/RunHistory.h"

#include "journal/HistoryReader.h"

#include <QtConcurrentRun>

#include <utility>

namespace orda_client {

using orda_journal::HistoryOptions;
using orda_journal::HistoryReader;
using orda_journal::RunRow;

namespace {

/// @param began by run id, for the run that an undo takes back
RunLine lineOf(const RunRow &run, const RunTexts &texts, const QHash<QString, qint64> &began)
{
    return {run, texts.family(run.family), RunTexts::kind(run, began.value(run.undoes)),
            texts.values(run).join(QStringLiteral("; "))};
}

QHash<QString, qint64> beginningsOf(const QVector<RunRow> &runs)
{
    QHash<QString, qint64> began;
    for (const RunRow &run : runs)
        began.insert(run.id, run.began);
    return began;
}

} // namespace

RunLines readRunLines(const HistoryOptions &options, const RunTexts &texts)
{
    HistoryReader reader(options);
    const QVector<RunRow> runs = reader.runs();
    RunLines read;
    read.error = reader.error();
    const QHash<QString, qint64> began = beginningsOf(runs);
    for (const RunRow &run : runs)
        read.lines.append(lineOf(run, texts, began));
    return read;
}

ChosenRunPtr readChosenRun(const HistoryOptions &options, const RunTexts &texts, const QString &runId, QString *error)
{
    HistoryReader reader(options);
    const std::optional<orda_journal::RunDetails> details = reader.run(runId);
    *error = reader.error();
    if (!details)
        return nullptr;
    const bool isUndo = !details->run.undoes.isEmpty();
    const QHash<QString, qint64> began = isUndo ? beginningsOf(reader.runs()) : QHash<QString, qint64>();
    QVector<RunDevice> devices;
    const auto changes = orda_engine::changesOf(*details);
    for (const orda_journal::DeviceRow &row : details->devices)
        devices.append({row, texts.changes(details->run.family, changes.value(row.devId))});
    return std::make_shared<const ChosenRun>(
        ChosenRun{lineOf(details->run, texts, began), devices, orda_engine::RecordedRun(*details)});
}

RunHistory::RunHistory(const HistoryOptions &options, QWidget *form, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_form(form)
{
    connect(&m_runs, &QFutureWatcherBase::finished, this, [this] {
        emit signalRuns(m_runs.result());
        if (std::exchange(m_readsRunsAgain, false))
            readRuns();
    });
    connect(&m_run, &QFutureWatcherBase::finished, this, [this] {
        const std::optional<QString> next = std::exchange(m_nextRun, std::nullopt);
        if (next)
            readRun(*next);
        else
            emit signalRun(m_run.result());
    });
}

void RunHistory::readRuns()
{
    if (!m_form)
        return;
    if (m_runs.isRunning()) {
        m_readsRunsAgain = true;
        return;
    }
    m_runs.setFuture(
        QtConcurrent::run([options = m_options, texts = RunTexts(m_form)] { return readRunLines(options, texts); }));
}

void RunHistory::readRun(const QString &runId)
{
    if (!m_form)
        return;
    if (m_run.isRunning()) {
        m_nextRun = runId;
        return;
    }
    m_nextRun.reset();
    m_run.setFuture(QtConcurrent::run([options = m_options, texts = RunTexts(m_form), runId] {
        QString error; // the list of runs says it
        return readChosenRun(options, texts, runId, &error);
    }));
}

} // namespace orda_client
