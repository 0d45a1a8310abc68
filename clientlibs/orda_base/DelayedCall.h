#pragma once

#include <QTimer>

#include <functional>

namespace orda_base {

/// Calls a function once for many requests, a fixed time after the first of them: thousands of devices change at a
/// time, and what they change is to be brought up to date once.
class DelayedCall : public QObject
{
public:
    DelayedCall(std::chrono::milliseconds delay, const std::function<void()> &function, QObject *parent)
        : QObject(parent)
    {
        m_timer.setSingleShot(true);
        m_timer.setInterval(delay);
        connect(&m_timer, &QTimer::timeout, this, function);
    }

    /// Does nothing while the call of an earlier request is still to come.
    void request()
    {
        if (!m_timer.isActive())
            m_timer.start();
    }

private:
    QTimer m_timer;
};

} // namespace orda_base
