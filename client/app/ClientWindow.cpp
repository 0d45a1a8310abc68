#include "client/app/ClientWindow.h"

#include "client/app/ClientMenus.h"
#include "client/app/ClientStatusBar.h"
#include "client/app/CloseQuestion.h"
#include "client/app/FirstSteps.h"
#include "client/app/InventoryOpener.h"
#include "client/app/Windows.h"
#include "client/common/OpeningSize.h"
#include "client/form/Families.h"
#include "client/form/FormPage.h"
#include "client/form/FormTicks.h"
#include "client/inventory/InventoryAddition.h"
#include "client/inventory/InventoryImport.h"
#include "client/press/PressGuard.h"
#include "client/press/PressLine.h"
#include "client/press/ValueChecks.h"
#include "client/progress/RunProgress.h"
#include "client/record/PageRecord.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "journal/JournalTransport.h"

#include <families/Families.h>
#include <orda_base/BaseForm.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/DictDef.h>
#include <orda_worker/EventConfirmInfo.h>
#include <orda_worker/SystemAssistant.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/ForeignText.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMessageBox>
#include <QScrollArea>
#include <QSet>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace orda_client {

using orda_journal::JournalTransport;

namespace {

constexpr QSize wantedSize(1500, 850);
constexpr int margin = 12;

} // namespace

ClientWindow::ClientWindow(ClientSession *session, ClientSettings *settings, QWidget *parent)
    : QMainWindow(parent)
    , m_session(session)
    , m_settings(settings)
    , m_pages(new QStackedWidget(this))
    , m_form(buildForm())
    , m_firstSteps(new FirstSteps(settings))
    , m_menus(new ClientMenus(settings, this))
    , m_statusBar(new ClientStatusBar(m_menus->showDevices, m_menus->showRuns))
    , m_opener(new InventoryOpener(m_form, session, settings, this))
    , m_import(new InventoryImport(settings, this))
    , m_addition(new InventoryAddition(this))
    , m_windows(new Windows(m_form, session, settings, this))
{
    setObjectName(QStringLiteral("clientWindow"));
    m_pages->addWidget(m_firstSteps);
    m_pages->addWidget(m_form);
    setCentralWidget(m_pages);
    setStatusBar(m_statusBar); // after the pages, which so have the focus at first: their shortcuts work at once
    session->watchPages(m_form);
    if (!settings->restoreGeometry(this))
        resize(openingSize(this, wantedSize));
    rememberPage();
    connectActions();
    followSession();
    showSource();
}

ClientWindow::~ClientWindow()
{
    m_settings->keepGeometry(this);
    disconnect(qApp, nullptr, m_menus, nullptr); // the focus changes once more while the window is being destroyed
}

QSize ClientWindow::sizeHint() const
{
    return wantedSize;
}

QWidget *ClientWindow::buildForm()
{
    auto *area = new QScrollArea; // for screens that are too small for the form
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
    auto *room = new QWidget;
    auto *layout = new QVBoxLayout(room);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area, 1);
    layout->setSpacing(0);
    auto *below = new QVBoxLayout;
    below->setContentsMargins(margin, margin / 2, margin, margin / 2);
    below->setSpacing(margin / 2); // else that of the layout around it
    layout->addLayout(below);
    m_line = new PressLine(area);
    below->addWidget(m_line);
    m_progress = new RunProgress(m_session->journal(), m_settings);
    below->addWidget(m_progress);
    // In mid-run the line would say what a press cannot do.
    connect(m_session->journal(), &JournalTransport::signalRunBegan, m_line, &QWidget::hide);
    connect(m_session->journal(), &JournalTransport::signalRunEnded, m_line, &QWidget::show);
    return room;
}

void ClientWindow::guardPresses()
{
    m_guard = new PressGuard(m_form, m_settings, this);
    connect(m_guard, &PressGuard::signalPreview, m_windows, &Windows::showPreview);
}

