#include "client/app/ClientWindow.h"
#include "client/form/FormTicks.h"

#include "client/app/CloseQuestion.h"
#include "client/common/OpeningSize.h"
#include "client/form/Families.h"
#include "client/record/LastRunWindow.h"
#include "client/record/PageRecord.h"
#include "client/record/RecordFile.h"
#include "client/record/RecordViewer.h"
#include "client/session/ClientSession.h"

#include <orda_base/BaseForm.h>
#include <orda_base/BaseTools.h>
#include <orda_base/DelayedCall.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/DictDef.h>
#include <orda_worker/EventConfirmInfo.h>
#include <orda_worker/SystemAssistant.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/ForeignText.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QStatusBar>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include <chrono>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

constexpr QSize wantedSize(1500, 850);

// Thousands of devices come online in one go: the bar is brought up to date at most ten times a second.
constexpr auto statusBarDelay = 100ms;

QString statusText(vms_sdk::DevStatus status)
{
    switch (status) {
    case vms_sdk::DevOffline:
        return ClientWindow::tr("offline");
    case vms_sdk::DevOnline:
        return ClientWindow::tr("online");
    case vms_sdk::DevConnecting:
        return ClientWindow::tr("connecting");
    case vms_sdk::DevRefused:
        return ClientWindow::tr("sign-on refused");
    case vms_sdk::DevDefaultPassword:
        return ClientWindow::tr("online with the factory password");
    case vms_sdk::DevLocked:
        return ClientWindow::tr("online, locked");
    }
    return {};
}

QString displayName(const vms_sdk::DevInfo &dev)
{
    return vms_sdk::displayText(dev.name.isEmpty() ? dev.serialNumber : dev.name);
}

} // namespace

ClientWindow::ClientWindow(ClientSession *session, QWidget *parent)
    : QMainWindow(parent)
    , m_session(session)
    , m_onlineCount(new QLabel(this))
    , m_last(new QLabel(this))
    , m_showLastRun(new QAction(tr("&Last run"), this))
    , m_viewer(new RecordViewer(this))
    , m_statusBarUpdate(new orda_base::DelayedCall(
          statusBarDelay, [this] { updateStatusBar(); }, this))
{
    setWindowTitle(tr("Batch Configuration"));
    auto *area = new QScrollArea(this); // for screens that are too small for the form
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
    session->watchPages(area->widget());
    setCentralWidget(area);
    buildMenu();
    buildStatusBar();
    resize(openingSize(this, wantedSize));

    connect(session, &ClientSession::signalWarning, this, &ClientWindow::showLast);
    connect(session, &ClientSession::signalAlert, this, [](const QString &text) {
        orda_worker::SystemAssistant::instance().messageAlert(orda_worker::DictDef::instance().alertTitle(), text);
    });
    connect(&orda_base::BaseTools::instance(), &orda_base::BaseTools::signalDevRemoteConfigOpened, this,
            &ClientWindow::showRemoteConfig);
    const auto &assistant = orda_worker::AssistantSignals::instance();
    connect(&assistant, &orda_worker::AssistantSignals::signalMessageAlerted, this,
            [this](const QString &, const QString &text) { showLast(text); });
    connect(&assistant, &orda_worker::AssistantSignals::signalEventConfirmRaised, this, &ClientWindow::showSummary);
    QDesktopServices::setUrlHandler({}, this, "openRecord"); // the module opens paths without a scheme
    connect(m_viewer, &RecordViewer::signalNoViewer, this, [this](const QString &path) {
        for (const Family &family : families())
            if (path == RecordFile(family.recordFile).path())
                showLastRunOf(family);
    });
}

ClientWindow::~ClientWindow()
{
    disconnect(qApp, nullptr, this, nullptr); // the focus changes once more while the window is being destroyed
}

QSize ClientWindow::sizeHint() const
{
    return wantedSize;
}

