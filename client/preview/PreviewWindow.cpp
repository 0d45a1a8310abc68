#include "client/preview/PreviewWindow.h"

#include "client/common/Notice.h"
#include "client/common/Widgets.h"
#include "client/form/Families.h"
#include "client/form/FormPage.h"
#include "client/form/FormTicks.h"
#include "client/preview/PlanGroupList.h"
#include "client/preview/ReadingBar.h"
#include "client/session/ClientSession.h"
#include "client/tables/CsvFile.h"
#include "client/tables/TableFilter.h"
#include "client/tables/TableOrText.h"
#include "client/tables/TableView.h"
#include "journal/JournalTransport.h"

#include <families/Families.h>
#include <orda_base/SearchBox.h>
#include <orda_data/DataSignals.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTime>
#include <QVBoxLayout>

#include <chrono>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

// The page does not tell when its values change.
constexpr auto watchInterval = 300ms;
constexpr QSize windowSize(1180, 640);
constexpr int groupsWidth = 230;

} // namespace

PreviewWindow::PreviewWindow(ClientSession *session, QWidget *form, ClientSettings *settings, QWidget *parent)
    : ToolWindow(QStringLiteral("previewWindow"), windowSize, settings, parent)
    , m_session(session)
    , m_form(form)
    , m_model(new PreviewModel(this))
    , m_filter(new TableFilter(m_model, this))
    , m_reading(new ReadingBar)
    , m_notice(new Notice(tr("About the preview")))
{
    setWindowTitle(tr("Preview"));
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildTop());
    layout->addWidget(buildTable(), 1);
    layout->addWidget(m_reading);
    layout->addWidget(m_notice);
    layout->addWidget(buildButtons());
    setContent(content);

    m_filter->setDynamicSortFilter(false); // refresh() brings it up to date, at its own times
    m_filter->setAccepts([this](int row) { return m_model->isIn(row, m_groups->group()); });
    connect(m_reading, &ReadingBar::signalRead, m_model, &PreviewModel::take);
    connect(m_reading, &ReadingBar::signalFresh, this, &PreviewWindow::refresh);
    connect(m_reading, &ReadingBar::signalFinished, this, &PreviewWindow::finish);
    if (auto *journal = session->journal())
        connect(journal, &orda_journal::JournalTransport::signalRunBegan, this, [this] {
            outdate(tr("A run has begun since, and devices may have changed. Press \"Preview again\"."));
            if (m_isConfiguring)
                close(); // it would cover what the main window tells of the run, and its Stop
        });
    const auto &devices = orda_data::DataSignals::instance();
    const auto inventoryChanged = [this] { outdate(tr("The inventory has changed since. Press \"Preview again\".")); };
    connect(&devices, &orda_data::DataSignals::signalUpdateDevs, this, inventoryChanged);
    connect(&devices, &orda_data::DataSignals::signalDeleteDevs, this, inventoryChanged);
    m_watch.setInterval(watchInterval);
    connect(&m_watch, &QTimer::timeout, this, &PreviewWindow::updateState);
    m_watch.start();
    tellNoPlan(tr("Nothing was looked at yet."));
    m_groups->setFocus();
}

QWidget *PreviewWindow::buildTop()
{
    m_headline = plainLabel("headline");
    m_values = plainLabel("values");
    auto *top = new QWidget;
    auto *layout = new QVBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_headline);
    layout->addWidget(m_values);
    return top;
}

QWidget *PreviewWindow::buildGroups()
{
    m_groups = new PlanGroupList;
    m_groups->setObjectName(QStringLiteral("planGroups"));
    m_groups->setAccessibleName(tr("Devices by outcome"));
    connect(m_groups, &PlanGroupList::signalGroupChosen, this, [this] {
        m_filter->invalidate();
        updateTable();
        m_table->scrollToTop();
    });
    auto *caption = new QLabel(tr("Sho&w"));
    caption->setBuddy(m_groups);
    auto *groups = new QWidget;
    auto *layout = new QVBoxLayout(groups);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(m_groups);
    return groups;
}

