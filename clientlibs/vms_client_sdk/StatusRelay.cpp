#include <vms_client_sdk/StatusRelay.h>

#include <chrono>

namespace vms_sdk {

namespace {

// How often merged changes are checked: they pass at most so much late.
constexpr std::chrono::milliseconds mergedStatusInterval{100};

} // namespace

StatusRelay::StatusRelay(QObject *parent)
    : QObject(parent)
    , m_timer(this)
{
    m_clock.start();
    m_timer.setInterval(mergedStatusInterval);
    connect(&m_timer, &QTimer::timeout, this, [this] { passOn(m_changes.takeDue(m_clock.elapsed())); });
}

void StatusRelay::add(const QString &devId, DevStatus status, const LinkTrouble &trouble)
{
    passOn(m_changes.add({devId, status, trouble}, m_clock.elapsed()));
}

void StatusRelay::passOn(const QVector<StatusChanges::Change> &changes)
{
    for (const auto &[devId, status, trouble] : changes) {
        if (!isOnlineStatus(status))
            emit linkTroubled(devId, trouble);
        emit devStatusChanged(devId, status);
    }
    if (!m_changes.isHolding())
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start();
}

} // namespace vms_sdk
