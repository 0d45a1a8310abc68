#pragma once

#include "batch/BatchOptions.h"

namespace orda_journal {
struct HistoryOptions;
}

namespace orda_batch {

/// Carries out a command about the recorded runs: lists them, shows one, removes old ones, writes one out, takes in
/// what was written out elsewhere. Writes to standard output, complains on the standard error output.
/// @return the exit code
int runHistoryCommand(const BatchOptions &options, const orda_journal::HistoryOptions &history);

} // namespace orda_batch
