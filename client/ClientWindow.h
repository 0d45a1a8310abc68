#pragma once

#include <QMainWindow>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace orda_worker {
struct EventConfirmInfo;
}
class ClientSession;
class LastRunWindow;
class RecordViewer;
struct Family;

/// The client's window: the batch-configuration form, a menu, and a status bar that says how many devices are on line
/// and what happened last. From there opens the window of the last run.
class ClientWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit ClientWindow(ClientSession *session, QWidget *parent = nullptr);

private slots:
    /// QDesktopServices hands the address over that Report and Detail open.
    void openRecord(const QUrl &url);

private:
    void buildMenu();
    void buildStatusBar();
    void openInventory();
    void updateStatusBar();
    void showLast(const QString &text);
    void showSummary(const orda_worker::EventConfirmInfo &info);
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
    QString m_lastChanged; // id of a device whose state has changed and is to be shown
};
