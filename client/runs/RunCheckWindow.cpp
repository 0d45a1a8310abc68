#include "client/runs/RunCheckWindow.h"

#include "client/common/Question.h"
#include "client/common/Widgets.h"
#include "client/runs/RunCheckModel.h"
#include "client/runs/RunJobs.h"
#include "client/runs/RunTargets.h"
#include "client/session/ClientSession.h"
#include "client/tables/CsvFile.h"
#include "client/tables/SearchedTable.h"
#include "client/tables/TableView.h"
#include "journal/JournalTransport.h"

#include <orda_base/DelayedCall.h>
#include <orda_data/DataSignals.h>
#include <orda_worker/SystemAssistant.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QtConcurrentRun>

#include <chrono>

namespace orda_client {

using orda_engine::DeviceReading;
using orda_engine::ReadJob;
using orda_journal::JournalTransport;

namespace {

using namespace std::chrono_literals;

constexpr QSize windowSize(1180, 560);
constexpr auto progressDelay = 100ms; // thousands of devices may be read in a second

} // namespace

RunCheckWindow::RunCheckWindow(const RunCheck &check, const QStringList &devIds, ClientSession *session, RunJobs *jobs,
                               ClientSettings *settings, QWidget *parent)
    : ToolWindow(check.kind == RunCheck::Verify ? QStringLiteral("runVerify") : QStringLiteral("runUndo"), windowSize,
                 settings, parent)
    , m_check(check)
    , m_devIds(devIds)
    , m_session(session)
    , m_jobs(jobs)
    , m_isRunGoingOn(jobs->isWriting())
    , m_progress(new orda_base::DelayedCall(
          progressDelay, [this] { updateView(); }, this))
    , m_model(new RunCheckModel(check.kind, this))
{
    const QString began = RunTexts::time(check.run->line.run.began);
    setWindowTitle(check.kind == RunCheck::Verify
                       ? tr("Verify: %1, %2", "parameters, time").arg(check.run->line.family, began)
                       : tr("Undo: %1, %2", "parameters, time").arg(check.run->line.family, began));
    buildTable();
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildLine());
    layout->addWidget(m_table, 1);
    layout->addWidget(buildButtons());
    setContent(content);
    connect(&m_worker, &QFutureWatcherBase::finished, this, [this] {
        m_model->setDevices(m_worker.result());
        updateView();
    });
    if (const JournalTransport *journal = session->journal()) {
        const auto follow = [this](bool isGoingOn) {
            m_isRunGoingOn = isGoingOn;
            updateView();
        };
        connect(journal, &JournalTransport::signalRunBegan, this, [this, follow] {
            outdate(tr("A run has begun since, and devices may have changed. Press \"Read again\"."));
            follow(true);
        });
        connect(journal, &JournalTransport::signalRunEnded, this, [follow] { follow(false); });
    }
    const auto &devices = orda_data::DataSignals::instance();
    const auto inventoryChanged = [this] { outdate(tr("The inventory has changed since. Press \"Read again\".")); };
    connect(&devices, &orda_data::DataSignals::signalUpdateDevs, this, inventoryChanged);
    connect(&devices, &orda_data::DataSignals::signalDeleteDevs, this, inventoryChanged);
    read();
}

void RunCheckWindow::buildTable()
{
    m_table = new SearchedTable(m_model, {20, 19, 17, 16, 46}, QStringLiteral("checked"), tr("Devices of the run"),
                                tr("Searches names, serial numbers, addresses, changes and notes"));
    m_table->view()->elideAtEnd({RunCheckModel::Changes, RunCheckModel::Note});
    const auto withState = [this](const QVector<CheckedDevice::State> &states) {
        return [this, states](int row) { return states.contains(m_model->devices().at(row).state); };
    };
    using Device = CheckedDevice;
    const SearchedTable::Choice all{tr("All devices"), nullptr};
    const SearchedTable::Choice unread{tr("Not read"),
                                       withState({Device::NotRead, Device::NotReached, Device::Replaced})};
    if (m_check.kind == RunCheck::Verify)
        m_table->setChoices(tr("S&how:"), {all,
                                           {tr("Not as written"), withState({Device::Differs})},
                                           {tr("As written"), withState({Device::AsWritten})},
                                           unread});
    else
        m_table->setChoices(
            tr("S&how:"),
            {all,
             {tr("Goes back"), withState({Device::GoesBack, Device::GoesBackInPart, Device::IsWrittenOver})},
             {tr("Changed since"), [this](int row) { return m_model->devices().at(row).isChangedSince; }},
             {tr("Nothing goes back"), withState({Device::Stays, Device::AlreadyBack})},
             unread});
    connect(m_table, &SearchedTable::signalShownChanged, this, &RunCheckWindow::updateView);
    connect(m_table, &SearchedTable::signalSelectionChanged, this, &RunCheckWindow::updateView);
}

