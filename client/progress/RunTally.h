#pragma once

#include "journal/Outcome.h"

#include <QMap>

#include <chrono>
#include <optional>

namespace orda_client {

/// Counts a run's outcomes, and tells from its pace how long it may still take. Times are since the run began.
class RunTally
{
public:
    using Outcome = orda_journal::Outcome;
    using Time = std::chrono::milliseconds;

    explicit RunTally(int devices = 0)
        : m_devices(devices)
    {
    }

    void add(Outcome outcome, Time now);

    int devices() const { return m_devices; }
    int settled() const;
    int left() const { return m_devices - settled(); }
    int stopped() const { return m_counts.value(Outcome::Stopped); }
    int notReached() const { return m_counts.value(Outcome::NotReached); }
    /// The device took everything, or had it already.
    int done() const;
    /// It had it already: nothing of it is another than before.
    int unchanged() const { return m_counts.value(Outcome::Unchanged); }
    /// Something was sent to it and went wrong. A device that was not reached is no failure.
    int failed() const;
    /// A write has left, and nobody knows what became of it.
    int inDoubt() const { return m_counts.value(Outcome::Unknown); }
    int partlyWritten() const { return m_counts.value(Outcome::PartlyWritten); }
    /// Nothing of the run is in the device.
    int notWritten() const;

    /// Whether more than @p percent of all devices of the run have failed; 0: never.
    bool hasFailedAbove(int percent) const;

    /// Whether devices are left and none has had its outcome for a while: then those that are left may be silent ones.
    bool isWaiting(Time now) const;
    /// Nothing in the first seconds, and while it is waiting: the pace says nothing then.
    std::optional<Time> timeLeft(Time now) const;

private:
    int m_devices;
    QMap<Outcome, int> m_counts;
    Time m_latest{0};
};

} // namespace orda_client
