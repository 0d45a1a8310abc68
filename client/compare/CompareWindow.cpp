#include "client/compare/CompareWindow.h"

#include "client/common/Notice.h"
#include "client/common/Widgets.h"
#include "client/compare/CompareModel.h"
#include "client/compare/FormChanges.h"
#include "client/compare/StandardBar.h"
#include "client/form/Families.h"
#include "client/form/FormTicks.h"
#include "client/preview/ReadingBar.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "client/tables/CsvFile.h"
#include "client/tables/TableFilter.h"
#include "client/tables/TableOrText.h"
#include "client/tables/TableView.h"

#include <families/Families.h>
#include <orda_base/SearchBox.h>
#include <orda_data/DataSignals.h>
#include <vms_client_sdk/ForeignText.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTime>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

// The page does not tell when its values change.
constexpr auto watchInterval = 300ms;
constexpr QSize windowSize(1280, 680);
constexpr int memberDigits = 16; // width of a member's column

} // namespace

CompareWindow::CompareWindow(ClientSession *session, QWidget *form, ClientSettings *settings, QWidget *parent)
    : ToolWindow(QStringLiteral("compareWindow"), windowSize, settings, parent)
    , m_session(session)
    , m_form(form)
    , m_model(new CompareModel(this))
    , m_filter(new TableFilter(m_model, this))
    , m_standard(new StandardBar(settings))
    , m_reading(new ReadingBar)
    , m_notice(new Notice(tr("Devices and settings that this is about")))
{
    setWindowTitle(tr("Compare with a standard"));
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildTop());
    layout->addWidget(buildChoices());
    layout->addWidget(buildTable(), 1);
    layout->addWidget(m_reading);
    layout->addWidget(m_notice);
    layout->addWidget(buildButtons());
    setContent(content);

    m_filter->setDynamicSortFilter(false); // refresh() brings it up to date, at its own times
    m_filter->setAccepts([this](int row) { return !m_onlyDifferent->isChecked() || m_model->isDifferent(row); });
    connect(m_standard, &StandardBar::signalChosen, this, &CompareWindow::useStandard);
    connect(m_standard, &StandardBar::signalTakeModel, this, &CompareWindow::takeModel);
    connect(m_standard, &StandardBar::signalLoad, this, &CompareWindow::load);
    connect(m_standard, &StandardBar::signalSaved, this, [this](const QString &name) {
        const QStringList told{tr("The profile \"%1\" was saved.").arg(name), this->settings()->writeProblem()};
        m_notice->say(told.join(QLatin1Char(' ')).trimmed());
    });
    connect(m_reading, &ReadingBar::signalRead, m_model, &CompareModel::take);
    connect(m_reading, &ReadingBar::signalFresh, this, &CompareWindow::refresh);
    connect(m_reading, &ReadingBar::signalFinished, this, &CompareWindow::finish);
    const auto &devices = orda_data::DataSignals::instance();
    connect(&devices, &orda_data::DataSignals::signalUpdateDevs, this, &CompareWindow::forgetDevices);
    connect(&devices, &orda_data::DataSignals::signalDeleteDevs, this, &CompareWindow::forgetDevices);
    m_watch.setInterval(watchInterval);
    connect(&m_watch, &QTimer::timeout, this, &CompareWindow::watch);
    m_watch.start();
    tellNothing(tr("No device was read yet."));
}

QWidget *CompareWindow::buildTop()
{
    m_families = new QComboBox;
    m_families->setObjectName(QStringLiteral("families"));
    m_families->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const Family &family : families())
        m_families->addItem(familyTitle(m_form, family));
    connect(m_families, QOverload<int>::of(&QComboBox::activated), this, &CompareWindow::chooseFamily);
    auto *caption = new QLabel(tr("&Parameters:"));
    caption->setBuddy(m_families);
    m_summary = plainLabel("summary");
    m_values = plainLabel("values");
    auto *top = new QWidget;
    auto *layout = new QVBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *choice = new QHBoxLayout;
    choice->addWidget(caption);
    choice->addWidget(m_families);
    choice->addStretch(1);
    layout->addLayout(choice);
    layout->addWidget(m_standard);
    layout->addWidget(m_values);
    layout->addWidget(m_summary);
    return top;
}

