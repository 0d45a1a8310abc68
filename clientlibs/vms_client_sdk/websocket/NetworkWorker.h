#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/PostedCalls.h>
#include <vms_client_sdk/StatusRelay.h>

#include <QObject>
#include <QStringList>
#include <QVector>
#include <functional>
#include <memory>
#include <unordered_map>

namespace vms_sdk {

class DeviceLink;
class LinkHost;
struct SharedLimits;

struct DeviceRequest
{
    QString requestId, devId, text;
};

/// One network thread's side of WebSocketTransport: one link for each of its devices.
class NetworkWorker : public QObject
{
    Q_OBJECT

public:
    /// @param shared outlives this object @param number of the thread, from 0
    NetworkWorker(SharedLimits &shared, int number);
    ~NetworkWorker() override;

    /// Ends the links that are gone, releases the places once, and starts those that are new.
    void setDevices(const QList<DevInfo> &devices);
    void connectAgain();
    void connectDevicesAgain(const QStringList &devIds);
    void send(const QVector<DeviceRequest> &requests);

    /// From any thread: calls the function on the worker's thread, after those posted before.
    void post(std::function<void()> function) { m_calls->post(std::move(function)); }
    void goOnReading(); ///< if there is room for answers now

Q_SIGNALS:
    void answered(const QString &requestId, const QString &text);
    void devStatusChanged(const QString &devId, vms_sdk::DevStatus status);
    void linkTroubled(const QString &devId, const vms_sdk::LinkTrouble &trouble);

private:
    using Links = std::unordered_map<QString, std::unique_ptr<DeviceLink>>;

    std::unique_ptr<DeviceLink> makeLink(const DevInfo &device);
    void setReading(bool isReading);

    PostedCalls *m_calls;
    StatusRelay *m_states;
    LinkHost *m_host;
    Links m_links; ///< by device id; deleted before the host
};

} // namespace vms_sdk
