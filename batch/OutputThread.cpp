#include "batch/OutputThread.h"

#include <cerrno>
#include <condition_variable>
#include <csignal>
#include <deque>
#include <mutex>
#include <optional>
#include <poll.h>
#include <thread>

namespace orda_batch {

/// What the two threads share. The thread that writes may outlive the object that started it: one that nobody reads
/// from stays in its write to the end of the process.
class OutputThread::Queue
{
public:
    Queue(OutputThread *owner, int output, int errorOutput)
        : m_owner(owner)
        , m_output(output)
        , m_errorOutput(errorOutput)
    {
    }

    // Of the GUI thread:
    void addOutput(const QByteArray &bytes) { add({m_output, bytes}); }
    void addErrorOutput(const QByteArray &bytes) { add({m_errorOutput, bytes}); }
    void addMark() { add({-1, {}}); }
    bool isEmpty();
    void leave();

    /// Of the thread that writes: until the owner leaves.
    void run();

private:
    struct Item
    {
        int descriptor; ///< -1: a mark, which has no bytes
        QByteArray bytes;
    };

    void add(const Item &item);
    std::optional<Item> next();
    void finish(const Item &item, int error);
    int write(const Item &item);
    bool hasOwner();

    std::mutex m_mutex; // guards the queue, and the owner against its end
    std::condition_variable m_changed;
    std::deque<Item> m_items; // the first one is being written
    OutputThread *m_owner;
    const int m_output;
    const int m_errorOutput;
    bool m_isBroken = false; // of the thread that writes
};

bool OutputThread::Queue::isEmpty()
{
    const std::lock_guard lock(m_mutex);
    return m_items.empty();
}

void OutputThread::Queue::add(const Item &item)
{
    const std::lock_guard lock(m_mutex);
    m_items.push_back(item);
    m_changed.notify_one();
}

void OutputThread::Queue::leave()
{
    const std::lock_guard lock(m_mutex);
    m_owner = nullptr;
    m_changed.notify_one();
}

bool OutputThread::Queue::hasOwner()
{
    const std::lock_guard lock(m_mutex);
    return m_owner;
}

void OutputThread::Queue::run()
{
    while (const std::optional<Item> item = next()) {
        const bool isLost = m_isBroken && item->descriptor == m_output;
        finish(*item, isLost ? 0 : write(*item));
    }
}

std::optional<OutputThread::Queue::Item> OutputThread::Queue::next()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return !m_owner || !m_items.empty(); });
    return m_owner ? std::make_optional(m_items.front()) : std::nullopt;
}

void OutputThread::Queue::finish(const Item &item, int error)
{
    const std::lock_guard lock(m_mutex);
    m_items.pop_front();
    if (!m_owner)
        return;
    if (item.descriptor == -1)
        QMetaObject::invokeMethod(m_owner, &OutputThread::signalDrained, Qt::QueuedConnection);
    if (!error || item.descriptor != m_output)
        return;
    m_isBroken = true;
    const auto tell = [owner = m_owner, error] {
        emit owner->signalBroken(error == EPIPE ? QString() : qt_error_string(error));
    };
    QMetaObject::invokeMethod(m_owner, tell, Qt::QueuedConnection);
}

/// @return an errno, 0 when all is written or the owner has left
int OutputThread::Queue::write(const Item &item)
{
    const char *rest = item.bytes.constData();
    const char *const end = rest + item.bytes.size();
    while (rest < end && hasOwner()) {
        const ssize_t written = ::write(item.descriptor, rest, std::size_t(end - rest));
        if (written >= 0) {
            rest += written;
        } else if (errno == EAGAIN) { // a shell or another program that shares it does not want to be blocked
            pollfd waiting{item.descriptor, POLLOUT, 0};
            ::poll(&waiting, 1, -1);
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

OutputThread::OutputThread(QObject *parent, int output, int errorOutput)
    : QObject(parent)
    , m_queue(std::make_shared<Queue>(this, output, errorOutput))
    , m_isTerminal(::isatty(output))
{
    std::signal(SIGPIPE, SIG_IGN); // a reader that goes must end no run in the middle of its writes

    // Signals are for the GUI thread, which may not have said so yet.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread([queue = m_queue] { queue->run(); }).detach();
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

OutputThread::~OutputThread()
{
    m_queue->leave();
}

void OutputThread::write(const QByteArray &bytes)
{
    m_queue->addOutput(bytes);
}

void OutputThread::writeError(const QByteArray &bytes)
{
    m_queue->addErrorOutput(bytes);
}

void OutputThread::drain()
{
    m_queue->addMark();
}

bool OutputThread::isBehind() const
{
    return !m_queue->isEmpty();
}

} // namespace orda_batch
