#include "client/runs/RunsWindow.h"

#include "client/common/Question.h"
#include "client/common/Widgets.h"
#include "client/form/Families.h"
#include "client/form/FormTicks.h"
#include "client/record/RecordWindow.h"
#include "client/runs/ChosenRunPane.h"
#include "client/runs/RunCheckWindow.h"
#include "client/runs/RunComparisonWindow.h"
#include "client/runs/RunJobs.h"
#include "client/runs/RunListModel.h"
#include "client/runs/RunTargets.h"
#include "client/session/ClientSession.h"
#include "client/tables/SearchedTable.h"
#include "client/tables/TableView.h"
#include "journal/JournalTransport.h"

#include <orda_base/DelayedCall.h>
#include <orda_worker/SystemAssistant.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSet>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace orda_client {

using orda_journal::JournalTransport;

namespace {

using namespace std::chrono_literals;

constexpr QSize windowSize(1480, 800); // or the screen's
constexpr int runsHeight = 250;
constexpr int paneHeight = 440;
constexpr auto historyDelay = 300ms;
constexpr auto progressDelay = 100ms; // thousands of devices may have their outcome in a second

/// Whether a list of runs reads the same, so that it need not be filled again.
bool isSame(const RunListModel &model, const QVector<RunLine> &lines)
{
    if (model.rowCount() != lines.size())
        return false;
    for (int row = 0; row < lines.size(); ++row) {
        const orda_journal::RunRow &a = model.line(row).run;
        const orda_journal::RunRow &b = lines.at(row).run;
        if (a.id != b.id || a.ended != b.ended || a.isUnderWay != b.isUnderWay || a.counts != b.counts)
            return false;
    }
    return true;
}

} // namespace

RunsWindow::RunsWindow(ClientSession *session, RunJobs *jobs, QWidget *form, ClientSettings *settings, QWidget *parent)
    : ToolWindow(QStringLiteral("runsWindow"), windowSize, settings, parent)
    , m_session(session)
    , m_jobs(jobs)
    , m_form(form)
    , m_history(new RunHistory(session->historyOptions(), form, this))
    , m_model(new RunListModel(this))
    , m_readSoon(new orda_base::DelayedCall(
          historyDelay, [this] { m_history->readRuns(); }, this))
    , m_progress(new orda_base::DelayedCall(
          progressDelay, [this] { updateView(); }, this))
    , m_isRunGoingOn(FormTicks::runOverlay(form) || jobs->isWriting())
{
    setWindowTitle(tr("Runs"));
    m_pane = new ChosenRunPane;
    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(buildRuns());
    splitter->addWidget(m_pane);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({runsHeight, paneHeight});
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter, 1);
    layout->addWidget(buildLine());
    layout->addWidget(buildButtons());
    setContent(content);
    connect(m_history, &RunHistory::signalRuns, this, &RunsWindow::takeRuns);
    connect(m_history, &RunHistory::signalRun, this, &RunsWindow::takeRun);
    connect(m_pane, &ChosenRunPane::signalChanged, this, &RunsWindow::updateView);
    followRuns();
    updateView();
    m_history->readRuns();
}

QWidget *RunsWindow::buildRuns()
{
    m_runs = new SearchedTable(m_model, {20, 17, 26, 32, 28, 9}, QStringLiteral("runs"), tr("Runs, latest first"),
                               tr("Searches times, parameters, outcomes, programs and values"));
    m_runs->setChoices(tr("&Runs:"),
                       {{tr("All runs"), nullptr},
                        {tr("With devices that are not done"),
                         [this](int row) {
                             const auto &counts = m_model->line(row).run.counts;
                             return std::any_of(counts.keyBegin(), counts.keyEnd(), [](orda_journal::Outcome outcome) {
                                 return RunTexts::isFailure(outcome);
                             });
                         }},
                        {tr("Configured"), [this](int row) { return m_model->line(row).run.undoes.isEmpty(); }},
                        {tr("Undo"), [this](int row) { return !m_model->line(row).run.undoes.isEmpty(); }}});
    m_runs->view()->elideAtEnd({RunListModel::Counts, RunListModel::Values});
    m_runs->view()->sortByColumn(RunListModel::Began, Qt::DescendingOrder);
    m_runs->setEmptyText(tr("The history is being read."));
    m_compare = styledButton(tr("Com&pare two runs"), "compareRuns");
    m_compare->setToolTip(tr("Select two runs of the same parameters, the second one with Ctrl"));
    connect(m_compare, &QPushButton::clicked, this, &RunsWindow::compare);
    auto *record = styledButton(tr("Open record &file…"), "openRecordFile");
    record->setToolTip(tr("Shows the record file of a run, as older versions wrote it too"));
    connect(record, &QPushButton::clicked, this, &RunsWindow::openRecord);
    m_runs->addBefore(m_compare);
    m_runs->addBefore(record);
    connect(m_runs, &SearchedTable::signalSelectionChanged, this, &RunsWindow::chooseSelected);
    return m_runs;
}