QWidget *CompareWindow::buildChoices()
{
    m_onlyDifferent = new QCheckBox(tr("&Only those that differ"));
    m_onlyDifferent->setObjectName(QStringLiteral("onlyDifferent"));
    connect(m_onlyDifferent, &QCheckBox::toggled, this, [this] {
        m_filter->invalidate();
        updateTable();
    });
    m_showOthers = new QCheckBox(tr("&All settings of the devices"));
    m_showOthers->setObjectName(QStringLiteral("allSettings"));
    m_showOthers->setToolTip(tr("Shows and compares also what Configure cannot set"));
    connect(m_showOthers, &QCheckBox::toggled, this, [this](bool isOn) {
        m_model->setShowsOthers(isOn);
        refresh();
    });
    m_search = new orda_base::SearchBox;
    m_search->setObjectName(QStringLiteral("compareSearch"));
    m_search->setToolTip(
        tr("Searches all columns (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    connect(m_search, &orda_base::SearchBox::signalSearchByKeyword, this, [this](const QString &keyword) {
        m_filter->setKeyword(keyword);
        updateTable();
    });
    auto *choices = new QWidget;
    auto *layout = new QHBoxLayout(choices);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_onlyDifferent);
    layout->addWidget(m_showOthers);
    layout->addStretch(1);
    layout->addWidget(m_search);
    return choices;
}

QWidget *CompareWindow::buildTable()
{
    m_table = new TableView(m_filter, {}, tr("Devices and their settings"));
    m_table->setObjectName(QStringLiteral("settings"));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->sortByColumn(CompareModel::DifferencesColumn, Qt::DescendingOrder);
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        QVector<int> widths{18, 22, 20, 16, 14};
        while (widths.size() < m_model->columnCount())
            widths.append(memberDigits);
        m_table->setWidths(widths);
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CompareWindow::updateButtons);
    m_shown = new TableOrText(m_table, QStringLiteral("empty"));
    return m_shown;
}

QWidget *CompareWindow::buildButtons()
{
    auto *buttons = new QWidget;
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    m_tick = styledButton(tr("&Tick the ones that differ"), "tickDifferent", "common_bt_style1");
    m_tick->setToolTip(tr("Ticks exactly the devices that differ from the standard in the device list"));
    connect(m_tick, &QPushButton::clicked, this, &CompareWindow::tickDifferent);
    auto *again = styledButton(tr("&Read again"), "readAgain");
    again->setToolTip(tr("Reads the devices that are ticked now"));
    connect(again, &QPushButton::clicked, this, &CompareWindow::read);
    m_export = styledButton(tr("&Export CSV…"), "exportCsv");
    m_export->setToolTip(tr("Saves the rows that are shown, in their order, for a spreadsheet"));
    connect(m_export, &QPushButton::clicked, this,
            [this] { CsvFile::saveAs(this, *m_filter, QStringLiteral("settings-") + m_family->name); });
    auto *close = styledButton(tr("&Close"), "closeCompare");
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    for (QWidget *button : {m_tick, again, m_export})
        layout->addWidget(button);
    layout->addStretch();
    layout->addWidget(close);
    return buttons;
}

FormPage CompareWindow::page() const
{
    const auto *family = m_family ? orda_batchCfg::Families::find(m_family->name) : nullptr;
    return m_form && family ? FormPage::of(m_form, *family) : FormPage();
}

void CompareWindow::compare()
{
    const Family *shown = m_form ? shownFamily(m_form) : nullptr;
    const int index = shown ? familyNames().indexOf(shown->name) : 0;
    m_families->setCurrentIndex(index);
    chooseFamily(index);
}

void CompareWindow::chooseFamily(int index)
{
    m_family = &families().at(index);
    m_standard->setFamily(m_family->name);
    read();
}

void CompareWindow::read()
{
    m_reading->forget();
    m_notice->clear();
    const FormPage shown = page();
    const QStringList devIds = m_form ? FormTicks::of(m_form).devIds : QStringList();
    if (!shown.family) {
        tellNothing(tr("The form is closed."));
        return;
    }
    if (devIds.isEmpty()) {
        tellNothing(
            tr("No device is ticked in the list, or the list's search hides all that are. Tick the devices that "
               "are to be compared, then press \"Read again\"."));
        return;
    }
    m_complaint.clear();
    m_time = QTime::currentTime().toString(QStringLiteral("hh:mm:ss"));
    QStringList members;
    for (const FormPage::Member &member : shown.members)
        members.append(member.name);
    m_model->setDevices(*shown.family, devIds, members, ParameterTexts(m_form, *shown.family));
    m_reading->start(m_session->journal(), {shown.family, devIds, {}});
    useStandard();
}

void CompareWindow::tellNothing(const QString &why)
{
    m_complaint = why;
    m_model->clear();
    useStandard();
}

// Other devices may have the identifiers of those that were read.
void CompareWindow::forgetDevices()
{
    if (m_model->rowCount() == 0)
        return;
    m_reading->forget();
    m_standard->forgetModel();
    tellNothing(tr("The inventory has changed since. Press \"Read again\"."));
}