void ClientWindow::connectActions()
{
    connect(m_menus->openInventory, &QAction::triggered, m_opener, &InventoryOpener::ask);
    connect(m_menus, &ClientMenus::signalRecentChosen, m_opener, &InventoryOpener::openRecent);
    connect(m_menus, &ClientMenus::signalClearRecent, m_opener, &InventoryOpener::clearRecent);
    connect(m_menus->importDevices, &QAction::triggered, this, &ClientWindow::importDevices);
    connect(m_firstSteps, &FirstSteps::signalImport, this, &ClientWindow::importDevices);
    connect(m_import, &InventoryImport::signalImported, m_opener, &InventoryOpener::open);
    connect(m_menus->findCameras, &QAction::triggered, m_windows, &Windows::showFind);
    connect(m_firstSteps, &FirstSteps::signalFind, m_windows, &Windows::showFind);
    connect(m_windows, &Windows::signalAdd, this, &ClientWindow::addDevices);
    connect(m_addition, &InventoryAddition::signalAdded, m_opener, &InventoryOpener::open);
    connect(m_menus->exportDevices, &QAction::triggered, m_windows, &Windows::showExport);
    connect(m_menus->showSettings, &QAction::triggered, m_windows, &Windows::showSettings);
    connect(m_menus->quit, &QAction::triggered, this, &QWidget::close);
    connect(m_menus->connectAgain, &QAction::triggered, m_session, &ClientSession::connectAgain);
    connect(m_firstSteps, &FirstSteps::signalOpen, m_opener, &InventoryOpener::ask);
    connect(m_firstSteps, &FirstSteps::signalOpenRecent, m_opener, &InventoryOpener::openRecent);
    connect(m_firstSteps, &FirstSteps::signalStartDemo, m_opener, &InventoryOpener::startDemo);
    connect(m_opener, &InventoryOpener::signalRecentChanged, m_firstSteps, &FirstSteps::listRecent);
    connect(m_menus->showDevices, &QAction::triggered, m_windows, &Windows::showDevices);
    connect(m_menus->showPreview, &QAction::triggered, m_windows, &Windows::showPreview);
    connect(m_line, &PressLine::signalPreview, m_windows, &Windows::showPreview);
    connect(m_menus->showCompare, &QAction::triggered, m_windows, &Windows::showCompare);
    connect(m_menus->showRuns, &QAction::triggered, m_windows, [this] { m_windows->showRun({}); });
    connect(m_progress, &RunProgress::signalShowRun, m_windows, &Windows::showRun);
    connect(m_windows, &Windows::signalConfigure, this, &ClientWindow::configure);
    connect(m_menus->showManual, &QAction::triggered, m_windows, &Windows::showManual);
    connect(m_menus->showAbout, &QAction::triggered, m_windows, &Windows::showAbout);
}

void ClientWindow::importDevices()
{
    if (!m_opener->isDeclined())
        m_import->start();
}

void ClientWindow::addDevices(const QList<vms_sdk::DevInfo> &devices, QWidget *asking)
{
    if (!m_opener->isDeclined())
        m_addition->add(devices, m_session->source().inventoryFile, asking);
}

void ClientWindow::followSession()
{
    connect(m_session, &ClientSession::signalSourceChanged, this, &ClientWindow::showSource);
    const auto &store = orda_data::DataSignals::instance();
    connect(&store, &orda_data::DataSignals::signalUpdateDevs, this, &ClientWindow::showSource);
    connect(m_session, &ClientSession::signalWarning, m_statusBar, &ClientStatusBar::tell);
    connect(m_session, &ClientSession::signalAlert, this, [](const QString &text) {
        orda_worker::SystemAssistant::instance().messageAlert(orda_worker::DictDef::instance().alertTitle(), text);
    });
    const auto &assistant = orda_worker::AssistantSignals::instance();
    connect(&assistant, &orda_worker::AssistantSignals::signalMessageAlerted, m_statusBar,
            [this](const QString &, const QString &text) { m_statusBar->tell(text); });
    connect(&assistant, &orda_worker::AssistantSignals::signalEventConfirmRaised, this, &ClientWindow::showSummary);
}

