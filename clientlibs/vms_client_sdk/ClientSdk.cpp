#include "ClientSdk.h"

#include "ClientSignals.h"
#include "DeviceTransport.h"
#include "Logging.h"

#include <QCoreApplication>
#include <QThread>

#include <utility>

namespace vms_sdk {

ClientSdk &ClientSdk::instance()
{
    static ClientSdk sdk;
    return sdk;
}

ClientSdk::ClientSdk()
    : m_transportContext(std::make_unique<QObject>())
{
    m_clock.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { checkTimeouts(); });
    // Transport and timer must not outlive the application object: this object is destroyed after it, with the statics.
    qAddPostRoutine([] { instance().setTransport(nullptr); });
}

void ClientSdk::setTransport(std::unique_ptr<DeviceTransport> transport)
{
    m_transport.reset();
    m_transportContext = std::make_unique<QObject>();
    m_pending.clear();
    m_timedOut.clear();
    m_timer.stop();

    m_transport = std::move(transport);
    if (!m_transport)
        return;
    QObject::connect(
        m_transport.get(), &DeviceTransport::answered, m_transportContext.get(),
        [this](const QString &requestId, const QString &text) { passOnAnswer(requestId, text); }, Qt::QueuedConnection);
    QObject::connect(
        m_transport.get(), &DeviceTransport::devStatusChanged, m_transportContext.get(),
        [](const QString &devId, DevStatus status) {
            emit ClientSignals::instance().signalDevStatusChanged(devId, status);
        },
        Qt::QueuedConnection);
}

void ClientSdk::setRequestTimeout(std::chrono::milliseconds timeout)
{
    m_pending.advanceTo(m_clock.elapsed());
    m_pending.setTimeout(timeout);
    if (m_timer.isActive())
        startTimer(); // at the new pace
}

void ClientSdk::send(const QString &requestId, const QString &devId, const QString &text)
{
    Q_ASSERT(QThread::currentThread() == m_timer.thread());
    m_pending.advanceTo(m_clock.elapsed());
    m_pending.add(requestId);
    if (!m_timer.isActive())
        startTimer();

    qCDebug(sdkLog) << requestId << "sent to" << devId << text.size() << "characters";
    if (m_transport)
        m_transport->send(requestId, devId, text);
    else
        qCDebug(sdkLog) << "request" << requestId << "to" << devId << "dropped: there is no transport";
}

void ClientSdk::renew(const QString &requestId)
{
    if (!isClockFresh())
        m_pending.advanceTo(m_clock.elapsed());
    m_pending.renew(requestId);
}

bool ClientSdk::isClockFresh() const
{
    // A listener may wait in an event loop of its own, for as long as it likes.
    return m_raisingLevel >= 0 && m_raisingLevel == m_timer.thread()->loopLevel();
}

template <typename Raise>
void ClientSdk::raise(Raise signal)
{
    m_pending.advanceTo(m_clock.elapsed());
    const int outer = std::exchange(m_raisingLevel, m_timer.thread()->loopLevel());
    signal(ClientSignals::instance());
    m_raisingLevel = outer;
}

void ClientSdk::passOnAnswer(const QString &requestId, const QString &text)
{
    qCDebug(sdkLog) << requestId << "answered:" << text.size() << "characters";
    raise([&](ClientSignals &sdk) { emit sdk.signalCommonRes(requestId, text); });
}

void ClientSdk::checkTimeouts()
{
    m_pending.advanceTo(m_clock.elapsed());
    m_timedOut += m_pending.takeDue();
    // Before the signals: a listener may wait in an event loop of its own, and the others' time-outs must come all the
    // same.
    if (!m_pending.isEmpty() || !m_timedOut.isEmpty())
        startTimer();
    while (!m_timedOut.isEmpty())
        raise([id = m_timedOut.takeFirst()](ClientSignals &sdk) { emit sdk.signalRequestTimeout(id, QVariant()); });
}

void ClientSdk::startTimer()
{
    m_timer.start(int(m_pending.untilNextTick()));
}

} // namespace vms_sdk
