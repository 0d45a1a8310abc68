#include "client/progress/RunTally.h"

#include <numeric>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

constexpr auto firstSeconds = 3s;
constexpr auto longPause = 3s; // between two outcomes

} // namespace

void RunTally::add(Outcome outcome, Time now)
{
    ++m_counts[outcome];
    m_latest = now;
}

int RunTally::settled() const
{
    return std::accumulate(m_counts.begin(), m_counts.end(), 0);
}

int RunTally::done() const
{
    return m_counts.value(Outcome::Done) + unchanged();
}

int RunTally::failed() const
{
    return m_counts.value(Outcome::Failed) + inDoubt() + partlyWritten() + m_counts.value(Outcome::Differs);
}

int RunTally::notWritten() const
{
    return m_counts.value(Outcome::Failed) + stopped() + notReached();
}

bool RunTally::hasFailedAbove(int percent) const
{
    return percent > 0 && qint64(failed()) * 100 > qint64(percent) * m_devices;
}

bool RunTally::isWaiting(Time now) const
{
    return left() > 0 && now - m_latest > longPause;
}

std::optional<RunTally::Time> RunTally::timeLeft(Time now) const
{
    const int asked = settled() - notReached(); // those that were not reached took no time
    if (asked == 0 || left() == 0 || now < firstSeconds || isWaiting(now))
        return std::nullopt;
    return now * left() / asked;
}

} // namespace orda_client