QWidget *RunsWindow::buildLine()
{
    m_line = new QLabel;
    m_line->setObjectName(QStringLiteral("runsLine"));
    m_line->setTextFormat(Qt::PlainText);
    m_line->setWordWrap(true);
    m_stop = styledButton(tr("&Stop the run"), "stopRunUnderWay");
    m_stop->setToolTip(tr("What has not left yet is not sent; what has been written stays written"));
    connect(m_stop, &QPushButton::clicked, this, [this] {
        if (auto *journal = m_session->journal())
            journal->stop();
    });
    auto *line = new QWidget;
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line, 1);
    layout->addWidget(m_stop);
    return line;
}

QWidget *RunsWindow::buildButtons()
{
    m_tryAgain = styledButton({}, "tryAgain", "common_bt_style1");
    m_tryAgain->setToolTip(
        tr("Configures the selected devices, or those of the chosen group of failures, with the values of this run"));
    connect(m_tryAgain, &QPushButton::clicked, this, &RunsWindow::askToTryAgain);
    m_verify = styledButton(tr("&Verify"), "verify");
    m_verify->setToolTip(tr("Reads the selected devices, or all, and shows what is not as the run has left it"));
    connect(m_verify, &QPushButton::clicked, this, [this] { check(RunCheck::Verify); });
    m_undo = styledButton(tr("&Undo…"), "undo");
    m_undo->setToolTip(tr("Shows what taking the run back would write, on the selected devices or on all"));
    connect(m_undo, &QPushButton::clicked, this, [this] { check(RunCheck::Undo); });
    m_export = styledButton(tr("&Export CSV…"), "exportCsv");
    m_export->setToolTip(tr("Saves the rows that are shown, in their order, for a spreadsheet"));
    connect(m_export, &QPushButton::clicked, m_pane, &ChosenRunPane::exportCsv);
    auto *close = styledButton(tr("&Close"), "close");
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto *buttons = new QWidget;
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton *each : {m_tryAgain, m_verify, m_undo, m_export})
        layout->addWidget(each);
    layout->addStretch();
    layout->addWidget(close);
    return buttons;
}

void RunsWindow::followRuns()
{
    const JournalTransport *journal = m_session->journal();
    if (!journal)
        return;
    connect(journal, &JournalTransport::signalRunBegan, this, [this](const orda_journal::RunStart &run) {
        m_isRunGoingOn = true;
        m_settled = 0;
        m_total = run.devIds.size();
        m_readSoon->request();
        updateView();
    });
    connect(journal, &JournalTransport::signalSettled, this, [this] {
        ++m_settled;
        m_progress->request();
    });
    connect(journal, &JournalTransport::signalRunEnded, this, [this] {
        m_isRunGoingOn = false;
        m_readSoon->request(); // of a run that the history has lost nothing more is told
        updateView();
    });
    connect(journal, &JournalTransport::signalRunRecorded, m_history, &RunHistory::readRuns);
}

bool RunsWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        m_history->readRuns();
    return ToolWindow::event(event);
}

void RunsWindow::showRun(const QString &runId)
{
    m_wanted = runId;
    m_wantsLatest = runId.isEmpty();
    m_history->readRuns();
}

void RunsWindow::takeRuns(const RunLines &runs)
{
    m_runs->setEmptyText(!runs.error.isEmpty() ? runs.error
                                               : tr("No run yet. Tick devices and parameters in the form and press "
                                                    "Configure; what came of each device is then listed here."));
    const int before = m_model->rowOf(m_chosen);
    const RunLine shown = before < 0 ? RunLine() : m_model->line(before);
    if (!isSame(*m_model, runs.lines)) {
        m_isListing = true;
        m_model->setLines(runs.lines);
        m_isListing = false;
    }
    const int wanted = m_wantsLatest && !runs.lines.isEmpty() ? 0 : m_model->rowOf(m_wanted);
    if (wanted >= 0) {
        m_wanted.clear();
        m_wantsLatest = false;
    }
    const int row = wanted >= 0 ? wanted : m_model->rowOf(m_chosen);
    if (row < 0) {
        choose({});
        return;
    }
    select(row);
    const orda_journal::RunRow &now = m_model->line(row).run;
    const bool hasChanged = now.id != shown.run.id || now.ended != shown.run.ended
                         || now.isUnderWay != shown.run.isUnderWay || now.counts != shown.run.counts;
    if (hasChanged)
        choose(now.id);
    updateView();
}

// One that the search or the choice hides is shown below all the same.
void RunsWindow::select(int row)
{
    m_isListing = true;
    if (!m_runs->selectedRows().contains(row))
        m_runs->selectRow(row);
    m_isListing = false;
}

void RunsWindow::chooseSelected()
{
    const QVector<int> selected = m_runs->selectedRows();
    if (!m_isListing && selected.size() == 1 && m_model->line(selected.constFirst()).run.id != m_chosen)
        choose(m_model->line(selected.constFirst()).run.id);
    updateView();
}

void RunsWindow::choose(const QString &runId)
{
    m_chosen = runId;
    // Until the run is read nothing must be done with another one in its place.
    if (m_pane->run() && m_pane->run()->line.run.id != runId)
        m_pane->setRun(nullptr);
    if (!runId.isEmpty())
        m_history->readRun(runId);
}

