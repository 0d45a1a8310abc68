#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>

namespace device_fleet {
class EmbeddedFleet;
}
namespace vms_sdk {
struct DevInfo;
class WebSocketTransport;
} // namespace vms_sdk

namespace orda_client {

/// Brings devices into the client: fills the store from an inventory or from an embedded fleet, and keeps the SDK
/// connected to what the store holds.
class ClientSession : public QObject
{
    Q_OBJECT

public:
    explicit ClientSession(QObject *parent = nullptr);
    /// Closes all connections, then ends the embedded fleet.
    ~ClientSession() override;

    /// @return an error for the user, empty when the devices are there
    QString startDemo(int devices, const QString &faultsFile);
    /// The store then holds the devices of this file and no others. @return as startDemo()
    QString openInventory(const QString &file);

    /// Tries the devices again that refused the sign-on.
    void connectAgain();

signals:
    /// Something in an input that the user should know of but that stops nothing.
    void signalWarning(const QString &text);

private:
    void replaceDevices(const QList<vms_sdk::DevInfo> &devices);
    void followStore();

    std::unique_ptr<device_fleet::EmbeddedFleet> m_fleet;
    QPointer<vms_sdk::WebSocketTransport> m_transport; // the SDK owns it
};

} // namespace orda_client
