#pragma once

#include "batch/BatchOptions.h"
#include "batch/DeviceResult.h"
#include "journal/HistoryRows.h"

#include <QCoreApplication>

namespace orda_batch {

/// Recorded runs as they are written to standard output. Tables are safe on a terminal, whatever devices say.
class HistoryTexts
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::HistoryTexts)

public:
    /// A line a run.
    static QString list(const QVector<orda_journal::RunRow> &runs, Format format);
    /// A line a device, and about the run as a whole lines before them (table) or a line after them (JSON).
    static QString run(const orda_journal::RunDetails &details, Format format);

private:
    static QString outcomes(const orda_journal::RunRow &run);
};

} // namespace orda_batch
