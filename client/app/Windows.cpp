#include "client/app/Windows.h"

#include "client/app/AboutDialog.h"
#include "client/app/ManualWindow.h"
#include "client/app/RemoteConfigDialog.h"
#include "client/app/SettingsDialog.h"
#include "client/common/ToolWindow.h"
#include "client/compare/CompareWindow.h"
#include "client/devices/DeviceStates.h"
#include "client/devices/DevicesWindow.h"
#include "client/find/FindWindow.h"
#include "client/form/Families.h"
#include "client/inventory/ExportDialog.h"
#include "client/preview/PreviewWindow.h"
#include "client/record/PageRecord.h"
#include "client/record/RecordFile.h"
#include "client/record/RecordViewer.h"
#include "client/runs/RunJobs.h"
#include "client/runs/RunsWindow.h"
#include "client/session/ClientSession.h"

#include <orda_base/BaseTools.h>
#include <orda_data/DevsMgrData.h>

#include <QDesktopServices>
#include <QFileInfo>
#include <QMainWindow>
#include <QUrl>

namespace orda_client {

Windows::Windows(QWidget *form, ClientSession *session, ClientSettings *settings, QMainWindow *window)
    : QObject(window)
    , m_form(form)
    , m_session(session)
    , m_settings(settings)
    , m_window(window)
    , m_viewer(new RecordViewer(this))
    , m_deviceStates(new DeviceStates(this))
    , m_runJobs(new RunJobs(session, this))
{
    connect(&orda_base::BaseTools::instance(), &orda_base::BaseTools::signalDevRemoteConfigOpened, this,
            &Windows::showRemoteConfig);
    QDesktopServices::setUrlHandler({}, this, "openRecord"); // the module opens paths without a scheme
    connect(m_viewer, &RecordViewer::signalNoViewer, this, [this] { showRun({}); });
}

template <typename Window, typename Make>
void Windows::show(QPointer<Window> *window, const Make &make)
{
    if (!*window)
        *window = make();
    ToolWindow::bringToFront(*window);
}

void Windows::showDevices()
{
    show(&m_devices, [this] { return new DevicesWindow(m_session, m_deviceStates, m_form, m_settings, m_window); });
}

void Windows::showFind()
{
    show(&m_find, [this] {
        auto *window = new FindWindow(m_session, m_settings, m_window);
        connect(window, &FindWindow::signalAdd, this,
                [this, window](const QList<vms_sdk::DevInfo> &devices) { emit signalAdd(devices, window); });
        return window;
    });
}

void Windows::showPreview()
{
    if (!m_preview) {
        m_preview = new PreviewWindow(m_session, m_form, m_settings, m_window);
        connect(m_preview, &PreviewWindow::signalConfigure, this, &Windows::signalConfigure);
    }
    ToolWindow::bringToFront(m_preview);
    m_preview->preview();
}

void Windows::showCompare()
{
    show(&m_compare, [this] { return new CompareWindow(m_session, m_form, m_settings, m_window); });
    m_compare->compare();
}

void Windows::showRun(const QString &runId)
{
    show(&m_runs, [this] { return new RunsWindow(m_session, m_runJobs, m_form, m_settings, m_window); });
    m_runs->showRun(runId);
}

void Windows::showRemoteConfig(const QString &devId)
{
    (new RemoteConfigDialog(devId, m_window))->open();
}

void Windows::showExport()
{
    const QString file = m_session->source().inventoryFile;
    const QString name = file.isEmpty() ? QStringLiteral("devices") : QFileInfo(file).completeBaseName();
    (new ExportDialog(orda_data::DevsMgrData::instance().getAllDevs(false), name, m_window))->open();
}

void Windows::showSettings()
{
    (new SettingsDialog(m_settings, m_session->historyOptions(), m_window))->open();
}

void Windows::showManual()
{
    show(&m_manual, [this] { return new ManualWindow(m_settings, m_window); });
}

void Windows::showAbout()
{
    (new AboutDialog(m_window))->open();
}

void Windows::openRecord(const QUrl &url)
{
    for (const Family &family : families()) {
        const RecordFile file(family.recordFile);
        if (url != QUrl(file.path()))
            continue;
        const RecordFile::State state = file.state();
        // A viewer would also show what an earlier run has written, or what another user has put there.
        const bool isOwn = PageRecord::of(m_form, family).error.isEmpty();
        if (isOwn && state.exists && state.refusal.isEmpty())
            m_viewer->open(file.path());
        else
            showRun({});
        return;
    }
    QDesktopServices::openUrl(url); // not a record; Qt does not call this handler again for it
}

} // namespace orda_client