QWidget *PreviewWindow::buildTable()
{
    QWidget *groups = buildGroups(); // first, for the Tab key
    m_search = new orda_base::SearchBox;
    m_search->setObjectName(QStringLiteral("previewSearch"));
    m_search->setToolTip(
        tr("Searches all columns (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    connect(m_search, &orda_base::SearchBox::signalSearchByKeyword, this, [this](const QString &keyword) {
        m_filter->setKeyword(keyword);
        updateTable();
        updateState();
    });
    m_table = new TableView(m_filter, {18, 20, 16, 15, 12, 0}, tr("Devices and what would change on them"));
    m_table->setObjectName(QStringLiteral("plan"));
    m_table->elideAtEnd({PreviewModel::ChangesColumn});
    m_shown = new TableOrText(m_table, QStringLiteral("empty"));
    auto *right = new QWidget;
    auto *layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search, 0, Qt::AlignRight);
    layout->addWidget(m_shown, 1);
    auto *splitter = new QSplitter;
    splitter->addWidget(groups);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({groupsWidth, windowSize.width() - groupsWidth});
    return splitter;
}

QWidget *PreviewWindow::buildButtons()
{
    m_configure = styledButton(tr("Configure the ones that &change"), "configureChanging", "common_bt_style1");
    m_configure->setToolTip(tr("Ticks exactly the devices that would change, and presses Configure"));
    connect(m_configure, &QPushButton::clicked, this, &PreviewWindow::configure);
    auto *again = styledButton(tr("Preview &again"), "previewAgain", "common_bt_style2");
    again->setToolTip(tr("Plans anew, with the page that is shown and the devices that are ticked now"));
    connect(again, &QPushButton::clicked, this, &PreviewWindow::preview);
    m_export = styledButton(tr("&Export CSV…"), "exportCsv", "common_bt_style2");
    m_export->setToolTip(tr("Saves the rows that are shown, in their order, for a spreadsheet"));
    connect(m_export, &QPushButton::clicked, this,
            [this] { CsvFile::saveAs(this, *m_filter, QStringLiteral("preview-") + m_plan.family); });
    auto *close = styledButton(tr("C&lose"), "closePreview", "common_bt_style2");
    connect(close, &QPushButton::clicked, this, &QWidget::close);

    auto *buttons = new QWidget;
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_configure);
    layout->addWidget(again);
    layout->addWidget(m_export);
    layout->addStretch();
    layout->addWidget(close);
    return buttons;
}

void PreviewWindow::preview()
{
    m_reading->forget();
    m_groups->chooseAll();
    const FormPage page = m_form ? FormPage::shown(m_form) : FormPage();
    const FormTicks ticks = m_form ? FormTicks::of(m_form) : FormTicks();
    if (!m_form)
        tellNoPlan(tr("The form is closed."));
    else if (!page.family)
        tellNoPlan(tr("The form shows no page that can be configured."));
    else if (page.values.isEmpty())
        tellNoPlan(tr("Configure would send nothing: no parameter is ticked on the page, or no stream. Tick what is to "
                      "be set, then press \"Preview again\"."));
    else if (ticks.devIds.isEmpty() && ticks.hidden > 0)
        tellNoPlan(tr("All ticked devices are hidden by the search of the list, and Configure leaves hidden devices "
                      "out. Clear the search, then press \"Preview again\"."));
    else if (ticks.devIds.isEmpty())
        tellNoPlan(tr("No device is ticked in the list. Tick the devices, then press \"Preview again\"."));
    else
        plan(page, ticks);
}

