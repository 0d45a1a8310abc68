#pragma once

#include "journal/HistoryOptions.h"
#include "journal/HistoryRows.h"

#include <memory>

namespace orda_journal {

/// Reads the history. Any thread, each object on the thread that made it; another process or the writer may write at
/// the same time. Reading never changes the file; no file yet is an empty history.
class HistoryReader
{
public:
    explicit HistoryReader(const HistoryOptions &options = {});
    ~HistoryReader();

    /// Why the history cannot be read, for the user; empty when the last call succeeded.
    QString error() const;

    /// The runs that began last, latest first, wherever they were made. @param limit 0: all
    QVector<RunRow> runs(int limit = 0);
    /// Ids of the runs whose id begins with @p idOrPrefix, latest first, at most two; "last" is the one
    /// that was begun here last, and one of another history only where there is no other.
    QStringList findRuns(const QString &idOrPrefix);
    /// Nothing when there is no such run.
    std::optional<RunDetails> run(const QString &id);
    /// Of each device the latest, wherever it was made; in no order. What has the same id and another serial number is
    /// another device, with an outcome of its own: DeviceRow::isReplacedBy() tells which is meant.
    QVector<LatestOutcome> latestOutcomes();

private:
    class Connection;
    std::unique_ptr<Connection> m_connection;
};

} // namespace orda_journal
