#pragma once

#include <vms_client_sdk/Export.h>
#include <vms_client_sdk/onvif/FoundCamera.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

namespace vms_sdk {

/// Searches the local network for ONVIF cameras (WS-Discovery): a probe goes out by multicast, and what answers is told
/// as it comes. Never by itself. Lives on the thread that made it.
class VMS_CLIENT_SDK_EXPORT OnvifDiscovery : public QObject
{
    Q_OBJECT

public:
    explicit OnvifDiscovery(QObject *parent = nullptr);
    ~OnvifDiscovery() override;

    /// Names of the interfaces that are searched when none is named: up, multicast, with an IPv4 address.
    static QStringList interfaces();

    /// Sends probes now and twice more within a second. A search that goes on ends first.
    /// @param interface a name; empty: all of interfaces(). The loopback interface is searched when it is named
    /// @return why it cannot search, for the user; empty when it has begun
    QString start(const QString &interface, std::chrono::milliseconds duration);
    void stop(); ///< finished() comes at once

signals:
    /// Once for each endpoint and sender: who takes another's endpoint must not hide the other.
    void found(const vms_sdk::FoundCamera &camera);
    void finished(); ///< once after each start()

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace vms_sdk
