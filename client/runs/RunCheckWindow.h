#pragma once

#include "client/common/ToolWindow.h"
#include "client/runs/RunCheck.h"

#include <QFutureWatcher>
#include <QHash>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace orda_base {
class DelayedCall;
}

namespace orda_client {

class ClientSession;
class RunCheckModel;
class RunJobs;
class SearchedTable;

/// Reads devices that a run has written to and shows, device by device, whether they are still as it has left them, or
/// what taking the run back would write; and takes it back, on exactly the devices for which it shows that. What it
/// shows is of a moment: once another run has begun or the inventory has changed, nothing is taken back before the
/// devices were read again.
class RunCheckWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// Begins to read at once.
    /// @param devIds of check.run->recorded.written()
    /// @param session, @param jobs must outlive this window
    RunCheckWindow(const RunCheck &check, const QStringList &devIds, ClientSession *session, RunJobs *jobs,
                   ClientSettings *settings, QWidget *parent);

signals:
    /// The run is being taken back. @param runId of the run that does it
    void signalRunStarted(const QString &runId);

private:
    void buildTable();
    QWidget *buildLine();
    QWidget *buildButtons();
    void read();
    void take(const orda_engine::DeviceReading &reading);
    void endReading(const QString &error);
    void workOut();
    void outdate(const QString &why);
    void updateView();
    QString resultText() const;
    QStringList devicesToTakeBack() const;
    void askToTakeBack();

    RunCheck m_check;
    const QStringList m_devIds;
    ClientSession *m_session;
    RunJobs *m_jobs;
    QPointer<orda_engine::ReadJob> m_job; // while it reads
    QHash<QString, orda_engine::DeviceReading> m_readings;
    int m_toRead = 0;
    bool m_isRunGoingOn; // in this program
    QString m_error; // why nothing was read
    QString m_outdated; // what has happened since the devices were read; empty: nothing
    QFutureWatcher<QVector<CheckedDevice>> m_worker;
    orda_base::DelayedCall *m_progress;
    RunCheckModel *m_model;
    SearchedTable *m_table = nullptr;
    QLabel *m_line = nullptr;
    QPushButton *m_stop = nullptr;
    QPushButton *m_again = nullptr;
    QPushButton *m_export = nullptr;
    QCheckBox *m_force = nullptr; // null: verify
    QPushButton *m_undo = nullptr; // likewise
};

} // namespace orda_client