void RunsWindow::takeRun(const ChosenRunPtr &run)
{
    if (!run || run->line.run.id == m_chosen)
        m_pane->setRun(run);
}

QStringList RunsWindow::writtenDevices() const
{
    if (!m_pane->run() || !m_pane->run()->recorded.error().isEmpty())
        return {};
    QStringList written = m_pane->run()->recorded.written().devIds;
    const QStringList selected = m_pane->selectedDevices();
    if (selected.isEmpty())
        return written;
    const QSet<QString> isSelected(selected.begin(), selected.end());
    written.erase(std::remove_if(written.begin(), written.end(),
                                 [&isSelected](const QString &devId) { return !isSelected.contains(devId); }),
                  written.end());
    return written;
}

// The earlier one first.
QVector<int> RunsWindow::comparableRuns() const
{
    QVector<int> rows = m_runs->selectedRows();
    if (rows.size() != 2)
        return {};
    const auto run = [this](int row) { return m_model->line(row).run; };
    if (run(rows.at(0)).family != run(rows.at(1)).family || !findFamily(run(rows.at(0)).family))
        return {};
    if (run(rows.at(0)).began > run(rows.at(1)).began)
        std::swap(rows[0], rows[1]);
    return rows;
}

QString RunsWindow::lineText() const
{
    if (m_isRunGoingOn && m_total == 0)
        return tr("A run is going on.");
    if (m_isRunGoingOn)
        return tr("A run is going on: %1 of %Ln device(s) have their outcome.", nullptr, m_total)
            .arg(QLocale().toString(m_settled));
    return m_pane->run() ? m_pane->run()->recorded.error() : QString();
}

void RunsWindow::updateView()
{
    if (!m_export)
        return; // still being built
    const bool isFree = m_session->journal() && !m_isRunGoingOn;
    const int again = m_pane->meantDevices().size();
    const bool isWritten = isFree && !writtenDevices().isEmpty();
    m_line->setText(lineText());
    m_line->setVisible(!m_line->text().isEmpty());
    m_stop->setVisible(m_isRunGoingOn);
    m_tryAgain->setText(again > 0 ? tr("&Try again on %Ln device(s)…", nullptr, again) : tr("&Try again…"));
    m_tryAgain->setEnabled(isFree && again > 0);
    m_verify->setEnabled(isWritten);
    m_undo->setEnabled(isWritten);
    m_export->setEnabled(!m_pane->isEmpty());
    m_compare->setEnabled(!comparableRuns().isEmpty());
}

void RunsWindow::askToTryAgain()
{
    const ChosenRunPtr run = m_pane->run();
    const QStringList devIds = m_pane->meantDevices();
    const RunTargets targets = RunTargets::toTryAgain(*run, devIds);
    const int count = targets.selection.devIds.size();
    QStringList lines;
    if (!run->line.values.isEmpty())
        lines.append(run->line.values);
    if (!targets.selection.ownValues.isEmpty())
        lines.append(
            tr("%Ln device(s) get values of their own, as in this run.", nullptr, targets.selection.ownValues.size()));
    if (const int notReached = targets.countNotReached(); notReached > 0)
        lines.append(tr("%Ln of them cannot be written to now and will end as not reached.", nullptr, notReached));
    if (!targets.leftOut.isEmpty())
        lines += QStringList(tr("Left out:")) + targets.leftOutLines();
    if (count == 0) {
        orda_worker::SystemAssistant::instance().messageAlert(
            tr("Try again"), targets.refusal.isEmpty() ? lines.join(QLatin1Char('\n')) : targets.refusal);
        return;
    }
    const Question question{
        "runQuestion", tr("Try again"),
        tr("%1: configure %Ln device(s) again with the values of this run?", "parameters", count).arg(run->line.family),
        lines, tr("Configure")};
    question.ask(this, [this, run, asked = targets.selection.devIds] { // and none that was left out
        const QString runId = m_jobs->tryAgain(*run, asked);
        if (!runId.isEmpty())
            m_wanted = runId;
    });
}

void RunsWindow::check(RunCheck::Kind kind)
{
    if (!m_form)
        return;
    auto *window = new RunCheckWindow({kind, m_pane->run(), RunTexts(m_form)}, writtenDevices(), m_session, m_jobs,
                                      settings(), this);
    connect(window, &RunCheckWindow::signalRunStarted, this, [this](const QString &runId) { m_wanted = runId; });
    bringToFront(window);
}

void RunsWindow::compare()
{
    const QVector<int> rows = comparableRuns();
    if (rows.isEmpty() || !m_form)
        return;
    bringToFront(new RunComparisonWindow(m_model->line(rows.at(0)), m_model->line(rows.at(1)),
                                         m_session->historyOptions(), RunTexts(m_form), settings(), this));
}

void RunsWindow::openRecord()
{
    if (m_form)
        RecordWindow::askForFile(m_form, settings(), parentWidget() ? parentWidget() : this);
}

} // namespace orda_client
