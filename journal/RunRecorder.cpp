#include "journal/RunRecorder.h"

#include "journal/HistoryUpkeep.h"
#include "journal/Logging.h"

#include <utility>

namespace orda_journal {

namespace {

template <typename What>
bool is(const RunEntry &entry)
{
    return std::holds_alternative<What>(entry.what);
}

} // namespace

RunRecorder::RunRecorder(const HistoryOptions &options, Reports reports)
    : m_file(options)
    , m_reports(std::move(reports))
{
}

// A run's beginning is the first in its transaction and its end the last.
void RunRecorder::write(const RunEntries &entries)
{
    for (auto first = entries.cbegin(); first != entries.cend();) {
        auto last = first + 1;
        while (last != entries.cend() && !is<RunBegin>(*last) && !is<RunEnd>(*(last - 1)))
            ++last;
        writeTogether(first, last);
        first = last;
    }
}

void RunRecorder::writeTogether(Place first, Place last)
{
    const bool begins = is<RunBegin>(*first);
    if (begins) {
        forgetRun();
        m_runId = first->runId;
    }
    if (m_runId.isEmpty())
        return; // the run was lost
    bool isWritten = (!begins || makeReady()) && transaction(first, last);
    if (!isWritten && begins && m_file.fault() == HistoryFile::Damaged) // nothing of this run is in the damaged file
        isWritten = setAside() && makeReady() && transaction(first, last);
    if (!isWritten) {
        loseRun();
        return;
    }
    const RunEntry &latest = *(last - 1);
    m_reports.committed(latest.ticket);
    if (is<RunEnd>(latest) && latest.runId == m_runId) {
        m_runLock.releaseAndRemove();
        m_isDamaged = !prune();
        m_file.run(QStringLiteral("PRAGMA wal_checkpoint(PASSIVE)")); // waits for nobody
    }
}

bool RunRecorder::makeReady()
{
    if (m_isDamaged && !setAside())
        return false;
    if (!m_file.isOpen() || !m_file.isInPlace()) {
        QString what;
        const bool isOpen = m_file.openToWrite(&what);
        if (!what.isEmpty())
            m_reports.setAside(what);
        if (!isOpen)
            return false;
    }
    if (!settleRuns(&m_file))
        return false;
    removeLeftLocks(m_file);
    return true; // old runs are removed after this one, whose writes would wait for it
}

bool RunRecorder::transaction(Place first, Place last)
{
    if (is<RunBegin>(*first)) {
        const QString why = m_runLock.take(m_file.lockPath(m_runId), std::chrono::milliseconds(0));
        if (!why.isEmpty())
            return m_file.fail(HistoryFile::Unusable, why);
    } else if (!m_file.isInPlace()) {
        // Nobody would find the rest of the run there.
        return m_file.fail(HistoryFile::Unusable,
                           tr("%1: it was renamed or removed during the run").arg(m_file.options().path));
    }
    if (!m_file.begin())
        return false;
    if (is<RunBegin>(*first))
        m_rows = std::make_unique<RunRows>(&m_file);
    bool isWritten = m_file.fault() == HistoryFile::NoFault;
    for (auto entry = first; entry != last && isWritten; ++entry)
        isWritten = writeEntry(*entry);
    if (isWritten && m_file.commit())
        return true;
    m_rows.reset(); // SQLite would not roll back under an unfinished query
    m_file.rollBack();
    return false;
}

bool RunRecorder::writeEntry(const RunEntry &entry)
{
    if (entry.runId == m_runId)
        return std::visit([this](const auto &what) { return m_rows->write(what); }, entry.what);
    qCDebug(logJournal).noquote() << "dropped, of another run than the latest:" << entry.runId;
    return true;
}

// @return false when the file turned out to be damaged. Any other failure only leaves the file larger than it should be
bool RunRecorder::prune()
{
    int removed = 0;
    const bool isPruned = pruneRuns(&m_file, &removed);
    if (removed > 0)
        qCDebug(logJournal) << "old runs removed:" << removed;
    if (isPruned || m_file.fault() == HistoryFile::Damaged)
        return m_file.fault() == HistoryFile::NoFault;
    qCWarning(logJournal).noquote() << "old runs cannot be removed:" << m_file.error();
    m_file.clearError();
    return true;
}

bool RunRecorder::setAside()
{
    QString what;
    const bool isDone = m_file.setAside(&what);
    m_rows.reset();
    m_file.close();
    m_isDamaged = false;
    if (!what.isEmpty())
        m_reports.setAside(what);
    return isDone;
}

void RunRecorder::forgetRun()
{
    m_rows.reset();
    m_runLock.releaseAndRemove(); // of a run that did not end: it is settled with those of other programs
    m_runId.clear();
}

void RunRecorder::loseRun()
{
    const QString why = m_file.error();
    const QString runId = m_runId;
    if (m_file.fault() == HistoryFile::Damaged)
        setAside();
    forgetRun();
    m_file.close();
    m_reports.failed(tr("The history cannot be written. %1").arg(why), runId);
}

} // namespace orda_journal
