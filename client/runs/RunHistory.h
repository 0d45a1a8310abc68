#pragma once

#include "client/runs/RunTexts.h"
#include "engine/RecordedRun.h"
#include "journal/HistoryOptions.h"

#include <QFutureWatcher>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>

namespace orda_client {

/// A run in a list of runs, ready to be shown.
struct RunLine
{
    orda_journal::RunRow run;
    QString family; ///< title
    QString kind; ///< "Configured" or "Undo of …"
    QString values; ///< "Volume: 5; …", each parameter once
};

/// The runs of the history, latest first.
struct RunLines
{
    QVector<RunLine> lines;
    QString error; ///< why the history cannot be read, for the user; else empty
};

/// A device of a run, ready to be shown.
struct RunDevice
{
    orda_journal::DeviceRow row;
    QString changes; ///< what the run changed, or was to change: "Volume: 5 → 7; …"
};

/// One run with its devices. Never changed: threads share it.
struct ChosenRun
{
    RunLine line;
    QVector<RunDevice> devices; ///< in the order in which they were chosen
    orda_engine::RecordedRun recorded; ///< for verify and undo
};
using ChosenRunPtr = std::shared_ptr<const ChosenRun>;

/// What a history has, read at once. Any thread.
RunLines readRunLines(const orda_journal::HistoryOptions &options, const RunTexts &texts);
/// @param error why the history cannot be read, for the user; else empty. @return null when it has no such run, too
ChosenRunPtr readChosenRun(const orda_journal::HistoryOptions &options, const RunTexts &texts, const QString &runId,
                           QString *error);

/// Reads the history in another thread. Of requests that come while it reads only the latest counts. GUI thread.
class RunHistory : public QObject
{
    Q_OBJECT

public:
    /// @param form as for RunTexts, read anew at each request; nothing is read once it is gone
    RunHistory(const orda_journal::HistoryOptions &options, QWidget *form, QObject *parent = nullptr);

    void readRuns();
    void readRun(const QString &runId);

signals:
    void signalRuns(const orda_client::RunLines &runs);
    /// @param run null: the history does not have it any more, or cannot be read
    void signalRun(const orda_client::ChosenRunPtr &run);

private:
    orda_journal::HistoryOptions m_options;
    QPointer<QWidget> m_form;
    QFutureWatcher<RunLines> m_runs;
    QFutureWatcher<ChosenRunPtr> m_run;
    bool m_readsRunsAgain = false;
    std::optional<QString> m_nextRun;
};

} // namespace orda_client
