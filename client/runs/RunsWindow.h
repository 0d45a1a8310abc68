#pragma once

#include "client/common/ToolWindow.h"
#include "client/runs/RunCheck.h"

#include <QPointer>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace orda_base {
class DelayedCall;
}
namespace orda_journal {
struct RunStart;
}

namespace orda_client {

class ChosenRunPane;
class ClientSession;
class RunJobs;
class RunListModel;
class SearchedTable;

/// The runs of the history and the devices of one of them; from here a run is tried again, verified, taken back and
/// compared with another. Follows the runs of this program, and what other programs wrote when it gets the focus.
class RunsWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or a window that has it
    /// @param session, @param jobs must outlive this window
    RunsWindow(ClientSession *session, RunJobs *jobs, QWidget *form, ClientSettings *settings, QWidget *parent);

    /// Turns to a run, as soon as the history has it. @param runId empty: the latest
    void showRun(const QString &runId);

protected:
    bool event(QEvent *event) override;

private:
    QWidget *buildRuns();
    QWidget *buildLine();
    QWidget *buildButtons();
    void followRuns();
    void takeRuns(const RunLines &runs);
    void takeRun(const ChosenRunPtr &run);
    void select(int row);
    void chooseSelected();
    void choose(const QString &runId);
    void updateView();
    QString lineText() const;
    QStringList writtenDevices() const;
    QVector<int> comparableRuns() const;

    void askToTryAgain();
    void check(RunCheck::Kind kind);
    void compare();
    void openRecord();

    ClientSession *m_session;
    RunJobs *m_jobs;
    QPointer<QWidget> m_form;
    RunHistory *m_history;
    RunListModel *m_model;
    orda_base::DelayedCall *m_readSoon; // after a run has begun: it takes a moment until the history has it
    orda_base::DelayedCall *m_progress;
    QString m_wanted; // the run to turn to; empty with m_wantsLatest: the latest
    bool m_wantsLatest = true;
    bool m_isListing = false; // the list is being filled: what is selected meanwhile is not the user's choice
    QString m_chosen; // id of the run that is shown, or is being read
    bool m_isRunGoingOn; // in this program; a reading that keeps a run from beginning is told by the engine
    int m_settled = 0, m_total = 0; // devices of that run; 0: it began before this window

    SearchedTable *m_runs = nullptr;
    ChosenRunPane *m_pane = nullptr;
    QLabel *m_line = nullptr;
    QPushButton *m_stop = nullptr; // this window may cover what the main window has for it
    QPushButton *m_tryAgain = nullptr;
    QPushButton *m_verify = nullptr;
    QPushButton *m_undo = nullptr;
    QPushButton *m_compare = nullptr;
    QPushButton *m_export = nullptr;
};

} // namespace orda_client
