#pragma once

#include <csignal>

namespace orda_batch {

/// While it exists, SIGINT and SIGTERM end the program at once, with exit code 6: a file that is a pipe may keep it
/// from its event loop, where these signals are told otherwise, for ever. For times when nothing has been sent and no
/// other thread can be started. GUI thread.
class EndedBySignals
{
public:
    EndedBySignals();
    ~EndedBySignals();
    EndedBySignals(const EndedBySignals &) = delete;
    EndedBySignals &operator=(const EndedBySignals &) = delete;

private:
    sigset_t m_maskBefore{};
    struct sigaction m_interruptBefore
    {
    };
    struct sigaction m_terminateBefore
    {
    };
};

} // namespace orda_batch