void PreviewWindow::plan(const FormPage &page, const FormTicks &ticks)
{
    m_plan = {page.family->name, page.values, ticks.devIds};
    m_complaint.clear();
    m_outdated.clear();
    const orda_engine::Selection selection{page.family, ticks.devIds, page.values};
    const ParameterTexts texts(m_form, *page.family);
    m_model->setSelection(selection, texts);
    const Family *family = findFamily(page.family->name);
    QString text = tr("%1: %2 to %3, as of %4. A preview writes nothing.", "page, parameters, devices, time")
                       .arg(family ? familyTitle(m_form, *family) : page.family->name,
                            tr("%Ln parameter(s)", nullptr, page.parameters()),
                            tr("%Ln device(s)", "to which parameters are sent", ticks.devIds.size()),
                            QTime::currentTime().toString(QStringLiteral("hh:mm:ss")));
    if (ticks.hidden > 0)
        text += QLatin1Char(' ')
              + tr("%Ln ticked device(s) are hidden by the search of the list and left out.", nullptr, ticks.hidden);
    m_headline->setText(text);
    m_values->setText(texts.list(page.values).join(QStringLiteral("; ")));
    m_reading->start(m_session->journal(), selection);
    showPlan();
}

void PreviewWindow::outdate(const QString &why)
{
    m_outdated = why;
    updateState();
}

void PreviewWindow::tellNoPlan(const QString &why)
{
    m_plan = {};
    m_complaint = why;
    m_headline->clear();
    m_values->clear();
    m_model->clear();
    showPlan();
}

void PreviewWindow::finish(const QString &error)
{
    if (!error.isEmpty())
        tellNoPlan(tr("The devices were not read: %1 Press \"Preview again\" afterwards.").arg(error));
    else
        refresh();
}

void PreviewWindow::refresh()
{
    m_model->refresh();
    m_filter->invalidate();
    showPlan();
}

void PreviewWindow::showPlan()
{
    m_groups->setCounts(*m_model);
    updateTable();
    updateState();
}

void PreviewWindow::updateTable()
{
    m_shown->update(m_complaint.isEmpty() ? tr("No device of the preview fits the search and the choice beside it.")
                                          : m_complaint);
    m_export->setEnabled(m_filter->rowCount() > 0);
}

void PreviewWindow::updateState()
{
    const QString why = whyNotConfigurable();
    m_configure->setEnabled(why.isEmpty() && m_model->count(PreviewModel::WouldChange) > 0);
    // A table without a plan says why itself, and so does the bar while it reads.
    m_notice->say(m_plan.family.isEmpty() || m_reading->isReading() ? QString() : why);
}

QString PreviewWindow::whyNotConfigurable() const
{
    const auto *family = orda_batchCfg::Families::find(m_plan.family);
    if (!family || m_reading->isReading())
        return tr("There is no preview yet.");
    if (!m_form)
        return tr("The form is closed.");
    if (!m_outdated.isEmpty())
        return m_outdated;
    if (FormPage::of(m_form, *family).values != m_plan.values)
        return tr("The page has changed since: it would send something else. Press \"Preview again\".");
    if (m_model->count(PreviewModel::NotRead) > 0)
        return tr("The preview was stopped, and %Ln device(s) were not read. Press \"Preview again\" to read all.",
                  nullptr, m_model->count(PreviewModel::NotRead));
    if (FormTicks::runOverlay(m_form))
        return tr("A run is going on.");
    if (!m_search->text().isEmpty()) // somebody who sees three devices means these
        return tr("The search is on. All devices that change would be configured, and not only those that are shown: "
                  "clear the search first.");
    return m_model->count(PreviewModel::WouldChange) > 0 ? QString()
                                                         : tr("No device would change: there is nothing to configure.");
}

void PreviewWindow::configure()
{
    updateState(); // the page may have changed since the last look
    if (!m_configure->isEnabled())
        return;
    const QPointer<PreviewWindow> self(this);
    m_isConfiguring = true;
    emit signalConfigure({m_plan.family, m_plan.values, m_model->changing()});
    if (self) // in the run the window closes
        m_isConfiguring = false;
}

} // namespace orda_client
