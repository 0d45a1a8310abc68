#pragma once

#include "batch/BatchOptions.h"

namespace orda_batch {

/// Writes a text at once, for commands that wait for nobody. What devices say may be commands to a terminal: there it
/// is escaped; a file gets it as it is.
/// @return the exit code; what is wrong has been complained about
int print(QString text, Format format = Format::Table);

} // namespace orda_batch
