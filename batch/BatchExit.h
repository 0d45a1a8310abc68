#pragma once

#include "programs/ExitCode.h"

namespace orda_batch {

/// What the end of orda_batch tells its caller, beside the codes that all programs have (docs/batch.md).
enum BatchExit
{
    ExitNotReached = 5, ///< some selected devices could not be reached
    ExitStopped = 6, ///< by Ctrl+C, by the share of failures, or by whoever was asked
    ExitDiffers = 7, ///< some devices do not hold what was written to them
    ExitHistory = 8, ///< the history cannot be written, or read
    ExitWouldChange = 10 ///< of a plan
};

} // namespace orda_batch
