#pragma once

#include "client/form/ParameterTexts.h"
#include "journal/HistoryRows.h"

#include <QVector>

namespace orda_client {

/// A device in two runs of one family.
struct ComparedDevice
{
    /// In the order in which an operator wants to see them.
    enum State
    {
        OutcomesDiffer,
        ValuesDiffer, ///< what was read or written; the outcomes are the same
        OnlyInFirst,
        OnlyInSecond,
        Same
    };

    State state = Same;
    std::optional<orda_journal::DeviceRow> first, second; ///< at least one
    QString read; ///< what differs in what the device held before: "Volume: 5 → 7", first and second run
    QString written; ///< the same of what it was sent

    const orda_journal::DeviceRow &row() const { return first ? *first : *second; }
};

/// Compares device by device, in the order of the first run and then of the second. A device whose serial number is
/// another one in the second run is another device. Pure; any thread.
/// @param texts of the family of both runs
QVector<ComparedDevice> compareRuns(const orda_journal::RunDetails &first, const orda_journal::RunDetails &second,
                                    const ParameterTexts &texts);

} // namespace orda_client
