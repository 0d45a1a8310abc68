#pragma once

#include "journal/HistoryFile.h"
#include "journal/RunRows.h"

#include <functional>
#include <memory>

namespace orda_journal {

/// The writer's thread: puts what it is given into the file, and decides what happens when that fails.
class RunRecorder
{
    Q_DECLARE_TR_FUNCTIONS(orda_journal::RunRecorder)

public:
    /// As the signals of HistoryWriter; called on the thread of write().
    struct Reports
    {
        std::function<void(quint64 ticket)> committed;
        std::function<void(const QString &why, const QString &runId)> failed;
        std::function<void(const QString &what)> setAside;
    };

    RunRecorder(const HistoryOptions &options, Reports reports);

    void write(const RunEntries &entries);

private:
    using Place = RunEntries::const_iterator;

    void writeTogether(Place first, Place last);
    bool makeReady();
    bool transaction(Place first, Place last);
    bool writeEntry(const RunEntry &entry);
    bool prune();
    bool setAside();
    void forgetRun();
    void loseRun();

    HistoryFile m_file;
    Reports m_reports;
    QString m_runId; // of the run that was begun last, for late answers after its end too; empty when that was lost
    FileLock m_runLock; // as long as the run is under way
    std::unique_ptr<RunRows> m_rows;
    bool m_isDamaged = false; // found after the end of a run; set aside before the next
};

} // namespace orda_journal
