#pragma once

#include <vms_client_sdk/Export.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <chrono>
#include <memory>

class QAbstractEventDispatcher;

namespace vms_sdk {

class DeviceTransport;
class Inbox;
class PendingRequests;

/// The SDK itself: hands requests to the transport, raises answers, states and time-outs (ClientSignals). GUI thread
/// only.
class VMS_CLIENT_SDK_EXPORT ClientSdk
{
public:
    static ClientSdk &instance();

    /// Takes the transport over and deletes the one before. All pending ids, and whatever the old transport raised that
    /// has not been passed on yet, are dropped; device states that were passed on stand until the new transport reports
    /// others. Without a transport every request ends by its time-out. Safe from inside every signal of ClientSignals.
    void setTransport(std::unique_ptr<DeviceTransport> transport);

    /// The waiting time of requests and renewals from now on; 15 s unless set.
    void setRequestTimeout(std::chrono::milliseconds timeout);

    void send(const QString &requestId, const QString &devId, const QString &text); ///< see common_req()
    void renew(const QString &requestId); ///< see renewal_request_id()

private:
    ClientSdk();
    ~ClientSdk();

    /// Calls the listeners. Reads the clock once for all their renewals, which are thousands for each answer.
    template <typename Raise>
    void raise(Raise signal);
    void watchEventLoop();
    void passOnAnswer(const QString &requestId, const QString &text);
    void checkTimeouts();
    void startTimer();

    std::unique_ptr<DeviceTransport> m_transport;
    std::unique_ptr<Inbox> m_inbox; ///< one for each transport: what is still in it is dropped with the transport
    std::unique_ptr<PendingRequests> m_pending;
    QStringList m_timedOut; ///< taken out of m_pending, time-out not raised yet
    quint64 m_answersFirst = 0; ///< the inbox must have passed on this many items before time-outs are raised
    qint64 m_answersFirstSince = 0; ///< since when, by m_clock, the time-outs have waited for these items
    QElapsedTimer m_clock;
    /// True while a signal is being raised and the time read for it still holds. A listener may run an event loop of
    /// its own, for any time: then the clock must be read again.
    bool m_isClockFresh = false;
    QPointer<QAbstractEventDispatcher> m_eventLoop;
    QTimer m_timer;
};

} // namespace vms_sdk
