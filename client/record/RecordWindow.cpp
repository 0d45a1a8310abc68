#include "client/record/RecordWindow.h"

#include "client/common/Notice.h"
#include "client/common/Widgets.h"
#include "client/form/Families.h"
#include "client/form/FormTicks.h"
#include "client/record/FailedDevices.h"
#include "client/record/PageRecord.h"
#include "client/record/RecordFile.h"
#include "client/record/RunRecordModel.h"
#include "client/record/RunSummary.h"
#include "client/tables/CsvFile.h"
#include "client/tables/GroupList.h"
#include "client/tables/SearchedTable.h"

#include <orda_worker/SystemAssistant.h>

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace orda_client {

namespace {

constexpr QSize windowSize(1320, 660);
constexpr int groupsWidth = 320;

QVector<RowGroup> failureGroups(const QVector<RunEntry> &entries)
{
    QVector<RowGroup> groups;
    const QVector<FailureGroup> failures = groupFailures(entries);
    for (const FailureGroup &group : failures)
        groups.append({RecordWindow::keyOf(group.outcome, group.message),
                       group.outcome == RunEntry::Unreadable ? RecordWindow::tr("Unreadable entries") : group.message,
                       group.count});
    return groups;
}

} // namespace

void RecordWindow::askForFile(QWidget *form, ClientSettings *settings, QWidget *parent)
{
    auto *dialog = new QFileDialog(parent, tr("Open record file"), QDir::tempPath(),
                                   tr("Record files (*_record.txt);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, form, [form, settings, parent](const QString &path) {
        bringToFront(new RecordWindow(path, form, settings, parent));
    });
    dialog->open();
}

QString RecordWindow::keyOf(RunEntry::Outcome outcome, const QString &message)
{
    return outcome == RunEntry::Unreadable ? QStringLiteral("unreadable") : QStringLiteral("failed:") + message;
}

RecordWindow::RecordWindow(const QString &path, QWidget *form, ClientSettings *settings, QWidget *parent)
    : ToolWindow(QStringLiteral("recordWindow"), windowSize, settings, parent)
    , m_form(form)
    , m_model(new RunRecordModel(this))
    , m_summary(new QLabel)
    , m_groups(new GroupList(tr("Failures by message")))
    , m_report(new Notice(tr("Failed devices that are not ticked"), "tickReport"))
{
    setWindowTitle(tr("Record: %1", "file name").arg(QFileInfo(path).fileName()));
    m_summary->setObjectName(QStringLiteral("summary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    buildTable();
    auto *splitter = new QSplitter;
    splitter->addWidget(buildGroups());
    splitter->addWidget(m_table);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({groupsWidth, windowSize.width() - groupsWidth});
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_summary);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_report);
    layout->addWidget(buildButtons());
    setContent(content);
    load(path);
}

void RecordWindow::buildTable()
{
    m_table = new SearchedTable(m_model, {19, 19, 17, 16, 20}, QStringLiteral("record"), tr("Devices of the run"),
                                tr("Searches names, serial numbers, addresses and messages"));
    m_table->setChoices(tr("S&how:"), {{tr("All"), nullptr}, {tr("Failed only"), [this](int row) {
                                                                  return m_model->entries().at(row).outcome
                                                                      != RunEntry::Succeeded;
                                                              }}});
    connect(m_table, &SearchedTable::signalShownChanged, this, &RecordWindow::updateView);
}

QWidget *RecordWindow::buildGroups()
{
    m_groups->setObjectName(QStringLiteral("groups"));
    connect(m_groups, &GroupList::signalGroupChosen, this, &RecordWindow::showGroup);
    auto *caption = new QLabel(tr("Failures by &message"));
    caption->setBuddy(m_groups);
    auto *groups = new QWidget;
    auto *layout = new QVBoxLayout(groups);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(m_groups);
    return groups;
}

QWidget *RecordWindow::buildButtons()
{
    m_tickAgain = styledButton(tr("&Tick failed again"), "tickFailedAgain", "common_bt_style1");
    m_tickAgain->setToolTip(tr("Ticks exactly the failed devices of this run in the device list, and opens the page"));
    connect(m_tickAgain, &QPushButton::clicked, this, &RecordWindow::tickFailedAgain);
    m_export = styledButton(tr("&Export CSV…"), "exportCsv");
    m_export->setToolTip(tr("Saves the rows that are shown, in their order, for a spreadsheet"));
    connect(m_export, &QPushButton::clicked, this, [this] {
        CsvFile::saveAs(this, *m_table->filter(), m_family ? m_family->name : QStringLiteral("record"));
    });
    auto *close = styledButton(tr("&Close"), "closeRecord");
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto *buttons = new QWidget;
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tickAgain);
    layout->addWidget(m_export);
    layout->addStretch();
    layout->addWidget(close);
    return buttons;
}

