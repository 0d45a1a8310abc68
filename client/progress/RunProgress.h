#pragma once

#include "client/progress/RunTally.h"
#include "journal/HistoryRows.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QProgressBar;
class QPushButton;
class QShortcut;
QT_END_NAMESPACE

namespace orda_base {
class DelayedCall;
}
namespace orda_journal {
class JournalTransport;
struct Settled;
} // namespace orda_journal

namespace orda_client {

class ClientSettings;
class ElidedLabel;

/// What a run is doing, whoever started it: how many devices are done, have failed and are left, the latest failures,
/// and Stop. Shown from the beginning of a run until its result is closed, or the next run begins. GUI thread.
///
/// Stands beside the form, not in it: during a run of a page the form is covered.
class RunProgress : public QWidget
{
    Q_OBJECT

public:
    /// @param journal that tells of the runs
    /// @param settings haltShare(), as it is when a run begins; outlives this
    RunProgress(orda_journal::JournalTransport *journal, const ClientSettings *settings, QWidget *parent = nullptr);

    /// Whether a run is under way now.
    bool isGoingOn() const { return m_refreshTimer.isActive(); }
    /// Of the run that is under way, or was last: devices, and those without an outcome.
    int devices() const { return m_tally.devices(); }
    int left() const { return m_tally.left(); }

signals:
    /// The operator wants to see a run that has ended.
    void signalShowRun(const QString &runId);

private:
    QWidget *buildButtons();
    void followRun(const orda_journal::RunStart &run);
    void takeSettled(const orda_journal::Settled &settled);
    void showEnd();
    void stop(const QString &why);
    void showButtons(bool isGoingOn);
    void refresh();
    void announce();
    QString countsText() const;
    QString resultText() const;
    QString timeText() const;

    QPointer<orda_journal::JournalTransport> m_journal; // the SDK owns it
    const ClientSettings *m_settings;
    ElidedLabel *m_counts;
    ElidedLabel *m_stopped; ///< why, and what that means
    ElidedLabel *m_offline; ///< devices of which it is known at the beginning
    ElidedLabel *m_failures;
    QProgressBar *m_bar;
    QPushButton *m_stopBt = nullptr;
    QPushButton *m_showRunBt = nullptr;
    QPushButton *m_closeBt = nullptr;
    QShortcut *m_stopShortcut;
    orda_base::DelayedCall *m_announceSoon;
    QTimer m_refreshTimer; ///< while a run goes on: its outcomes come thousands at a time
    RunTally m_tally;
    QElapsedTimer m_clock;
    QString m_runId;
    QString m_whyStopped; ///< empty: nobody has stopped it
    int m_haltShare = 0;
    QVector<orda_journal::DeviceRow> m_latestFailures; ///< the latest first
};

} // namespace orda_client
