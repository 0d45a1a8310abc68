#pragma once

#include "batch/BatchOptions.h"

namespace orda_batch {

/// Writes to standard output which families there are, or the keys of one with their types, ranges and choices.
/// @return the exit code
int showFamilies(const BatchOptions &options);

} // namespace orda_batch
