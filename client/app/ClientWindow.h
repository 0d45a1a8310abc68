#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QHash>
#include <QMainWindow>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace orda_base {
class DelayedCall;
}
namespace orda_worker {
struct EventConfirmInfo;
}

namespace orda_client {

class ClientSession;
class CloseQuestion;
class LastRunWindow;
class RecordViewer;
struct Family;

/// The client's window: the batch-configuration form, a menu, and a status bar that says how many devices are online
/// and what happened last. From there opens the window of the last run.
class ClientWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit ClientWindow(ClientSession *session, QWidget *parent = nullptr);
    ~ClientWindow() override;

    /// Large enough to show the form without scroll bars.
    QSize sizeHint() const override;

protected:
    /// In mid-run it asks first.
    void closeEvent(QCloseEvent *event) override;

private slots:
    /// QDesktopServices hands the address over that Report and Detail open.
    void openRecord(const QUrl &url);

private:
    void buildMenu();
    void returnFocusFrom(const QMenu *menu);
    void buildStatusBar();
    void followDevices();
    void openInventory();
    void updateStatusBar();
    void showLast(const QString &text);
    void showSummary(const orda_worker::EventConfirmInfo &info);
    void askBeforeClosing(QWidget *overlay);
    void showLastRun();
    void showLastRunOf(const Family &family);
    void showRemoteConfig(const QString &devId);

    ClientSession *m_session;
    QLabel *m_onlineCount;
    QLabel *m_last;
    QAction *m_showLastRun;
    QToolButton *m_lastRunBt = nullptr;
    QPointer<LastRunWindow> m_lastRun;
    RecordViewer *m_viewer;
    orda_base::DelayedCall *m_statusBarUpdate;
    QString m_lastChanged; // id of the device whose change of state the status bar is to show
    QHash<QString, vms_sdk::DevStatus> m_known; // by device id; attempts to connect are left out
    QPointer<QWidget> m_focusBeforeMenu;
    QPointer<CloseQuestion> m_closeQuestion;
    bool m_closesInRun = false;
};

} // namespace orda_client
