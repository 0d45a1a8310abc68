#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QObject>
#include <QSet>

#include <chrono>

namespace orda_engine {

/// Waits until the first attempt to connect each of some devices has an outcome, good or bad. To be made before the
/// devices are given to the session. GUI thread.
class Connecting : public QObject
{
    Q_OBJECT

public:
    /// Longer than the SDK takes to dial each of many silent devices once, 32 at a time.
    static constexpr std::chrono::seconds usualLimit{60};

    /// @param limit the waiting ends then, whatever is missing
    Connecting(const QStringList &devIds, std::chrono::milliseconds limit, QObject *parent = nullptr);

signals:
    /// @param settled how many have an outcome
    void signalProgress(int settled);
    /// Once, from the event loop, when whoever else follows the devices has heard of the last one, too.
    void signalDone();

private:
    void handleDevStatus(const QString &devId, vms_sdk::DevStatus status);
    void end();

    QSet<QString> m_unsettled;
    int m_total;
    bool m_isOver = false;
};

} // namespace orda_engine
