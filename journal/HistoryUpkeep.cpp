#include "journal/HistoryUpkeep.h"

#include "journal/HistoryFile.h"
#include "journal/Outcome.h"
#include "run/ParamsCfgTask.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>
#include <QVector>

#include <algorithm>
#include <limits>

namespace orda_journal {

namespace {

constexpr int pagesAtOnce = 1000; // given back to the disk in one transaction: other processes wait for it

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(orda_journal::HistoryUpkeep)
};

bool giveOutcome(HistoryFile *file, qint64 runNumber, Outcome outcome, int code, const QString &devices)
{
    QSqlQuery query = file->prepare(
        QStringLiteral("UPDATE devices SET outcome = ?, code = ?, message = ? WHERE run = ? AND outcome = ''")
        + devices);
    return file->run(query, outcomeName(outcome), code,
                     Texts::tr("no outcome was recorded: the program ended, or could not write the history on"),
                     runNumber);
}

bool settle(HistoryFile *file, qint64 runNumber)
{
    if (!file->begin())
        return false;
    QSqlQuery query = file->prepare(QStringLiteral("SELECT 1 FROM runs WHERE number = ? AND ended = 0"));
    const bool isOpen = file->run(query, runNumber) && file->next(query); // another process may have been faster
    query.finish();
    if (isOpen)
        finishRun(file, runNumber, QDateTime::currentMSecsSinceEpoch());
    if (file->commit())
        return true;
    file->rollBack();
    return false;
}

qint64 usedBytes(HistoryFile *file)
{
    const qint64 pages = file->value(QStringLiteral("PRAGMA page_count")).toLongLong()
                       - file->value(QStringLiteral("PRAGMA freelist_count")).toLongLong();
    return pages * file->value(QStringLiteral("PRAGMA page_size")).toLongLong();
}

// One transaction a run: other processes wait no longer than that.
bool remove(HistoryFile *file, qint64 runNumber)
{
    if (!file->begin())
        return false;
    QSqlQuery query = file->prepare(QStringLiteral("DELETE FROM runs WHERE number = ?"));
    if (file->run(query, runNumber) && file->commit())
        return true;
    query.finish();
    file->rollBack();
    return false;
}

// The pragma frees one page each time that Qt runs it, as it gives a row for each page and Qt takes it for a statement
// without rows.
bool giveSpaceBack(HistoryFile *file)
{
    for (int before = std::numeric_limits<int>::max();;) {
        const int pages = file->value(QStringLiteral("PRAGMA freelist_count")).toInt();
        // A file that another program has rewritten may not give its space back.
        if (pages == 0 || pages >= before || file->fault() != HistoryFile::NoFault || !file->begin())
            break;
        before = pages;
        QSqlQuery query = file->prepare(QStringLiteral("PRAGMA incremental_vacuum(1)"));
        for (int page = std::min(pages, pagesAtOnce); page > 0 && file->fault() == HistoryFile::NoFault; --page)
            file->run(query);
        query.finish();
        if (!file->commit()) {
            file->rollBack();
            return false;
        }
    }
    return file->fault() == HistoryFile::NoFault && file->run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
}

} // namespace

bool finishRun(HistoryFile *file, qint64 runNumber, qint64 ended)
{
    if (!giveOutcome(
            file, runNumber, Outcome::Unknown, orda_batchCfg::ParamsCfgTask::TimedOut,
            QStringLiteral(" AND EXISTS (SELECT 1 FROM exchanges WHERE device = devices.number AND sent <> '')"))
        || !giveOutcome(file, runNumber, Outcome::Stopped, StoppedCode, QString()))
        return false;
    QSqlQuery query =
        file->prepare(QStringLiteral("SELECT outcome, count(*) FROM devices WHERE run = ? GROUP BY outcome"));
    QJsonObject counts;
    if (file->run(query, runNumber))
        while (file->next(query))
            counts.insert(query.value(0).toString(), query.value(1).toInt());
    query = file->prepare(QStringLiteral("UPDATE runs SET ended = ?, outcomes = ? WHERE number = ?"));
    return file->run(query, ended, QString::fromUtf8(QJsonDocument(counts).toJson(QJsonDocument::Compact)), runNumber);
}

bool settleRuns(HistoryFile *file)
{
    QVector<QPair<qint64, QString>> open; // number and id
    {
        QSqlQuery query = file->prepare(QStringLiteral("SELECT number, id FROM runs WHERE ended = 0"));
        if (file->run(query))
            while (file->next(query))
                open.append({query.value(0).toLongLong(), query.value(1).toString()});
    }
    for (const auto &[number, id] : qAsConst(open)) {
        FileLock lock;
        if (!lock.take(file->lockPath(id), std::chrono::milliseconds(0)).isEmpty())
            continue; // its program lives
        if (!settle(file, number))
            return false;
        lock.releaseAndRemove();
    }
    return file->fault() == HistoryFile::NoFault;
}

void removeLeftLocks(const HistoryFile &file)
{
    const QDir directory = QFileInfo(file.options().path).absoluteDir();
    const QStringList names = directory.entryList({QStringLiteral("*.lock")}, QDir::Files);
    for (const QString &name : names) {
        FileLock lock;
        const QString path = directory.filePath(name);
        if (file.lockPath(name.chopped(int(qstrlen(".lock")))) == path
            && lock.take(path, std::chrono::milliseconds(0)).isEmpty())
            lock.releaseAndRemove();
    }
}

bool pruneRuns(HistoryFile *file, int *removed)
{
    const HistoryOptions &options = file->options();
    const qint64 oldest = QDateTime::currentDateTimeUtc().addDays(-options.keptDays).toMSecsSinceEpoch();
    QVector<QPair<qint64, qint64>> candidates; // number and beginning, the oldest first
    {
        QSqlQuery query = file->prepare(
            QStringLiteral("SELECT number, began FROM runs WHERE ended <> 0 AND number NOT IN (SELECT number "
                           "FROM runs ORDER BY number DESC LIMIT ?) ORDER BY number"));
        if (file->run(query, options.keptRuns))
            while (file->next(query))
                candidates.append({query.value(0).toLongLong(), query.value(1).toLongLong()});
    }
    for (const auto &[number, began] : qAsConst(candidates)) {
        if (began >= oldest && usedBytes(file) <= options.keptBytes)
            continue;
        if (!remove(file, number))
            return false;
        ++*removed;
    }
    return file->fault() == HistoryFile::NoFault && (*removed == 0 || giveSpaceBack(file));
}

} // namespace orda_journal
