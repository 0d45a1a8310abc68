#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QMainWindow>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QStackedWidget;
QT_END_NAMESPACE

namespace orda_worker {
struct EventConfirmInfo;
}

namespace orda_client {

class ClientMenus;
class ClientSession;
class ClientSettings;
class ClientStatusBar;
class CloseQuestion;
class FirstSteps;
class InventoryAddition;
class InventoryImport;
class InventoryOpener;
class PressGuard;
class PressLine;
class RunProgress;
class Windows;
struct PressedRun;

/// The client's window: the batch-configuration form, or what to begin with as long as there are no devices; menus, and
/// a status bar. Remembers its size and place, and the page that was shown last.
class ClientWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param session @param settings must outlive the window
    ClientWindow(ClientSession *session, ClientSettings *settings, QWidget *parent = nullptr);
    ~ClientWindow() override;

    /// Asks before large or odd runs from now on: only where a person sits at the window.
    void guardPresses();

    /// Large enough to show the form without scroll bars.
    QSize sizeHint() const override;

protected:
    /// In mid-run it asks first.
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *buildForm();
    void connectActions();
    void importDevices();
    void addDevices(const QList<vms_sdk::DevInfo> &devices, QWidget *asking);
    void followSession();
    void rememberPage();
    void showSource();
    void showSummary(const orda_worker::EventConfirmInfo &info);
    void askBeforeClosing();
    void configure(const PressedRun &run);

    ClientSession *m_session;
    ClientSettings *m_settings;
    QStackedWidget *m_pages; // what to begin with, and the form
    PressLine *m_line = nullptr;
    RunProgress *m_progress = nullptr;
    QWidget *m_form; // has the batch-configuration form in it
    FirstSteps *m_firstSteps;
    ClientMenus *m_menus;
    ClientStatusBar *m_statusBar;
    InventoryOpener *m_opener;
    InventoryImport *m_import;
    InventoryAddition *m_addition;
    Windows *m_windows;
    PressGuard *m_guard = nullptr;
    QPointer<CloseQuestion> m_closeQuestion;
    bool m_closesInRun = false;
};

} // namespace orda_client