void RecordWindow::load(const QString &path)
{
    const auto found = std::find_if(families().begin(), families().end(), [&path](const Family &candidate) {
        return candidate.recordFile == QFileInfo(path).fileName();
    });
    m_family = found == families().end() ? nullptr : &*found;
    const RecordFile file(path);
    PageRecord page;
    // What a page tells of its record does not hold for a file that is elsewhere.
    if (m_family && m_form && path == RecordFile(m_family->recordFile).path())
        page = PageRecord::of(m_form, *m_family);
    const RecordFile::Content content = page.isMissing() ? RecordFile::Content() : file.read();
    const QString &error = content.error;
    const QVector<RunEntry> entries =
        parseRunRecord(content.bytes, page.entryEnds, successTexts(), file.state().lastTime());
    m_complaint = page.complaint();
    if (!error.isEmpty())
        m_table->setEmptyText(tr("The record %1 is not read: %2.").arg(path, error));
    else if (page.isMissing())
        m_table->setEmptyText(m_complaint);
    else
        m_table->setEmptyText(tr("The record %1 has no result.").arg(path));
    m_model->setEntries(entries);
    m_groups->setGroups(tr("All devices"), entries.size(), failureGroups(entries));
    updateView();
}

void RecordWindow::showGroup()
{
    const QString group = m_groups->group();
    m_table->setAccepts([this, group](int row) {
        const RunEntry &entry = m_model->entries().at(row);
        return group.isEmpty()
            || (entry.outcome != RunEntry::Succeeded && keyOf(entry.outcome, entry.message) == group);
    });
}

void RecordWindow::updateView()
{
    if (!m_export)
        return; // still being built
    const QVector<RunEntry> &entries = m_model->entries();
    const QString summary = entries.isEmpty() ? QString() : RunSummary::text(entries);
    m_summary->setText(m_complaint.isEmpty() ? summary : summary + QLatin1Char('\n') + m_complaint);
    m_summary->setVisible(!entries.isEmpty());
    m_export->setEnabled(m_table->filter()->rowCount() > 0);
    m_tickAgain->setEnabled(std::any_of(entries.begin(), entries.end(),
                                        [](const RunEntry &entry) { return entry.outcome != RunEntry::Succeeded; }));
}

void RecordWindow::tickFailedAgain()
{
    if (!m_form)
        return;
    if (FormTicks::runOverlay(m_form)) {
        orda_worker::SystemAssistant::instance().messageAlert(
            tr("Tick failed again"), tr("A run is going on over the ticked devices. Tick others when it has ended."));
        return;
    }
    const FailedDevices::Ticked ticked = FailedDevices::tickAgain(m_form, m_model->entries());
    QString text =
        tr("Ticked %1 of %Ln failed device(s) in the device list.", nullptr, ticked.count + ticked.notTicked.size())
            .arg(QLocale().toString(ticked.count));
    if (ticked.isSearchCleared)
        text += QLatin1Char(' ') + tr("The list's search was cleared: it hid some of them.");
    if (!ticked.notTicked.isEmpty())
        text += QLatin1Char(' ') + tr("Not ticked:");
    m_report->say(text, ticked.notTicked);
    if (m_family)
        m_form->findChild<QAbstractButton *>(m_family->navigationKey)->click();
}

} // namespace orda_client
