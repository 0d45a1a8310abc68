#include "client/drive/RunDriver.h"

#include "client/form/Families.h"
#include "client/record/PageRecord.h"
#include "client/record/RecordFile.h"
#include "engine/Connecting.h"
#include "programs/Complaint.h"

#include <run/DevEligibility.h>

#include <orda_base/DisabledWaitingWt.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/EventConfirmInfo.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/ForeignText.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QMainWindow>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTextStream>
#include <QTimer>

#include <chrono>

namespace orda_client {

using namespace orda_programs;

namespace {

using namespace std::chrono_literals;

// A page that has just been opened is laid out in a few turns of the event loop; the status bar counts every 100 ms.
constexpr auto settlePause = 150ms;
constexpr QSize windowPicture(1280, 680);
constexpr auto readingPause = 1s; // some windows read devices or the history first
constexpr auto progressInterval = 50ms;
constexpr int devIdRole = Qt::UserRole + 1;

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

} // namespace

RunDriver::RunDriver(const DriveOptions &options, QMainWindow *window, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_family(findFamily(options.family))
    , m_window(window)
{
    const auto &assistant = orda_worker::AssistantSignals::instance();
    connect(&assistant, &orda_worker::AssistantSignals::signalEventConfirmRaised, this, &RunDriver::handleSummary);
    const auto &sdk = vms_sdk::ClientSignals::instance();
    const auto heard = [this] { m_lastHeard = m_duration.elapsed(); };
    connect(&sdk, &vms_sdk::ClientSignals::signalCommonRes, this, heard);
    connect(&sdk, &vms_sdk::ClientSignals::signalRequestTimeout, this, heard);
    window->installEventFilter(this);
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        window->resize(window->sizeHint()); // the offscreen platform has a small screen that does not matter
    connect(&assistant, &orda_worker::AssistantSignals::signalMessageAlerted, this,
            [this](const QString &, const QString &text) {
                complain(text);
                if (m_hasSummary)
                    return; // it is about the run that has just ended
                end(PageRecord::of(m_window, *m_family).inUse.isEmpty() ? int(ExitNoDevice) : int(ExitRecordInUse));
            });
}

void RunDriver::start()
{
    complain(
        tr("--run is for demos and pictures: it writes the form's default values. orda_batch(1) sets values of your "
           "own."));
    QStringList devIds;
    const QList<vms_sdk::DevInfo> devices = orda_data::DevsMgrData::instance().getAllDevs(false);
    for (const vms_sdk::DevInfo &dev : devices)
        if (isMeant(dev.id))
            devIds.append(dev.id);
    for (const QString &id : qAsConst(m_options.deviceIds)) {
        if (!devIds.contains(id)) {
            complain(tr("--devices: there is no device \"%1\"").arg(id));
            end(ExitUsage);
            return;
        }
    }
    using orda_engine::Connecting;
    auto *connecting = new Connecting(devIds, Connecting::usualLimit, this);
    connect(connecting, &Connecting::signalDone, this, &RunDriver::whenSettled);
}

bool RunDriver::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0ms, this, [] { out() << tr("window shown") << Qt::endl; });
    }
    return QObject::eventFilter(watched, event);
}

void RunDriver::whenSettled()
{
    const auto &store = orda_data::DevsMgrData::instance();
    out() << tr("%1 of %n device(s) online", nullptr, store.devCount(false)).arg(store.devCount(true)) << Qt::endl;
    if (m_options.screenshotsDir.isEmpty())
        tickAndConfigure();
    else
        savePageScreenshots(0);
}

void RunDriver::savePageScreenshots(int from)
{
    if (from == families().size()) {
        tickAndConfigure();
        return;
    }
    openPage(families().at(from));
    QTimer::singleShot(settlePause, this, [this, from] {
        saveScreenshot(m_window, QStringLiteral("page-") + families().at(from).name);
        savePageScreenshots(from + 1);
    });
}

void RunDriver::tickAndConfigure()
{
    openPage(*m_family);
    tickDevices();
    out() << tr("%n device(s) ticked", nullptr, m_ticked) << Qt::endl;
    const int missing = m_options.deviceIds.size() - m_ticked;
    if (missing > 0)
        complain(tr("%n of the given devices is off line or may not be configured", nullptr, missing));
    QTimer::singleShot(0ms, this, [this] {
        saveWindowScreenshot("showDevices", "devicesWindow");
        saveWindowScreenshot("findCameras", "findWindow");
        saveWindowScreenshot("showPreview", "previewWindow");
        saveWindowScreenshot("showCompare", "compareWindow");
        configure();
    });
}

void RunDriver::openPage(const Family &family)
{
    m_window->findChild<QAbstractButton *>(family.navigationKey)->click();
}

bool RunDriver::isMeant(const QString &devId) const
{
    return m_options.deviceIds.isEmpty() || m_options.deviceIds.contains(devId);
}

