#pragma once

#include <vms_client_sdk/StatusChanges.h>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace vms_sdk {

/// Passes changes of state on as a transport tells them, merged where a device makes too many. Lives on the thread of
/// its owner.
class StatusRelay : public QObject
{
    Q_OBJECT

public:
    explicit StatusRelay(QObject *parent);

    void add(const QString &devId, DevStatus status, const LinkTrouble &trouble);

Q_SIGNALS:
    // As DeviceTransport has them.
    void devStatusChanged(const QString &devId, vms_sdk::DevStatus status);
    void linkTroubled(const QString &devId, const vms_sdk::LinkTrouble &trouble);

private:
    void passOn(const QVector<StatusChanges::Change> &changes);

    QElapsedTimer m_clock;
    StatusChanges m_changes;
    QTimer m_timer;
};

} // namespace vms_sdk
