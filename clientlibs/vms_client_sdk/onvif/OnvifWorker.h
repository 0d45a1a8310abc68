#pragma once

#include <vms_client_sdk/Backlog.h>
#include <vms_client_sdk/StatusChanges.h>
#include <vms_client_sdk/onvif/OnvifTransport.h>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QVector>

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
        QDeadlineTimer end;
    };

    std::unique_ptr<OnvifLink> makeLink(const DevInfo &device);
    void sendRequests();
    void onStatusChanged(const QString &devId, DevStatus status, const LinkTrouble &trouble);
    void passOnChanges(const QVector<StatusChanges::Change> &changes);

    OnvifOptions m_options;
    std::mutex m_mutex;
    QVector<Request> m_requests; ///< under the mutex; on their way into this thread, with one wake-up for all of them
    std::chrono::milliseconds m_requestTimeout{15'000}; ///< under the mutex; until it is told, the SDK's own
    Backlog m_backlog;
    QElapsedTimer m_clock;
    StatusChanges m_statusChanges;
    QTimer m_statusTimer;
    OnvifHost *m_host = nullptr; ///< made in the network thread
    Links m_links; ///< by device id; deleted before the host
};

} // namespace vms_sdk