QWidget *RunCheckWindow::buildLine()
{
    m_line = new QLabel;
    m_line->setObjectName(QStringLiteral("checkLine"));
    m_line->setTextFormat(Qt::PlainText);
    m_line->setWordWrap(true);
    m_stop = styledButton(tr("S&top"), "stopReading");
    m_stop->setToolTip(tr("Ends the reading; nothing is written"));
    connect(m_stop, &QPushButton::clicked, this, [this] {
        if (m_job)
            m_job->cancel();
    });
    m_again = styledButton(tr("&Read again"), "readAgain");
    connect(m_again, &QPushButton::clicked, this, &RunCheckWindow::read);
    auto *line = new QWidget;
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line, 1);
    layout->addWidget(m_stop);
    layout->addWidget(m_again);
    return line;
}

QWidget *RunCheckWindow::buildButtons()
{
    auto *buttons = new QWidget;
    auto *rows = new QVBoxLayout(buttons);
    rows->setContentsMargins(0, 0, 0, 0);
    auto *layout = new QHBoxLayout;
    if (m_check.kind == RunCheck::Undo) {
        m_undo = styledButton({}, "takeBack", "common_bt_style1");
        m_undo->setToolTip(
            tr("Takes the run back on the selected devices, or on all that are shown, where something goes back"));
        connect(m_undo, &QPushButton::clicked, this, &RunCheckWindow::askToTakeBack);
        m_force = new QCheckBox;
        m_force->setObjectName(QStringLiteral("force"));
        connect(m_force, &QCheckBox::toggled, this, [this](bool isOn) {
            m_check.force = isOn;
            workOut();
        });
        rows->addWidget(m_force); // a row of its own, because it says much
        layout->addWidget(m_undo);
    }
    rows->addLayout(layout);
    m_export = styledButton(tr("&Export CSV…"), "exportCsv");
    m_export->setToolTip(tr("Saves the rows that are shown, in their order, for a spreadsheet"));
    connect(m_export, &QPushButton::clicked, this, [this] {
        CsvFile::saveAs(this, *m_table->filter(),
                        m_check.kind == RunCheck::Verify ? QStringLiteral("verify") : QStringLiteral("undo"));
    });
    auto *close = styledButton(tr("&Close"), "close");
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    layout->addWidget(m_export);
    layout->addStretch();
    layout->addWidget(close);
    return buttons;
}

void RunCheckWindow::read()
{
    orda_engine::Selection selection = m_check.run->recorded.written();
    selection.devIds = RunTargets::of(*m_check.run, m_devIds).selection.devIds;
    m_toRead = selection.devIds.size();
    m_readings.clear();
    m_error.clear();
    m_outdated.clear();
    m_model->setDevices({});
    if (m_force) { // what it writes over is another thing each time
        const QSignalBlocker blocker(m_force);
        m_force->setChecked(false);
        m_check.force = false;
    }
    if (m_toRead == 0) {
        workOut();
        return;
    }
    m_job = new ReadJob(m_session->journal(), selection, this);
    connect(m_job, &ReadJob::signalRead, this, &RunCheckWindow::take);
    connect(m_job, &ReadJob::signalFinished, this, &RunCheckWindow::endReading);
    m_job->start();
    updateView();
}

void RunCheckWindow::take(const DeviceReading &reading)
{
    m_readings.insert(reading.devId, reading);
    m_progress->request();
}

