#pragma once

namespace orda_programs {

/// What the end of a program tells its caller. These numbers mean the same in every program; what others mean is each
/// program's own affair and stands in its manual.
enum ExitCode
{
    ExitOk = 0,
    ExitSomeFailed = 1,
    ExitUsage = 2,
    ExitInput = 3,
    ExitNoDevice = 4
};

} // namespace orda_programs
