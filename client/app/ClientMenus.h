#pragma once

#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QAction;
class QKeySequence;
class QMainWindow;
class QMenu;
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

class ClientSettings;

/// The menus of the client's window. What an entry stands for is done by whoever connects to it.
class ClientMenus : public QObject
{
    Q_OBJECT

public:
    ClientMenus(const ClientSettings *settings, QMainWindow *window);

    // File
    QAction *openInventory = nullptr;
    QAction *importDevices = nullptr;
    QAction *exportDevices = nullptr;
    QAction *showSettings = nullptr;
    QAction *quit = nullptr;
    // Devices
    QAction *showDevices = nullptr;
    QAction *connectAgain = nullptr;
    QAction *findCameras = nullptr;
    // Run
    QAction *showPreview = nullptr;
    QAction *showCompare = nullptr;
    QAction *showRuns = nullptr;
    // Help
    QAction *showManual = nullptr;
    QAction *showAbout = nullptr;

signals:
    /// In the menu of the last inventories.
    void signalRecentChosen(const QString &path);
    void signalClearRecent();

private:
    void buildFile();
    void buildDevices();
    void buildRun();
    void buildHelp();
    QMenu *addMenu(const QString &title);
    QAction *add(QMenu *menu, const char *name, const QString &text, const QKeySequence &shortcut);
    void returnFocusFrom(const QMenu *menu);
    void listRecent();

    const ClientSettings *m_settings;
    QMainWindow *m_window;
    QMenu *m_recent = nullptr;
    QPointer<QWidget> m_focusBeforeMenu;
};

} // namespace orda_client
