#pragma once

#include <vms_client_sdk/Backlog.h>
#include <vms_client_sdk/onvif/HttpExchanges.h>
#include <vms_client_sdk/onvif/OnvifTransport.h>

#include <QHash>
#include <QObject>
#include <QQueue>
#include <QSet>

#include <memory>

namespace vms_sdk {

class OnvifLink;
class OnvifRequest;

/// What the links to cameras share: the exchanges, the limit of what waits for the window, and the places for cameras
/// that sign on. Network thread.
class OnvifHost : public QObject
{
    Q_OBJECT

public:
    OnvifHost(const OnvifOptions &options, Backlog &backlog, QObject *parent);

    const OnvifOptions &options() const { return m_options; }
    HttpExchanges &exchanges() { return m_exchanges; }
    Backlog &backlog() { return m_backlog; }

    /// Calls OnvifLink::signOn() from the event loop as soon as a place is free. The link keeps the place until
    /// leave().
    /// @param hasFailed it comes after those that have not
    void queueForSignOn(OnvifLink *link, bool hasFailed);
    /// Gives up the place, or the place in the queue.
    void leave(OnvifLink *link);

    /// Counts an answer that a request has got, until release(). Where all of them hold too much, the request that
    /// holds most ends. @param request may be null: then nobody keeps it
    void hold(OnvifRequest *request, qint64 bytes);
    void release(QObject *request);

    /// A place among the requests that are carried out at once; free again when the last copy of it is gone.
    using Place = std::shared_ptr<void>;
    bool hasPlace() const { return m_requests < m_options.maxRequests; }
    Place takePlace();

Q_SIGNALS:
    void placeFree(); ///< from the event loop

private:
    void fillLater();
    void fillPlaces();

    OnvifOptions m_options;
    Backlog &m_backlog;
    HttpExchanges m_exchanges;
    QQueue<OnvifLink *> m_queue, m_failed; ///< cameras that are switched off must not hold the others up
    QSet<OnvifLink *> m_signingOn;
    QHash<QObject *, qint64> m_held; ///< bytes by request
    qint64 m_heldInAll = 0;
    bool m_willFill = false;
    int m_requests = 0; ///< places that are taken
    bool m_willTell = false;
};

} // namespace vms_sdk
