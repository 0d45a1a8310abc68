#include <vms_client_sdk/ClientSdk.h>

#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/DeviceTransport.h>
#include <vms_client_sdk/Inbox.h>
#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/PendingRequests.h>
#include <vms_client_sdk/Requests.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>

#include <utility>

namespace vms_sdk {

namespace {

constexpr qint64 sliceMs = 8; // the same as the inbox has

// How long a time-out may wait for answers that arrived before it. Without a limit, devices that answer without end
// would keep a run from ending.
constexpr qint64 maxTimeoutDelayMs = 5'000;

} // namespace

ClientSdk &ClientSdk::instance()
{
    static ClientSdk sdk;
    return sdk;
}

ClientSdk::ClientSdk()
    : m_pending(std::make_unique<PendingRequests>())
{
    m_clock.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { checkTimeouts(); });
    // Transport and timer must not outlive the application object: this object is destroyed after it, with the statics.
    qAddPostRoutine([] { instance().setTransport(nullptr); });
}

ClientSdk::~ClientSdk() = default;

void ClientSdk::setTransport(std::unique_ptr<DeviceTransport> transport)
{
    m_transport.reset();
    m_inbox.reset();
    m_answersFirst = 0;
    m_pending->clear();
    m_timedOut.clear();
    m_timer.stop();

    m_transport = std::move(transport);
    if (!m_transport)
        return;
    m_inbox = std::make_unique<Inbox>([this](const Inbox::Item &item) {
        if (const auto *answer = std::get_if<Inbox::Answer>(&item))
            passOnAnswer(answer->requestId, answer->text);
        else if (const auto *change = std::get_if<Inbox::StatusChange>(&item))
            raise([=](ClientSignals &sdk) { emit sdk.signalDevStatusChanged(change->devId, change->status); });
        else if (const auto *news = std::get_if<Inbox::Trouble>(&item))
            raise([=](ClientSignals &sdk) { emit sdk.signalDevTroubled(news->devId, news->trouble); });
        else if (const auto *identity = std::get_if<Inbox::Identity>(&item))
            raise([=](ClientSignals &sdk) { emit sdk.signalDevIdentified(identity->devId, identity->serialNumber); });
    });
    // Direct, on the thread that raises them: the inbox carries them to this thread.
    QObject::connect(
        m_transport.get(), &DeviceTransport::answered, m_inbox.get(),
        [inbox = m_inbox.get()](const QString &requestId, const QString &text) {
            inbox->put(Inbox::Answer{requestId, text});
        },
        Qt::DirectConnection);
    QObject::connect(
        m_transport.get(), &DeviceTransport::devStatusChanged, m_inbox.get(),
        [inbox = m_inbox.get()](const QString &devId, DevStatus status) {
            inbox->put(Inbox::StatusChange{devId, status});
        },
        Qt::DirectConnection);
    QObject::connect(
        m_transport.get(), &DeviceTransport::linkTroubled, m_inbox.get(),
        [inbox = m_inbox.get()](const QString &devId, const LinkTrouble &trouble) {
            inbox->put(Inbox::Trouble{devId, trouble});
        },
        Qt::DirectConnection);
    QObject::connect(
        m_transport.get(), &DeviceTransport::identified, m_inbox.get(),
        [inbox = m_inbox.get()](const QString &devId, const QString &serialNumber) {
            inbox->put(Inbox::Identity{devId, serialNumber});
        },
        Qt::DirectConnection);
    m_transport->setRequestTimeout(m_pending->timeout());
}

void ClientSdk::setRequestTimeout(std::chrono::milliseconds timeout)
{
    m_pending->advanceTo(m_clock.elapsed());
    m_pending->setTimeout(timeout);
    if (m_transport)
        m_transport->setRequestTimeout(m_pending->timeout());
    if (m_timer.isActive())
        startTimer(); // the ticks are of another length now
}

void ClientSdk::send(const QString &requestId, const QString &devId, const QString &text)
{
    Q_ASSERT(QThread::currentThread() == m_timer.thread());
    m_pending->advanceTo(m_clock.elapsed());
    m_pending->add(requestId);
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
    if (!m_isClockFresh)
        m_pending->advanceTo(m_clock.elapsed());
    m_pending->renew(requestId);
}

void ClientSdk::watchEventLoop()
{
    QAbstractEventDispatcher *current = QAbstractEventDispatcher::instance(m_timer.thread());
    if (m_eventLoop == current)
        return;
    m_eventLoop = current;
    const auto turn = [this] { m_isClockFresh = false; };
    QObject::connect(current, &QAbstractEventDispatcher::awake, &m_timer, turn);
    QObject::connect(current, &QAbstractEventDispatcher::aboutToBlock, &m_timer, turn);
}

template <typename Raise>
void ClientSdk::raise(Raise signal)
{
    watchEventLoop();
    m_pending->advanceTo(m_clock.elapsed());
    m_isClockFresh = true;
    signal(ClientSignals::instance());
    m_isClockFresh = false;
}

void ClientSdk::passOnAnswer(const QString &requestId, const QString &text)
{
    qCDebug(sdkLog) << requestId << "answered:" << text.size() << "characters";
    m_transport->passedOn(requestId, text);
    raise([&](ClientSignals &sdk) { emit sdk.signalCommonRes(requestId, text); });
}

void ClientSdk::checkTimeouts()
{
    // An answer that arrived in time, while this thread was busy, is passed on before the time-out.
    if (m_inbox && m_timedOut.isEmpty()) {
        if (m_answersFirst == 0) {
            m_answersFirst = m_inbox->putCount();
            m_answersFirstSince = m_clock.elapsed();
        }
        if (m_inbox->passedOnCount() < m_answersFirst && m_clock.elapsed() - m_answersFirstSince < maxTimeoutDelayMs) {
            m_timer.start(1);
            return;
        }
        m_answersFirst = 0;
    }
    m_pending->advanceTo(m_clock.elapsed());
    m_timedOut += m_pending->takeDue();
    // Before the signals: a listener may run an event loop of its own, in which the other time-outs must still come.
    if (!m_pending->isEmpty() || !m_timedOut.isEmpty())
        startTimer();
    QElapsedTimer slice;
    slice.start();
    while (!m_timedOut.isEmpty()) {
        if (slice.elapsed() >= sliceMs) {
            m_timer.start(0); // let the event loop handle other events first
            return;
        }
        const QString id = m_timedOut.takeFirst();
        if (m_transport)
            m_transport->timedOut(id);
        raise([id](ClientSignals &sdk) { emit sdk.signalRequestTimeout(id, QVariant()); });
    }
}

void ClientSdk::startTimer()
{
    m_timer.start(int(m_pending->untilNextTick()));
}

// The functions of Requests.h are in this file so that renew() can be inlined: a run over 10,000 devices calls it
// 5 * 10^7 times.

void common_req(const QString &requestId, const QString &devId, const QString &text)
{
    ClientSdk::instance().send(requestId, devId, text);
}

void renewal_request_id(const QString &requestId)
{
    ClientSdk::instance().renew(requestId);
}

} // namespace vms_sdk
