#pragma once

#include "journal/HistoryOptions.h"
#include "journal/HistoryRows.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace orda_journal {

/// Runs on their way from one machine's history into another's, and the upkeep that is asked for by hand. Any thread;
/// another process or a writer may use the history at the same time.
class HistoryArchive
{
    Q_DECLARE_TR_FUNCTIONS(orda_journal::HistoryArchive)

public:
    /// Everything that the history has of a run that has ended.
    static QJsonObject toJson(const RunDetails &run);
    /// @param error which member is wrong and what would be right, for the user; then the run is of no use
    static RunDetails fromJson(const QJsonObject &object, QString *error);

    explicit HistoryArchive(const HistoryOptions &options);

    /// Adds a run as it is, all of it or nothing. Ends runs whose program is gone, first.
    /// @param isKnown set when the history has it already; nothing is changed then
    /// @return an error for the user; empty when the history has the run
    QString add(const RunDetails &run, bool *isKnown);
    /// Removes runs as HistoryOptions says, at once. @param removed how many @return as add()
    QString prune(int *removed);

private:
    HistoryOptions m_options;
};

} // namespace orda_journal
