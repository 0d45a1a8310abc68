#pragma once

#include <vms_client_sdk/Export.h>

#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <chrono>
#include <memory>

namespace vms_sdk {

/// A camera that has answered a search. All texts are the camera's own: not safe to print, and nobody has proved
/// anything.
struct FoundCamera
{
    QString endpoint; ///< its own name for itself, such as "urn:uuid:…": the same in all its answers
    QString name, hardware, location; ///< from the scopes, decoded; may be empty
    QList<QUrl> addresses; ///< of its device service, as it says them; http or https, at least one
    QString sender; ///< IP address that the answer came from
};

/// Searches the local network for ONVIF cameras (WS-Discovery): a probe goes out by multicast, and what answers is told
/// as it comes. Never by itself. Lives on the thread that made it.
class VMS_CLIENT_SDK_EXPORT OnvifDiscovery : public QObject
{
    Q_OBJECT

public:
    explicit OnvifDiscovery(QObject *parent = nullptr);
    ~OnvifDiscovery() override;

    /// Names of the interfaces that can be searched: up, multicast, with an IPv4 address.
    static QStringList interfaces();

    /// @param interface a name; empty: all that can be searched
    /// @return why it cannot search, for the user; empty when it has begun
    QString start(const QString &interface, std::chrono::milliseconds duration);
    void stop(); ///< finished() comes at once

signals:
    void found(const vms_sdk::FoundCamera &camera); ///< once for each endpoint
    void finished(); ///< once after each start()

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace vms_sdk