void ClientWindow::buildMenu()
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, const QWidget *now) {
        if (now == menuBar())
            m_focusBeforeMenu = before;
    });
    QMenu *devices = menuBar()->addMenu(tr("&Devices"));
    QAction *open = devices->addAction(tr("&Open inventory…"));
    open->setShortcut(QKeySequence::Open);
    connect(open, &QAction::triggered, this, &ClientWindow::openInventory);
    QAction *again = devices->addAction(tr("&Connect again"));
    again->setStatusTip(tr("Tries the devices again that refused the sign-on"));
    connect(again, &QAction::triggered, m_session, &ClientSession::connectAgain);
    devices->addSeparator();
    QAction *quit = devices->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);
    returnFocusFrom(devices);

    QMenu *run = menuBar()->addMenu(tr("&Run"));
    m_showLastRun->setObjectName(QStringLiteral("showLastRun"));
    m_showLastRun->setShortcut(Qt::Key_F9);
    m_showLastRun->setStatusTip(tr("Lists the outcome of each device, and ticks the failed ones again"));
    connect(m_showLastRun, &QAction::triggered, this, &ClientWindow::showLastRun);
    run->addAction(m_showLastRun);
    returnFocusFrom(run);
}

void ClientWindow::returnFocusFrom(const QMenu *menu)
{
    // Esc closes a menu and leaves the focus in the menu bar, where the form's shortcuts do not work.
    connect(menu, &QMenu::aboutToHide, this, [this] {
        QTimer::singleShot(0ms, this, [this] {
            if (menuBar()->hasFocus() && !QApplication::activePopupWidget() && m_focusBeforeMenu)
                m_focusBeforeMenu->setFocus();
        });
    });
}

void ClientWindow::closeEvent(QCloseEvent *event)
{
    QWidget *overlay = FormTicks::runOverlay(centralWidget());
    if (!overlay || m_closesInRun) {
        QMainWindow::closeEvent(event);
        return;
    }
    event->ignore();
    askBeforeClosing(overlay);
}

void ClientWindow::askBeforeClosing(QWidget *overlay)
{
    if (m_closeQuestion)
        return;
    m_closeQuestion = new CloseQuestion(overlay, this);
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

void ClientWindow::buildStatusBar()
{
    m_last->setTextFormat(Qt::PlainText); // devices' names
    m_last->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(m_last, 1);
    // Hidden until the first run is over.
    m_lastRunBt = new QToolButton(this);
    m_showLastRun->setIconText(tr("Last run")); // on the button, without the menu's mnemonic
    m_lastRunBt->setDefaultAction(m_showLastRun);
    m_lastRunBt->setFocusPolicy(Qt::TabFocus);
    m_lastRunBt->hide();
    statusBar()->addPermanentWidget(m_lastRunBt);
    statusBar()->addPermanentWidget(m_onlineCount);
    followDevices();
    updateStatusBar();
}

void ClientWindow::followDevices()
{
    const auto &changes = orda_data::DataSignals::instance();
    connect(&changes, &orda_data::DataSignals::signalUpdateDevs, m_statusBarUpdate, &orda_base::DelayedCall::request);
    connect(&changes, &orda_data::DataSignals::signalDeleteDevs, m_statusBarUpdate, &orda_base::DelayedCall::request);
    connect(&changes, &orda_data::DataSignals::signalDevStatusChanged, m_statusBarUpdate,
            &orda_base::DelayedCall::request);
    connect(&changes, &orda_data::DataSignals::signalDevStatusChanged, this,
            [this](const QString &devId, vms_sdk::DevStatus status) {
                // A device that stays offline is dialled again and again, which is not worth a message.
                if (status != vms_sdk::DevConnecting && m_known.value(devId, vms_sdk::DevOffline) != status) {
                    m_known.insert(devId, status);
                    m_lastChanged = devId;
                }
            });
    connect(&changes, &orda_data::DataSignals::signalDeleteDevs, this, [this](const QStringList &devIds) {
        for (const QString &devId : devIds)
            m_known.remove(devId);
    });
}

void ClientWindow::openInventory()
{
    auto *dialog = new QFileDialog(this, tr("Open inventory"), {}, tr("Inventories (*.json);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &file) {
        const QString error =
            FormTicks::runOverlay(centralWidget())
                ? tr("A run is going on over the devices of this inventory. Open another when it has ended.")
                : m_session->openInventory(file);
        if (!error.isEmpty())
            orda_worker::SystemAssistant::instance().messageAlert(tr("Open inventory"), error);
    });
    dialog->open();
}

void ClientWindow::updateStatusBar()
{
    const auto &store = orda_data::DevsMgrData::instance();
    const QString devId = std::exchange(m_lastChanged, {});
    const vms_sdk::DevInfo dev = store.getDevInfoById(devId);
    if (!dev.id.isEmpty()) // it may have been removed since
        showLast(QStringLiteral("%1: %2").arg(displayName(dev), statusText(store.getDevStatus(devId))));
    m_onlineCount->setText(tr("%1 of %n device(s) online", nullptr, store.devCount(false)).arg(store.devCount(true)));
}

void ClientWindow::showLast(const QString &text)
{
    const QString line = QStringLiteral("%1  %2").arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss")), text);
    m_last->setText(m_last->fontMetrics().elidedText(line, Qt::ElideRight, m_last->contentsRect().width()));
    m_last->setToolTip(Qt::convertFromPlainText(line, Qt::WhiteSpaceNormal));
}

void ClientWindow::showSummary(const orda_worker::EventConfirmInfo &info)
{
    const Family *family = shownFamily(centralWidget());
    const QString complaint = family ? PageRecord::of(centralWidget(), *family).complaint() : QString();
    showLast(complaint.isEmpty() ? info.text : info.text + QStringLiteral(" – ") + complaint);
    m_lastRunBt->show(); // the module asks nothing but to confirm a run's summary
    if (complaint.isEmpty())
        return;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *summary = qobject_cast<QMessageBox *>(window);
        if (summary && summary->informativeText() == info.text)
            summary->setInformativeText(info.text + QLatin1Char('\n') + complaint);
    }
}

