#include "programs/UnixSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace orda_programs {

namespace {

int makeSignalDescriptor()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int number : {SIGINT, SIGTERM, SIGUSR1})
        sigaddset(&set, number);
    struct sigaction onHangUp = {};
    sigaction(SIGHUP, nullptr, &onHangUp);
    if (onHangUp.sa_handler != SIG_IGN) // as with nohup
        sigaddset(&set, SIGHUP);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    return signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

UnixSignals::UnixSignals(QObject *parent)
    : QObject(parent)
    , m_descriptor(makeSignalDescriptor())
    , m_notifier(new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, &UnixSignals::readSignal);
}

UnixSignals::~UnixSignals()
{
    m_notifier->setEnabled(false);
    ::close(m_descriptor);
}

void UnixSignals::readSignal()
{
    signalfd_siginfo info{};
    while (::read(m_descriptor, &info, sizeof info) == ssize_t(sizeof info))
        if (info.ssi_signo == SIGUSR1)
            emit dumpRequested();
        else if (info.ssi_signo != SIGHUP || !std::exchange(m_isHungUp, true)) // the shell and the system each send one
            emit endRequested();
}

} // namespace orda_programs
