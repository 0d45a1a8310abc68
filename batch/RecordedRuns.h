#pragma once

#include "journal/HistoryRows.h"

#include <QCoreApplication>
#include <QStringList>

#include <optional>

namespace orda_journal {
class HistoryReader;
}

namespace orda_batch {

/// Runs of the history, as the command line names them.
class RecordedRuns
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::RecordedRuns)

public:
    /// @param run an id, the beginning of just one id, or "last"
    /// @param error no such run, several, or a history that cannot be read
    static std::optional<orda_journal::RunDetails> find(orda_journal::HistoryReader *history, const QString &run,
                                                        QString *error);
    /// The devices of a run whose outcome is neither done nor unchanged.
    static QStringList failedIn(const orda_journal::RunDetails &run);
};

} // namespace orda_batch
