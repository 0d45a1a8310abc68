#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace vms_sdk {

/// Calls functions on the thread that its parent lives on, in the order in which they were posted; those that are left
/// when it goes are deleted without being called. Stands in for posted lambdas, which are handed over by a lock of Qt's
/// that the thread sanitizer cannot see.
class PostedCalls : public QObject
{
    Q_OBJECT

public:
    explicit PostedCalls(QObject *parent);
    ~PostedCalls() override;

    void post(std::function<void()> function); ///< from any thread

private:
    void callNext();

    std::mutex m_mutex;
    std::deque<std::function<void()>> m_calls; ///< under the mutex; one wake-up for each
};

} // namespace vms_sdk
