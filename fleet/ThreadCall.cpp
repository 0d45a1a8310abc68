#include "fleet/ThreadCall.h"

#include <QObject>
#include <QThread>

#include <condition_variable>
#include <mutex>

namespace device_fleet {

void callOnThreadOf(QObject *object, const std::function<void()> &function)
{
    Q_ASSERT(object); // nobody would ever answer
    if (object->thread() == QThread::currentThread())
        return function();
    std::mutex mutex;
    std::condition_variable returned;
    bool hasReturned = false;
    std::unique_lock lock(mutex); // until wait() lets go of it
    QMetaObject::invokeMethod(
        object,
        [&] {
            const std::lock_guard guard(mutex);
            function();
            hasReturned = true;
            returned.notify_one();
        },
        Qt::QueuedConnection);
    returned.wait(lock, [&] { return hasReturned; });
}

} // namespace device_fleet