void ClientWindow::rememberPage()
{
    if (const orda_batchCfg::CfgFamily *last = orda_batchCfg::Families::find(m_settings->page()))
        FormPage::of(m_form, *last).open(m_form);
    const auto *pages = m_form->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    connect(pages, &QStackedWidget::currentChanged, this, [this] {
        if (const Family *family = shownFamily(m_form))
            m_settings->setPage(family->name);
    });
}

void ClientWindow::showSource()
{
    const ClientSession::Source &source = m_session->source();
    const bool hasDevices = !source.isNone() || orda_data::DevsMgrData::instance().devCount(false) > 0;
    m_pages->setCurrentWidget(hasDevices ? m_form : m_firstSteps);
    if (!source.inventoryFile.isEmpty())
        setWindowTitle(
            tr("%1 – Batch Configuration").arg(vms_sdk::displayText(QFileInfo(source.inventoryFile).fileName())));
    else if (source.demoDevices > 0)
        setWindowTitle(tr("Demo with %n device(s) – Batch Configuration", nullptr, source.demoDevices));
    else
        setWindowTitle(tr("Batch Configuration"));
}

void ClientWindow::closeEvent(QCloseEvent *event)
{
    if (!m_progress->isGoingOn() || m_closesInRun) {
        QMainWindow::closeEvent(event);
        return;
    }
    event->ignore();
    askBeforeClosing();
}

void ClientWindow::configure(const PressedRun &run)
{
    const auto *family = orda_batchCfg::Families::find(run.family);
    const QStringList ids = FormTicks::listedIn(m_form);
    const QSet<QString> listed(ids.begin(), ids.end());
    const auto gone = int(std::count_if(run.devIds.begin(), run.devIds.end(),
                                        [&listed](const QString &devId) { return !listed.contains(devId); }));
    if (!family || FormTicks::runOverlay(m_form))
        return;
    if (gone > 0) {
        orda_worker::SystemAssistant::instance().messageAlert(
            orda_worker::DictDef::instance().alertTitle(),
            tr("Nothing was configured: %n device(s) of the preview cannot be configured any more. Preview again.",
               nullptr, gone));
        return;
    }
    FormTicks::tickExactly(m_form, run.devIds);
    const FormPage page = FormPage::of(m_form, *family);
    page.open(m_form);
    // They are the same devices, in the order of the list. The preview says nothing of values that look wrong: these
    // are asked about all the same.
    if (m_guard && ValueChecks::of(page).isEmpty())
        m_guard->allowOnce({run.family, run.values, FormTicks::of(m_form).devIds});
    page.press();
}

void ClientWindow::askBeforeClosing()
{
    if (m_closeQuestion)
        return;
    m_closeQuestion = new CloseQuestion(m_progress, this);
    connect(m_closeQuestion, &QDialog::accepted, this, [this] {
        m_closesInRun = true;
        close();
    });
    // The run's summary may have opened meanwhile: then it must get the keys, not the window below it.
    connect(m_closeQuestion, &QObject::destroyed, this, [] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            dialog->activateWindow();
    });
    m_closeQuestion->open(); // the run goes on under it
}

void ClientWindow::showSummary(const orda_worker::EventConfirmInfo &info)
{
    const Family *family = shownFamily(m_form);
    const QString complaint = family ? PageRecord::of(m_form, *family).complaint() : QString();
    m_statusBar->tell(complaint.isEmpty() ? info.text : info.text + QStringLiteral(" – ") + complaint);
    m_statusBar->offerRuns(); // the module asks nothing but to confirm a run's summary
    if (complaint.isEmpty())
        return;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *summary = qobject_cast<QMessageBox *>(window);
        if (summary && summary->informativeText() == info.text)
            summary->setInformativeText(info.text + QLatin1Char('\n') + complaint);
    }
}

} // namespace orda_client
