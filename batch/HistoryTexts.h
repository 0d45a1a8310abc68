#pragma once

#include "batch/BatchOptions.h"
#include "journal/HistoryRows.h"

#include <QCoreApplication>

namespace orda_batch {

/// Recorded runs as they are written to standard output, in UTF-8. Tables are safe on a terminal, whatever devices say.
class HistoryTexts
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::HistoryTexts)

public:
    /// A line a run.
    static QByteArray list(const QVector<orda_journal::RunRow> &runs, Format format);
    /// A line a device, and about the run as a whole lines before them (table) or a line after them (JSON).
    static QByteArray run(const orda_journal::RunDetails &details, Format format);

    /// How many devices had which outcome, or why that is not known.
    static QString outcomes(const orda_journal::RunRow &run, QString (*counted)(int, orda_journal::Outcome));
};

} // namespace orda_batch
