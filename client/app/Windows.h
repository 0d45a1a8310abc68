#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QMainWindow;
class QUrl;
QT_END_NAMESPACE

namespace orda_client {

class ClientSession;
class ClientSettings;
class CompareWindow;
class DeviceStates;
class DevicesWindow;
class FindWindow;
class ManualWindow;
class PreviewWindow;
class RecordViewer;
class RunJobs;
class RunsWindow;
struct PressedRun;

/// Opens the windows beside the main one, each once: one that is open already comes to the front. All of them close
/// with the main window.
class Windows : public QObject
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or what has it
    Windows(QWidget *form, ClientSession *session, ClientSettings *settings, QMainWindow *window);

    void showDevices();
    void showFind();
    /// Plans what the form's page would change now.
    void showPreview();
    void showCompare();
    /// @param runId empty: the latest
    void showRun(const QString &runId);
    /// Saves the devices that are there now.
    void showExport();
    void showSettings();
    void showManual();
    void showAbout();
    void showRemoteConfig(const QString &devId);

signals:
    /// Of the preview: this run is wanted.
    void signalConfigure(const orda_client::PressedRun &run);
    /// Cameras that were found are wanted in the inventory.
    void signalAdd(const QList<vms_sdk::DevInfo> &devices, QWidget *asking);

private slots:
    /// QDesktopServices hands the address over that Report and Detail open.
    void openRecord(const QUrl &url);

private:
    template <typename Window, typename Make>
    void show(QPointer<Window> *window, const Make &make);

    QWidget *m_form;
    ClientSession *m_session;
    ClientSettings *m_settings;
    QMainWindow *m_window;
    RecordViewer *m_viewer;
    DeviceStates *m_deviceStates; // sees each change, whether the window is open or not
    RunJobs *m_runJobs; // outlives the windows that start them
    QPointer<DevicesWindow> m_devices;
    QPointer<FindWindow> m_find;
    QPointer<PreviewWindow> m_preview;
    QPointer<CompareWindow> m_compare;
    QPointer<RunsWindow> m_runs;
    QPointer<ManualWindow> m_manual;
};

} // namespace orda_client