void CompareWindow::finish(const QString &error)
{
    if (!error.isEmpty())
        tellNothing(tr("The devices were not read: %1 Press \"Read again\" afterwards.").arg(error));
    else
        refresh();
}

void CompareWindow::watch()
{
    if (m_standard->source() == StandardBar::Page && page().values != m_pageValues)
        useStandard();
    else
        updateButtons();
}

void CompareWindow::useStandard()
{
    using Standard = SettingsTable::Standard;
    m_pageValues = page().values;
    Standard standard;
    switch (m_standard->source()) {
    case StandardBar::Page:
        standard = {Standard::Values, m_pageValues};
        break;
    case StandardBar::Profile:
        standard = {Standard::Values, m_standard->profileValues()};
        break;
    case StandardBar::MostFrequent:
        standard.kind = Standard::MostFrequent;
        break;
    case StandardBar::Model: {
        const int row = m_model->rowOf(m_standard->modelId());
        standard = {row >= 0 ? Standard::Row : Standard::None, {}, row};
        break;
    }
    }
    if (standard.kind == Standard::Values && standard.values.isEmpty())
        standard.kind = Standard::None;
    m_model->setStandard(standard);
    refresh();
}

void CompareWindow::refresh()
{
    m_model->refresh();
    m_filter->invalidate();
    updateTable();
    updateSummary();
    updateButtons();
}

void CompareWindow::updateTable()
{
    m_shown->update(m_complaint.isEmpty() ? tr("No device fits the search and the choice beside it.") : m_complaint);
    m_export->setEnabled(m_filter->rowCount() > 0);
}

void CompareWindow::updateSummary()
{
    const QJsonObject values = standardValues();
    const FormPage shown = page();
    if (!shown.family || m_model->rowCount() == 0) {
        m_values->clear();
        m_summary->clear();
        return;
    }
    if (values.isEmpty())
        m_values->setText(m_standard->source() == StandardBar::Page
                              ? tr("Nothing is compared: the page would send nothing. Tick parameters on it, or choose "
                                   "another standard.")
                              : tr("Nothing is compared: the standard has no value."));
    else
        m_values->setText(
            vms_sdk::displayText(ParameterTexts(m_form, *shown.family).list(values).join(QStringLiteral("; "))));
    const int different = m_model->differentCount();
    const int read = m_model->readCount();
    const QLocale locale;
    if (values.isEmpty() && different == 0) { // it would say of all devices that they do not differ
        m_summary->clear();
        return;
    }
    m_summary->setText(
        tr("As of %1: %2 differ from the standard, %3 do not, %4 were not read.", "time, three numbers of devices")
            .arg(m_time, locale.toString(different), locale.toString(read - different),
                 locale.toString(m_model->rowCount() - read)));
}

int CompareWindow::chosenRow() const
{
    const QVector<int> rows = m_filter->rowsOf(m_table->selectionModel()->selectedRows());
    return rows.isEmpty() ? -1 : rows.constFirst();
}

QJsonObject CompareWindow::standardValues() const
{
    switch (m_standard->source()) {
    case StandardBar::Page:
        return m_pageValues;
    case StandardBar::Profile:
        return m_standard->profileValues();
    case StandardBar::MostFrequent:
    case StandardBar::Model:
        break;
    }
    return m_model->standardValues();
}

void CompareWindow::updateButtons()
{
    const bool isFree = m_form && !FormTicks::runOverlay(m_form);
    const int row = chosenRow();
    m_standard->setState(standardValues(), isFree, row >= 0 && m_model->isRead(row));
    // While devices are read it is not known which ones differ.
    m_tick->setEnabled(isFree && !m_reading->isReading() && m_model->differentCount() > 0);
}

void CompareWindow::takeModel()
{
    const int row = chosenRow();
    if (row < 0 || !m_model->isRead(row))
        return;
    m_standard->setModel(m_model->device(row).devId, m_model->device(row).shownName());
    useStandard();
}

void CompareWindow::load(const QJsonObject &values)
{
    const FormPage shown = page();
    if (!shown.family)
        return;
    const FormChanges::Told told = FormChanges::load(m_form, *shown.family, values);
    m_notice->say(told.text, told.lines);
}

void CompareWindow::tickDifferent()
{
    updateButtons(); // a run may have begun since the last look
    if (!m_tick->isEnabled())
        return;
    const FormChanges::Told told = FormChanges::tickDifferent(m_form, *m_model);
    m_notice->say(told.text, told.lines);
}

} // namespace orda_client