void RunDriver::tickDevices()
{
    auto *table = m_window->findChild<QTableWidget *>(QStringLiteral("devsTableWt"));
    if (m_options.deviceIds.isEmpty()) {
        auto *all = m_window->findChild<QCheckBox *>(QStringLiteral("selAll"));
        if (all->isEnabled() && !all->isChecked())
            all->click();
    }
    QSet<QString> ticked;
    for (int row = 0; row < table->rowCount(); ++row) {
        QTableWidgetItem *item = table->item(row, 0);
        const QString devId = item->data(devIdRole).toString();
        if (m_options.deviceIds.contains(devId))
            item->setCheckState(Qt::Checked);
        if (item->checkState() == Qt::Checked)
            ticked.insert(devId);
    }
    m_ticked = ticked.size();
    const QList<vms_sdk::DevInfo> devices = orda_data::DevsMgrData::instance().getAllDevs(false);
    for (const vms_sdk::DevInfo &dev : devices) {
        if (isMeant(dev.id) && !ticked.contains(dev.id) && orda_batchCfg::isConfigurable(dev))
            ++m_notReached;
    }
}

void RunDriver::configure()
{
    auto *progress = new QTimer(this);
    connect(progress, &QTimer::timeout, this, &RunDriver::followProgress);
    progress->start(progressInterval);
    m_duration.start();
    m_pauses.start();
    const QWidget *page = m_window->findChild<QWidget *>(m_family->pageName);
    page->findChild<QAbstractButton *>(QStringLiteral("okBt"))->click(); // returns when the run is over
    progress->stop();
    QCoreApplication::processEvents(); // so that the summary is drawn
    if (m_hasSummary) { // there is none when the application quits
        out() << "run: " << m_lastHeard << " ms to the last answer, " << m_duration.elapsed() << " ms in all"
              << Qt::endl;
        out() << "longest pause: " << qRound(m_pauses.longestPause()) << " ms" << Qt::endl;
        printRecord();
        answerSummary();
        saveWindowScreenshot("showRuns", "runsWindow");
        const bool hasRecord = PageRecord::of(m_window, *m_family).error.isEmpty();
        end(!hasRecord ? int(ExitNoRecord) : m_isAllDone ? int(ExitOk) : int(ExitSomeFailed));
    }
}

void RunDriver::followProgress()
{
    const auto *overlay = m_window->findChild<orda_base::DisabledWaitingWt *>();
    if (!overlay || overlay->description() == m_lastProgress)
        return;
    if (m_lastProgress.isEmpty())
        saveScreenshot(m_window, QStringLiteral("run"));
    m_lastProgress = overlay->description();
    out() << m_lastProgress << Qt::endl;
}

void RunDriver::handleSummary(const orda_worker::EventConfirmInfo &info)
{
    out() << info.title << Qt::endl << info.text << Qt::endl;
    if (m_notReached > 0)
        out() << tr("%n device(s) not reached", nullptr, m_notReached) << Qt::endl;

    // The numbers are total, success and failure, in this order in every language.
    QList<int> counts;
    auto numbers = QRegularExpression(QStringLiteral("\\d+")).globalMatch(info.text);
    while (numbers.hasNext())
        counts.append(numbers.next().captured().toInt());
    m_hasSummary = true;
    m_isAllDone = counts.value(0) == counts.value(1) && counts.value(0) >= m_options.deviceIds.size();
}

void RunDriver::answerSummary()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        if (auto *dialog = qobject_cast<QDialog *>(widget); dialog && dialog->isVisible()) {
            saveScreenshot(m_window, QStringLiteral("page-after-run"));
            saveScreenshot(dialog, QStringLiteral("summary"));
            dialog->reject();
        }
    }
}

void RunDriver::saveWindowScreenshot(const char *action, const char *windowName) const
{
    if (m_options.screenshotsDir.isEmpty())
        return;
    m_window->findChild<QAction *>(QLatin1String(action))->trigger();
    QEventLoop reading;
    QTimer::singleShot(readingPause, &reading, &QEventLoop::quit);
    reading.exec();
    auto *window = m_window->findChild<QWidget *>(QLatin1String(windowName));
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        window->resize(windowPicture); // the small screen does not matter
    saveScreenshot(window, QLatin1String(windowName));
    window->close();
}

void RunDriver::printRecord() const
{
    const PageRecord page = PageRecord::of(m_window, *m_family);
    if (!page.error.isEmpty())
        complain(page.complaint());
    if (page.isMissing())
        return; // what is in the file is from another run
    const RecordFile file(m_family->recordFile);
    out() << "record: " << file.path() << Qt::endl;
    const RecordFile::Content content = file.read();
    out() << vms_sdk::escaped(QString::fromLocal8Bit(content.bytes), QStringLiteral("\n")) << Qt::flush;
    if (!content.error.isEmpty())
        complain(tr("cannot read the record file %1: %2").arg(file.path(), content.error));
}

void RunDriver::saveScreenshot(QWidget *widget, const QString &name) const
{
    if (m_options.screenshotsDir.isEmpty())
        return;
    const QString path = QDir(m_options.screenshotsDir).filePath(name + QStringLiteral(".png"));
    if (!widget->grab().save(path))
        complain(tr("cannot write the picture %1").arg(path));
}

void RunDriver::end(int exitCode)
{
    QCoreApplication::exit(exitCode);
}

} // namespace orda_client
