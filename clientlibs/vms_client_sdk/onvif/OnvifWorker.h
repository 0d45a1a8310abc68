#pragma once

#include <vms_client_sdk/Backlog.h>
#include <vms_client_sdk/StatusRelay.h>
#include <vms_client_sdk/onvif/OnvifTransport.h>

#include <QObject>
#include <QSet>
#include <QVector>

#include <deque>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace vms_sdk {

class OnvifHost;
class OnvifLink;

/// The network thread's side of OnvifTransport: one link per camera.
class OnvifWorker : public QObject
{
    Q_OBJECT

public:
    explicit OnvifWorker(const OnvifOptions &options);
    ~OnvifWorker() override;

    void setDevices(const QList<DevInfo> &devices);
    void connectAgain();
    void connectDevicesAgain(const QStringList &devIds);

    // From any thread.
    void send(const QString &requestId, const QString &devId, const QString &text);
    void passedOn(const QString &requestId, int characters);
    void setRequestTimeout(std::chrono::milliseconds timeout);
    void timedOut(const QString &requestId);

Q_SIGNALS:
    void answered(const QString &requestId, const QString &text);
    void devStatusChanged(const QString &devId, vms_sdk::DevStatus status);
    void linkTroubled(const QString &devId, const vms_sdk::LinkTrouble &trouble);
    void identified(const QString &devId, const QString &serialNumber);

private:
    using Links = std::unordered_map<QString, std::unique_ptr<OnvifLink>>;

    struct Request
    {
        QString requestId, devId, text;
        std::chrono::milliseconds limit; ///< that it may take, once it has begun
    };

    std::unique_ptr<OnvifLink> makeLink(const DevInfo &device);
    void takeRequests();
    void beginRequests();

    OnvifOptions m_options;
    std::mutex m_mutex;
    // On their way into this thread, with one wake-up for all of them; under the mutex.
    QVector<Request> m_requests;
    QSet<QString> m_timedOut;
    std::chrono::milliseconds m_requestTimeout{15'000}; ///< under the mutex; until it is told, the SDK's own
    Backlog m_backlog;
    StatusRelay *m_states;
    // For their turn. Writes come first: who has begun with a device ends with it, and each device that has ended gives
    // those that wait their whole waiting time again.
    std::deque<Request> m_writes, m_reads;
    OnvifHost *m_host = nullptr; ///< made in the network thread
    Links m_links; ///< by device id; deleted before the host
};

} // namespace vms_sdk
