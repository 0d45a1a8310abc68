#pragma once

#include "../DevInfo.h"
#include "../WebSocketOptions.h"

#include <QObject>
#include <memory>
#include <unordered_map>

namespace vms_sdk {

class DeviceLink;
class LinkHost;

/// The network thread's side of WebSocketTransport: one link per device.
class NetworkWorker : public QObject
{
    Q_OBJECT

public:
    explicit NetworkWorker(const WebSocketOptions &options);
    ~NetworkWorker() override;

    void setDevices(const QList<DevInfo> &devices);
    void connectAgain();
    void send(const QString &requestId, const QString &devId, const QString &text);

signals:
    void answered(const QString &requestId, const QString &text);
    void devStatusChanged(const QString &devId, vms_sdk::DevStatus status);

private:
    using Links = std::unordered_map<QString, std::unique_ptr<DeviceLink>>;

    std::unique_ptr<DeviceLink> makeLink(const DevInfo &device);

    LinkHost *m_host;
    Links m_links; ///< by device id; go before the host
};

} // namespace vms_sdk
