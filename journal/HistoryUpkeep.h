#pragma once

#include <QtGlobal>

namespace orda_journal {

class HistoryFile;

// What keeps the history in order. Each returns false when the file failed.

/// Within a transaction: ends a run. Devices without an outcome get the one that can be known: a device to which
/// something was sent may have it (Unknown), to the others nothing has left (Stopped).
bool finishRun(HistoryFile *file, qint64 runNumber, qint64 ended);

/// Ends the runs whose program is gone. Each run under way has a lock that ends with its process.
bool settleRuns(HistoryFile *file);

/// Removes the locks that programs left which were killed shortly before a run or shortly after one.
void removeLeftLocks(const HistoryFile &file);

/// Removes runs as HistoryOptions says, and gives their space back to the disk.
/// @param removed counted up for each, even when the file fails after it
bool pruneRuns(HistoryFile *file, int *removed);

} // namespace orda_journal
