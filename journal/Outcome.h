#pragma once

#include <QString>
#include <QStringList>

namespace orda_journal {

/// What became of one device in a run. Each device of a run has exactly one.
enum class Outcome
{
    Done, ///< written, and the device took it
    Unchanged, ///< written, and the device had it already
    Failed, ///< nothing of it is in the device
    Unknown, ///< a write has left and its answer has not come: the device may have it
    Stopped, ///< the run was stopped before anything was written to it
    PartlyWritten, ///< some exchanges are in the device, others are not
    NotReached, ///< nothing was sent to it
    Differs ///< written, but read again it holds something else
};

/// "done", "partly-written" and so on: in the history, and for programs. Never translated.
QString outcomeName(Outcome outcome);
/// All of them, in the order of the enumeration.
QStringList outcomeNames();
/// @param isKnown false when no outcome has this name
Outcome outcomeFromName(const QString &name, bool *isKnown);

/// Codes of results that neither a device nor the SDK gives.
enum JournalCode
{
    StoppedCode = -61010, ///< the run was stopped before this request left
    NotRecordedCode = -61011 ///< the history cannot be written, so nothing is written to devices either
};

} // namespace orda_journal
