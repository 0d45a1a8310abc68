#pragma once

#include "journal/HistoryRows.h"

#include <QHash>
#include <QSqlQuery>

#include <variant>
#include <vector>

namespace orda_journal {

class HistoryFile;

struct RunBegin
{
    RunStart start;
    QVector<DeviceRow> devices; ///< those of the run, as the device store has them
    QString program;
    qint64 began = 0;
    bool isFromElsewhere = false; ///< of another history: never the latest run of this one
};

struct RunEnd
{
    qint64 ended = 0;
};

/// What the writer's thread is given.
struct RunEntry
{
    quint64 ticket = 0;
    QString runId;
    std::variant<RunBegin, ExchangeRow, DeviceRow, RunEnd> what;
};
using RunEntries = std::vector<RunEntry>;

/// Writes the rows of one run, within transactions of the caller's. Each function returns false when the file failed.
/// To be deleted before the file is closed.
class RunRows
{
public:
    explicit RunRows(HistoryFile *file);

    bool write(const RunBegin &begin);
    bool write(const ExchangeRow &row);
    /// A row without an outcome brings a late answer. After the end an outcome is ignored: they have been counted.
    bool write(const DeviceRow &row);
    bool write(const RunEnd &end);

private:
    qint64 numberOf(const QString &devId) const;

    HistoryFile *m_file;
    QSqlQuery m_putExchange, m_putDevice, m_putLate;
    qint64 m_number = 0; // of the run
    QHash<QString, qint64> m_numbers; // of its devices
    bool m_hasEnded = false;
};

} // namespace orda_journal