void ClientWindow::openRecord(const QUrl &url)
{
    for (const Family &family : families()) {
        const RecordFile file(family.recordFile);
        if (url != QUrl(file.path()))
            continue;
        const RecordFile::State state = file.state();
        // A viewer would also show what an earlier run has written, or what another user has put there.
        const bool isOwn = PageRecord::of(centralWidget(), family).error.isEmpty();
        if (isOwn && state.exists && state.refusal.isEmpty())
            m_viewer->open(file.path());
        else
            showLastRunOf(family);
        return;
    }
    QDesktopServices::openUrl(url); // not a record; Qt does not call this handler again for it
}

void ClientWindow::showLastRunOf(const Family &family)
{
    showLastRun();
    m_lastRun->turnTo(&family);
}

void ClientWindow::showLastRun()
{
    if (!m_lastRun)
        m_lastRun = new LastRunWindow(centralWidget(), this);
    m_lastRun->setWindowState(m_lastRun->windowState() & ~Qt::WindowMinimized);
    m_lastRun->show();
    m_lastRun->raise();
    m_lastRun->activateWindow();
}

void ClientWindow::showRemoteConfig(const QString &devId)
{
    const auto &store = orda_data::DevsMgrData::instance();
    const vms_sdk::DevInfo dev = store.getDevInfoById(devId);
    auto *dialog = new QDialog(this);
    dialog->setObjectName(QStringLiteral("remoteConfigDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Remote configuration of %1").arg(displayName(dev)));
    auto *form = new QFormLayout(dialog);
    const auto addRow = [form](const QString &caption, const QString &text) {
        auto *value = new QLabel(text.isEmpty() ? QStringLiteral("–") : vms_sdk::displayText(text));
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        form->addRow(caption, value);
    };
    addRow(tr("Name"), dev.name);
    addRow(tr("Serial number"), dev.serialNumber);
    addRow(tr("IP address"), dev.ip);
    addRow(tr("State"), statusText(store.getDevStatus(devId)));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    form->addRow(buttons);
    dialog->open();
}

} // namespace orda_client
