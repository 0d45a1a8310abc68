#include "client/record/LastRunWindow.h"
#include "client/form/FormTicks.h"

#include "client/common/OpeningSize.h"
#include "client/form/Families.h"
#include "client/record/FailedDevices.h"
#include "client/record/FailureGroupList.h"
#include "client/record/RunRecordFilter.h"
#include "client/record/RunRecordModel.h"
#include "client/record/RunRecordView.h"
#include "client/record/RunSummary.h"
#include "client/record/TickReport.h"
#include "client/tables/CsvFile.h"

#include <orda_base/ReturnPressesButton.h>
#include <orda_base/SearchBox.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/SystemAssistant.h>

#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

// The files are not watched: a run writes thousands of times a second, and each time would be reported.
constexpr auto refreshInterval = 500ms;
constexpr int pauseFactor = 20; // reading a large record takes a twentieth of the time, the run gets the rest

constexpr QSize windowSize(1320, 660);
constexpr int groupsWidth = 320;
constexpr int margin = 12;

QLabel *caption(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

QLabel *plainLabel(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

LastRunWindow::LastRunWindow(QWidget *form, QWidget *parent)
    : QMainWindow(parent)
    , m_form(form)
    , m_model(new RunRecordModel(this))
    , m_filter(new RunRecordFilter(m_model, this))
{
    setWindowTitle(tr("Last run"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *splitter = new QSplitter;
    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(buildTop());
    splitter->addWidget(buildGroups());
    splitter->addWidget(buildTable());
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({groupsWidth, windowSize.width() - groupsWidth});
    layout->addWidget(splitter, 1);
    m_report = new TickReport;
    m_report->hide();
    layout->addWidget(m_report);
    layout->addWidget(buildButtons());
    setCentralWidget(central);
    addShortcuts();
    resize(openingSize(this, windowSize));

    m_refreshTimer.setSingleShot(true);
    connect(&m_refreshTimer, &QTimer::timeout, this, &LastRunWindow::refreshAndContinue);
    connect(&orda_worker::AssistantSignals::instance(), &orda_worker::AssistantSignals::signalEventConfirmRaised, this,
            [this] { turnTo(shownFamily(m_form)); }); // a run has ended
}

QWidget *LastRunWindow::buildTop()
{
    m_families = new QComboBox;
    m_families->setObjectName(QStringLiteral("families"));
    m_families->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(m_families, QOverload<int>::of(&QComboBox::activated), this, &LastRunWindow::showFamily);
    m_summary = plainLabel("summary");
    m_complaint = plainLabel("complaint");

    m_outcomes = new QComboBox;
    m_outcomes->setObjectName(QStringLiteral("outcomes"));
    m_outcomes->addItems({tr("All"), tr("Failed only")});
    connect(m_outcomes, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int index) {
        m_filter->setFailedOnly(index > 0);
        showOtherRows();
    });
    m_search = new orda_base::SearchBox;
    m_search->setObjectName(QStringLiteral("recordSearch"));
    m_search->setToolTip(tr("Searches names, serial numbers, addresses and messages (%1)")
                             .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    connect(m_search, &orda_base::SearchBox::signalSearchByKeyword, this, [this](const QString &keyword) {
        m_filter->setKeyword(keyword);
        showOtherRows();
    });

    auto *choices = new QHBoxLayout;
    choices->addWidget(caption(tr("&Parameters:"), m_families));
    choices->addWidget(m_families);
    choices->addStretch(1);
    choices->addWidget(caption(tr("S&how:"), m_outcomes));
    choices->addWidget(m_outcomes);
    choices->addWidget(m_search);
    auto *top = new QWidget;
    auto *layout = new QVBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(choices);
    layout->addWidget(m_summary);
    layout->addWidget(m_complaint);
    return top;
}

QWidget *LastRunWindow::buildGroups()
{
    m_groups = new FailureGroupList;
    m_groups->setObjectName(QStringLiteral("groups"));
    m_groups->setAccessibleName(tr("Failures by message"));
    connect(m_groups, &FailureGroupList::signalGroupChosen, this, [this] {
        m_filter->setGroup(m_groups->group());
        showOtherRows();
    });

    auto *groups = new QWidget;
    auto *layout = new QVBoxLayout(groups);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption(tr("Failures by &message"), m_groups));
    layout->addWidget(m_groups);
    return groups;
}

QWidget *LastRunWindow::buildTable()
{
    m_table = new RunRecordView(m_filter);
    m_table->setObjectName(QStringLiteral("record"));
    m_table->setAccessibleName(tr("Devices of the run"));
    m_empty = plainLabel("empty");
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setMargin(margin);
    m_stack = new QStackedWidget;
    m_stack->addWidget(m_table);
    m_stack->addWidget(m_empty);
    return m_stack;
}

QWidget *LastRunWindow::buildButtons()
{
    m_tickAgain = new QPushButton(tr("&Tick failed again"));
    m_tickAgain->setObjectName(QStringLiteral("tickFailedAgain"));
    m_tickAgain->setProperty("common_bt_style1", true);
    m_tickAgain->setToolTip(tr("Ticks exactly the failed devices of this run in the device list, and opens the page"));
    connect(m_tickAgain, &QPushButton::clicked, this, &LastRunWindow::tickFailedAgain);
    m_export = new QPushButton(tr("&Export CSV…"));
    m_export->setObjectName(QStringLiteral("exportCsv"));
    m_export->setProperty("common_bt_style2", true);
    m_export->setToolTip(tr("Saves the rows that are shown, in their order, for a spreadsheet"));
    connect(m_export, &QPushButton::clicked, this, &LastRunWindow::exportCsv);
    auto *close = new QPushButton(tr("&Close"));
    close->setProperty("common_bt_style2", true);
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

void LastRunWindow::addShortcuts()
{
    auto *escape = new QShortcut(QKeySequence::Cancel, this);
    connect(escape, &QShortcut::activated, this, &QWidget::close);
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_search, [this] { m_search->setFocus(Qt::ShortcutFocusReason); });
    new orda_base::ReturnPressesButton(this); // as in the form
    m_table->setFocus();
}

void LastRunWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!m_refreshTimer.isActive()) {
        refresh(true);
        m_refreshTimer.start(refreshInterval);
    }
}

void LastRunWindow::hideEvent(QHideEvent *event)
{
    m_refreshTimer.stop();
    QMainWindow::hideEvent(event);
}

void LastRunWindow::refreshAndContinue()
{
    QElapsedTimer reading;
    reading.start();
    refresh(false);
    m_refreshTimer.start(std::max(refreshInterval, pauseFactor * std::chrono::milliseconds(reading.elapsed())));
}

void LastRunWindow::turnTo(const Family *family)
{
    m_family = family;
    m_report->hide();
    refresh(false);
}

void LastRunWindow::refresh(bool turnToNewest)
{
    m_records = familyRecords(m_form, m_family);
    if (!m_records.isEmpty() && (turnToNewest || !m_family)) {
        // A run that left no record cannot be known from the files, only from its page.
        const Family *family = shownFamily(m_form);
        const bool isShownLost = family && !PageRecord::of(m_form, *family).error.isEmpty();
        m_family = isShownLost ? family : m_records.constFirst().family;
    }
    if (turnToNewest)
        m_report->hide();
    listFamilies();
    load();
}

void LastRunWindow::listFamilies()
{
    QStringList titles;
    int current = -1;
    for (const FamilyRecord &record : qAsConst(m_records)) {
        if (record.family == m_family)
            current = titles.size();
        titles.append(familyTitle(*record.family));
    }
    QStringList listed;
    for (int i = 0; i < m_families->count(); ++i)
        listed.append(m_families->itemText(i));
    if (listed != titles) {
        m_families->clear();
        m_families->addItems(titles);
    }
    m_families->setEnabled(!titles.isEmpty());
    m_families->setCurrentIndex(current);
}

void LastRunWindow::showFamily(int index)
{
    m_family = m_records.at(index).family;
    m_report->hide();
    load();
}

void LastRunWindow::load()
{
    const auto found = std::find_if(m_records.cbegin(), m_records.cend(),
                                    [this](const FamilyRecord &record) { return record.family == m_family; });
    const auto shown = found == m_records.cend() ? std::nullopt : std::make_optional(*found);
    if (!shown || !m_loaded || *m_loaded != *shown) {
        m_loaded = shown;
        m_error.clear();
        m_model->setEntries(shown ? shown->read(&m_error) : QVector<RunEntry>());
        m_groups->setEntries(m_model->entries());
    }
    updateView();
}

void LastRunWindow::showOtherRows()
{
    updateView();
    m_table->scrollToTop(); // failures are sorted first
}

void LastRunWindow::updateView()
{
    const bool isUnderWay = FormTicks::runOverlay(m_form);
    const QVector<RunEntry> &entries = m_model->entries();
    m_summary->setText(RunSummary::text(entries, isUnderWay));
    m_summary->setVisible(!entries.isEmpty());
    m_complaint->setText(m_loaded ? m_loaded->page.complaint() : QString());
    m_complaint->setVisible(!entries.isEmpty() && !m_complaint->text().isEmpty());
    m_empty->setText(emptyText());
    m_stack->setCurrentWidget(m_filter->rowCount() > 0 ? static_cast<QWidget *>(m_table) : m_empty);
    m_export->setEnabled(m_filter->rowCount() > 0);
    const bool hasFailed = std::any_of(entries.begin(), entries.end(),
                                       [](const RunEntry &entry) { return entry.outcome != RunEntry::Succeeded; });
    m_tickAgain->setEnabled(hasFailed && !isUnderWay);
}

QString LastRunWindow::emptyText() const
{
    if (!m_loaded)
        return tr("No run yet. Tick devices and parameters in the form and press Configure; "
                  "the outcome of each device is then listed here.");
    if (m_loaded->page.isMissing())
        return m_loaded->page.complaint();
    const QString path = RecordFile(m_family->recordFile).path();
    if (!m_loaded->state.exists)
        return tr("The record %1 is gone. The next run writes it again.").arg(path);
    if (!m_error.isEmpty())
        return tr("The record %1 is not read: %2. Move it away; the next run writes a new one.").arg(path, m_error);
    if (m_model->entries().isEmpty())
        return tr("The run has no result yet.");
    if (m_outcomes->currentIndex() > 0 && m_search->text().isEmpty() && !m_groups->group())
        return tr("No device failed.");
    return tr("No device of this run fits the search and the choice beside it.");
}

QString LastRunWindow::familyTitle(const Family &family) const
{
    return m_form->findChild<QAbstractButton *>(family.navigationKey)->text();
}

void LastRunWindow::tickFailedAgain()
{
    if (FormTicks::runOverlay(m_form)) {
        updateView();
        return;
    }
    m_report->setTicked(FailedDevices::tickAgain(m_form, m_model->entries()));
    m_report->show();
    m_form->findChild<QAbstractButton *>(m_family->navigationKey)->click();
}

void LastRunWindow::exportCsv()
{
    CsvFile::saveAs(this, *m_filter, m_family->name);
}

} // namespace orda_client