void RunCheckWindow::endReading(const QString &error)
{
    m_job->deleteLater();
    m_job = nullptr;
    m_error = error;
    if (error.isEmpty())
        workOut();
    updateView();
}

void RunCheckWindow::workOut()
{
    m_worker.setFuture(QtConcurrent::run(
        [check = m_check, devIds = m_devIds, readings = m_readings] { return check.devices(devIds, readings); }));
    updateView();
}

void RunCheckWindow::outdate(const QString &why)
{
    m_outdated = why;
    updateView();
}

QString RunCheckWindow::resultText() const
{
    if (!m_error.isEmpty())
        return m_error;
    const QLocale locale;
    if (m_job)
        return tr("Reading: %1 of %Ln device(s).", nullptr, m_toRead).arg(locale.toString(m_readings.size()));
    QMap<CheckedDevice::State, int> counts;
    for (const CheckedDevice &device : m_model->devices())
        ++counts[device.state];
    QStringList parts{tr("Devices: %1").arg(locale.toString(m_devIds.size()))};
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        parts.append(tr("%1: %2", "state, number of devices")
                         .arg(CheckedDevice::stateText(count.key()), locale.toString(count.value())));
    if (!m_outdated.isEmpty())
        parts.append(m_outdated);
    return parts.join(QStringLiteral("   "));
}

void RunCheckWindow::updateView()
{
    if (!m_export)
        return; // still being built
    const bool isReady = !m_job && !m_worker.isRunning() && m_error.isEmpty() && m_outdated.isEmpty();
    const bool isFree = m_session->journal() && !m_isRunGoingOn;
    m_line->setText(resultText());
    m_table->setEmptyText(m_error.isEmpty() ? tr("What the devices hold is being read.") : m_error);
    m_stop->setVisible(m_job);
    m_again->setVisible(!m_job);
    m_again->setEnabled(isFree && !m_worker.isRunning());
    m_export->setEnabled(m_table->filter()->rowCount() > 0);
    if (!m_undo)
        return;
    int changedSince = 0;
    for (const CheckedDevice &device : m_model->devices())
        changedSince += device.isChangedSince ? 1 : 0;
    m_force->setVisible(changedSince > 0);
    m_force->setText(tr("&Write over what was changed since the run on %Ln device(s), too", nullptr, changedSince));
    m_force->setEnabled(isReady);
    const int devices = devicesToTakeBack().size();
    m_undo->setText(devices == 0 ? tr("&Undo…") : tr("&Undo on %Ln device(s)…", nullptr, devices));
    m_undo->setEnabled(isReady && isFree && devices > 0);
}

QStringList RunCheckWindow::devicesToTakeBack() const
{
    QVector<int> rows = m_table->selectedRows();
    if (rows.isEmpty())
        rows = m_table->filter()->shownRows(); // what is hidden is left out, as in the form
    QStringList devIds;
    for (const int row : qAsConst(rows))
        if (m_model->devices().at(row).isWritten())
            devIds.append(m_model->devices().at(row).row.devId);
    return devIds;
}

void RunCheckWindow::askToTakeBack()
{
    const QStringList devIds = devicesToTakeBack();
    QStringList lines{tr("Parameters: %1").arg(m_check.run->line.family),
                      tr("Run of %1", "time").arg(RunTexts::time(m_check.run->line.run.began))};
    if (m_devIds.size() > devIds.size())
        lines.append(
            tr("%Ln other device(s) of the run are left out: they are not selected, nothing goes back on them, "
               "or they were not read.",
               nullptr, m_devIds.size() - devIds.size()));
    if (m_check.force)
        lines.append(tr("What was changed since the run is written over, too."));
    const Question question{"runQuestion", tr("Undo"),
                            tr("Undo the run on %Ln device(s)?", nullptr, devIds.size()), lines, tr("Undo")};
    question.ask(this, [this, devIds, force = m_check.force] {
        if (!m_outdated.isEmpty()) { // while the question was open
            orda_worker::SystemAssistant::instance().messageAlert(tr("Undo"), m_outdated);
            return;
        }
        const QString runId = m_jobs->takeBack(*m_check.run, devIds, force);
        if (runId.isEmpty())
            return;
        emit signalRunStarted(runId);
        close();
    });
}

} // namespace orda_client
