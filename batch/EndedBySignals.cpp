#include "batch/EndedBySignals.h"

#include "batch/BatchExit.h"

#include <cstdlib>

namespace orda_batch {

EndedBySignals::EndedBySignals()
{
    struct sigaction end = {};
    end.sa_handler = [](int) { std::_Exit(ExitStopped); };
    ::sigaction(SIGINT, &end, &m_interruptBefore);
    ::sigaction(SIGTERM, &end, &m_terminateBefore);
    sigset_t both;
    sigemptyset(&both);
    sigaddset(&both, SIGINT);
    sigaddset(&both, SIGTERM);
    pthread_sigmask(SIG_UNBLOCK, &both, &m_maskBefore);
}

EndedBySignals::~EndedBySignals()
{
    pthread_sigmask(SIG_SETMASK, &m_maskBefore, nullptr);
    ::sigaction(SIGINT, &m_interruptBefore, nullptr);
    ::sigaction(SIGTERM, &m_terminateBefore, nullptr);
}

} // namespace orda_batch
