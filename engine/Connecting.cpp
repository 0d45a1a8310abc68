#include "engine/Connecting.h"

#include <orda_data/DataSignals.h>

#include <QTimer>

#include <utility>

namespace orda_engine {

Connecting::Connecting(const QStringList &devIds, std::chrono::milliseconds limit, QObject *parent)
    : QObject(parent)
    , m_unsettled(devIds.begin(), devIds.end())
    , m_total(m_unsettled.size())
{
    connect(&orda_data::DataSignals::instance(), &orda_data::DataSignals::signalDevStatusChanged, this,
            &Connecting::handleDevStatus);
    QTimer::singleShot(m_unsettled.isEmpty() ? std::chrono::milliseconds(0) : limit, this, &Connecting::end);
}

void Connecting::handleDevStatus(const QString &devId, vms_sdk::DevStatus status)
{
    if (status == vms_sdk::DevConnecting || !m_unsettled.remove(devId))
        return;
    emit signalProgress(m_total - m_unsettled.size());
    if (m_unsettled.isEmpty())
        QMetaObject::invokeMethod(this, &Connecting::end, Qt::QueuedConnection); // others handle the same signal first
}

void Connecting::end()
{
    if (!std::exchange(m_isOver, true))
        emit signalDone();
}

} // namespace orda_engine
