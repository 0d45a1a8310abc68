#pragma once

#include "client/drive/PauseMeter.h"
#include "programs/ExitCode.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QMainWindow;
QT_END_NAMESPACE

namespace orda_worker {
struct EventConfirmInfo;
}

namespace orda_client {

struct Family;

/// What the end of a driven client tells its caller, beside orda_programs::ExitCode.
enum ClientExit
{
    ExitRecordInUse = 5, ///< nothing was configured: another client's run has the record
    ExitNoRecord = 6 ///< the run took place, but its record is missing or not whole
};

/// What a driven run is about.
struct DriveOptions
{
    QString family; ///< CfgFamily::name
    QStringList deviceIds; ///< empty: all
    QString screenshotsDir; ///< where pictures are saved; empty: there are none
};

/// Drives the form as an operator would, without one: waits until the devices have come online, opens the family's
/// page, ticks devices, presses Configure, prints progress, summary, duration, the window's longest pause and the
/// record, answers the summary and ends the application. Says first that it is for demos and pictures.
class RunDriver : public QObject
{
    Q_OBJECT

public:
    /// @param window has the form in it and must outlive the driver
    RunDriver(const DriveOptions &options, QMainWindow *window, QObject *parent = nullptr);

    /// Returns at once; the application ends with an ExitCode when the run is over.
    void start();

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void whenSettled();
    void savePageScreenshots(int from);
    void tickAndConfigure();
    void openPage(const Family &family);
    bool isMeant(const QString &devId) const;
    void tickDevices();
    void configure();
    void followProgress();
    void handleSummary(const orda_worker::EventConfirmInfo &info);
    void answerSummary();
    void saveWindowScreenshot(const char *action, const char *windowName) const;
    void printRecord() const;
    void saveScreenshot(QWidget *widget, const QString &name) const;
    static void end(int exitCode);

    DriveOptions m_options;
    const Family *m_family;
    QMainWindow *m_window;
    int m_ticked = 0;
    int m_notReached = 0; // cameras and recorders that were to be ticked and that the list does not offer
    bool m_hasSummary = false;
    bool m_isAllDone = false;
    QElapsedTimer m_duration; // since the press
    qint64 m_lastHeard = 0; // by m_duration: when the last answer or time-out came
    PauseMeter m_pauses;
    QString m_lastProgress;
};

} // namespace orda_client
