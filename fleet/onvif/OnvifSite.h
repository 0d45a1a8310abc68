#pragma once

#include "fleet/FaultPlan.h"
#include "fleet/FleetOptions.h"

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/HttpHead.h>

#include <QHash>
#include <QJsonObject>
#include <QObject>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QTcpSocket;
QT_END_NAMESPACE

namespace device_fleet {

class HttpServerConnection;
class OnvifDevice;
struct CameraRequest;
struct HttpServerRequest;

/// The ONVIF cameras of a fleet, behind the fleet's server socket. Which camera a request is for tells the address that
/// was dialled, where each has one of its own, else the path, which then begins with the camera's id.
class OnvifSite : public QObject
{
    Q_OBJECT

public:
    /// @param faults the fleet's; must outlive this
    OnvifSite(const FleetOptions &options, const FaultPlan &faults, QObject *parent);
    ~OnvifSite() override;

    /// Where the cameras are. To be called before anything arrives.
    /// @param fingerprint empty without TLS
    void setServer(quint16 port, const QString &fingerprint);

    bool hasDevice(const QString &deviceId) const { return m_cameraById.contains(deviceId); }
    QList<vms_sdk::DevInfo> inventory() const;
    /// The state of each camera by its id, as DeviceFleet::dump() has it.
    QJsonObject dump() const;
    void setOnline(const QString &deviceId, bool online);
    /// The cameras that answer a search: those that are discoverable and not offline.
    std::vector<const OnvifDevice *> discoverable() const;

    /// @param socket open; taken over
    /// @param head of the first request; the rest is still in the socket
    void takeOver(QTcpSocket *socket, const vms_sdk::HttpHead &head);

signals:
    /// Every request, before the camera deals with it, those without a sign-on included.
    /// @param operation such as GetProfiles; empty when there is none in it
    void requestReceived(const QString &deviceId, const QString &operation, const QString &text);
    /// An account was shown and is not the right one; not raised for a nonce that is used up.
    void signOnRefused(const QString &deviceId);

private:
    struct Camera;

    Camera *cameraFor(const HttpServerConnection &connection, QString *path) const;
    void handle(HttpServerConnection &connection, const HttpServerRequest &request);
    void answer(Camera &camera, HttpServerConnection &connection, const HttpServerRequest &request,
                const QString &path);
    void carryOut(Camera &camera, HttpServerConnection &connection, const CameraRequest &request);
    void askForAccount(Camera &camera, HttpServerConnection &connection, bool isStale) const;
    void cutIdle();

    FleetOptions m_options;
    const FaultPlan &m_faults;
    std::vector<std::unique_ptr<Camera>> m_cameras;
    QHash<QString, Camera *> m_cameraById;
    QHash<quint32, Camera *> m_cameraByAddress; ///< empty where all are at one
    QHash<HttpServerConnection *, Camera *> m_connections; ///< null until the first request
};

} // namespace device_fleet
