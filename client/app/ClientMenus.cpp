#include "client/app/ClientMenus.h"

#include "client/settings/ClientSettings.h"

#include <vms_client_sdk/ForeignText.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include <chrono>

namespace orda_client {

using namespace std::chrono_literals;

namespace {

constexpr int recentWidth = 560; // paths may be longer than the screen is wide

} // namespace

ClientMenus::ClientMenus(const ClientSettings *settings, QMainWindow *window)
    : QObject(window)
    , m_settings(settings)
    , m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, const QWidget *now) {
        if (now == m_window->menuBar())
            m_focusBeforeMenu = before;
    });
    buildFile();
    buildDevices();
    buildRun();
    buildHelp();
}

void ClientMenus::buildFile()
{
    QMenu *menu = addMenu(tr("&File"));
    openInventory = add(menu, "openInventory", tr("&Open inventory…"), QKeySequence::Open);
    m_recent = menu->addMenu(tr("Open &recent"));
    m_recent->setObjectName(QStringLiteral("recentInventories"));
    connect(m_recent, &QMenu::aboutToShow, this, &ClientMenus::listRecent);
    menu->addSeparator();
    importDevices = add(menu, "importDevices", tr("&Import devices from CSV…"), {});
    importDevices->setStatusTip(tr("Makes an inventory of a table of devices"));
    exportDevices = add(menu, "exportDevices", tr("&Export devices as CSV…"), {});
    exportDevices->setStatusTip(tr("Saves the devices of the inventory as a table for spreadsheets"));
    menu->addSeparator();
    showSettings = add(menu, "showSettings", tr("&Settings…"), QKeySequence::Preferences);
    menu->addSeparator();
    quit = add(menu, "quit", tr("&Quit"), QKeySequence::Quit);
}

void ClientMenus::buildDevices()
{
    QMenu *menu = addMenu(tr("&Devices"));
    showDevices = add(menu, "showDevices", tr("&Devices"), Qt::Key_F8);
    showDevices->setStatusTip(tr("Lists all devices of the inventory, their states and the reasons"));
    connectAgain = add(menu, "connectAgain", tr("&Connect again"), {});
    connectAgain->setStatusTip(tr("Tries the devices again that refused the sign-on"));
    menu->addSeparator();
    findCameras = add(menu, "findCameras", tr("&Find cameras…"), {});
    findCameras->setStatusTip(tr("Searches the local network for ONVIF cameras when told to, and puts them into the "
                                 "inventory"));
}

void ClientMenus::buildRun()
{
    QMenu *menu = addMenu(tr("&Run"));
    showPreview = add(menu, "showPreview", tr("&Preview"), Qt::Key_F7);
    showPreview->setStatusTip(tr("What Configure would change on each ticked device; nothing is written"));
    showCompare = add(menu, "showCompare", tr("&Compare with a standard"), Qt::Key_F6);
    showCompare->setStatusTip(tr("The present settings of the ticked devices beside a standard; nothing is written"));
    menu->addSeparator();
    showRuns = add(menu, "showRuns", tr("&Runs"), Qt::Key_F9);
    showRuns->setStatusTip(tr("What runs did to the devices; tries again, verifies, takes back, compares"));
}

void ClientMenus::buildHelp()
{
    QMenu *menu = addMenu(tr("&Help"));
    showManual = add(menu, "showManual", tr("&Manual"), QKeySequence::HelpContents);
    showAbout = add(menu, "showAbout", tr("&About"), {});
}

QMenu *ClientMenus::addMenu(const QString &title)
{
    QMenu *menu = m_window->menuBar()->addMenu(title);
    returnFocusFrom(menu);
    return menu;
}

QAction *ClientMenus::add(QMenu *menu, const char *name, const QString &text, const QKeySequence &shortcut)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    // F1 to F9 open a window from any other; the rest is for the window with the menus.
    if (shortcut.count() == 1 && shortcut[0] >= Qt::Key_F1 && shortcut[0] <= Qt::Key_F35)
        action->setShortcutContext(Qt::ApplicationShortcut);
    return action;
}

void ClientMenus::returnFocusFrom(const QMenu *menu)
{
    // Esc closes a menu and leaves the focus in the menu bar, where the form's shortcuts do not work.
    connect(menu, &QMenu::aboutToHide, this, [this] {
        QTimer::singleShot(0ms, this, [this] {
            if (m_window->menuBar()->hasFocus() && !QApplication::activePopupWidget() && m_focusBeforeMenu)
                m_focusBeforeMenu->setFocus();
        });
    });
}

void ClientMenus::listRecent()
{
    m_recent->clear();
    const QStringList paths = m_settings->recentInventories();
    for (int i = 0; i < paths.size(); ++i) {
        const QString &path = paths.at(i);
        const QString shown = m_recent->fontMetrics()
                                  .elidedText(vms_sdk::displayText(path), Qt::ElideMiddle, recentWidth)
                                  .replace(QLatin1Char('&'), QLatin1String("&&"));
        const QAction *entry = m_recent->addAction(QStringLiteral("&%1  %2").arg(QString::number(i + 1), shown));
        connect(entry, &QAction::triggered, this, [this, path] { emit signalRecentChosen(path); });
    }
    if (paths.isEmpty()) {
        m_recent->addAction(tr("No inventory has been opened yet"))->setEnabled(false);
        return;
    }
    m_recent->addSeparator();
    connect(m_recent->addAction(tr("&Clear list")), &QAction::triggered, this, &ClientMenus::signalClearRecent);
}

} // namespace orda_client
