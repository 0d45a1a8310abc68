#include <vms_client_sdk/PostedCalls.h>

#include <utility>

namespace vms_sdk {

PostedCalls::PostedCalls(QObject *parent)
    : QObject(parent)
{
}

PostedCalls::~PostedCalls()
{
    const std::lock_guard lock(m_mutex); // the last post() was on another thread
    m_calls.clear();
}

void PostedCalls::post(std::function<void()> function)
{
    const std::lock_guard lock(m_mutex);
    m_calls.push_back(std::move(function));
    QMetaObject::invokeMethod(this, &PostedCalls::callNext, Qt::QueuedConnection);
}

void PostedCalls::callNext()
{
    std::unique_lock lock(m_mutex);
    const std::function<void()> function = std::move(m_calls.front());
    m_calls.pop_front();
    lock.unlock();
    function();
}

} // namespace vms_sdk
