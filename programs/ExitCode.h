#pragma once

namespace orda_programs {

/// What the end of a program tells its caller. A number means the same in every program; which of them a program has
/// stands in its manual.
enum ExitCode
{
    ExitOk = 0,
    ExitSomeFailed = 1,
    ExitUsage = 2,
    ExitInput = 3,
    ExitNoDevice = 4,
    ExitRecordInUse = 5, ///< nothing was configured: another client's run has the record
    ExitNoRecord = 6 ///< the run took place, but its record is missing or not whole
};

} // namespace orda_programs
