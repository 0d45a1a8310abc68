#pragma once

#include <QElapsedTimer>
#include <QTimer>

namespace orda_client {

/// Measures how long the event loop of this thread was blocked, by how late a 5 ms timer fires. A window does not react
/// for as long.
class PauseMeter
{
public:
    PauseMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(intervalMs);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
    }

    void start()
    {
        m_longest = 0;
        m_sinceTick.start();
        m_timer.start();
    }

    /// In milliseconds, since start().
    double longestPause()
    {
        tick();
        return m_longest;
    }

private:
    void tick()
    {
        m_longest = qMax(m_longest, double(m_sinceTick.nsecsElapsed()) / 1e6 - intervalMs);
        m_sinceTick.start();
    }

    static constexpr int intervalMs = 5;
    QTimer m_timer;
    QElapsedTimer m_sinceTick;
    double m_longest = 0;
};

} // namespace orda_client
