#include "fleet/onvif/OnvifSite.h"

#include "fleet/Logging.h"
#include "fleet/onvif/CameraMaker.h"
#include "fleet/onvif/HttpServerConnection.h"
#include "fleet/onvif/OnvifReaction.h"
#include "fleet/onvif/OnvifSignOn.h"
#include "fleet/onvif/StateDump.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

// As cameras have it. A connection that is waiting for its answer is not idle.
constexpr std::chrono::seconds idleLimit{60};
constexpr std::chrono::seconds idleCheckInterval{5}; // one timer for all: thousands are slow to stop

/// The device id that a path begins with, which is taken away from it.
QString takeId(QString *path)
{
    const int end = path->indexOf(QLatin1Char('/'), 1);
    QString id = path->mid(1, end < 0 ? -1 : end - 1);
    *path = end < 0 ? QString() : path->mid(end);
    return id;
}

} // namespace

struct OnvifSite::Camera
{
    explicit Camera(const SiteCamera &made)
        : info(made.info)
        , device(made.state)
        , signOn(made.info.userName, made.info.password, made.state.traits)
    {
    }

    vms_sdk::DevInfo info;
    OnvifDevice device;
    OnvifSignOn signOn;
    bool isOnline = true;
};

/// One request to a camera, read.
struct CameraRequest
{
    XmlElement operation; ///< detached; without a name when there is none
    QString path;
    ShownAccount account;
};

OnvifSite::OnvifSite(const FleetOptions &options, const FaultPlan &faults, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_faults(faults)
{
    m_cameras.reserve(std::size_t(options.onvifDevices));
    for (int i = 0; i < options.onvifDevices; ++i) {
        m_cameras.push_back(std::make_unique<Camera>(makeSiteCamera(options.seed, i)));
        Camera *camera = m_cameras.back().get();
        m_cameraById.insert(camera->info.id, camera);
        if (hasOwnAddresses(options))
            m_cameraByAddress.insert(camera->info.ipNumber, camera);
    }
    auto *idleCheck = new QTimer(this);
    connect(idleCheck, &QTimer::timeout, this, &OnvifSite::cutIdle);
    if (options.onvifDevices > 0)
        idleCheck->start(idleCheckInterval);
}

OnvifSite::~OnvifSite() = default;

void OnvifSite::setServer(quint16 port, const QString &fingerprint)
{
    for (const auto &camera : m_cameras) {
        vms_sdk::DevInfo &info = camera->info;
        info.port = port;
        info.tls = !fingerprint.isEmpty();
        info.fingerprint = fingerprint;
        QString prefix;
        if (!hasOwnAddresses(m_options)) {
            info.ip = m_options.listenAddress.toString();
            info.ipNumber = m_options.listenAddress.toIPv4Address();
            prefix = QLatin1Char('/') + info.id;
            info.path = prefix + info.path;
        }
        camera->device.setAddress(QStringLiteral("%1://%2:%3%4")
                                      .arg(info.tls ? QStringLiteral("https") : QStringLiteral("http"), info.ip)
                                      .arg(port)
                                      .arg(prefix));
    }
}

QList<vms_sdk::DevInfo> OnvifSite::inventory() const
{
    QList<vms_sdk::DevInfo> records;
    for (const auto &camera : m_cameras)
        records.append(camera->info);
    return records;
}

QJsonObject OnvifSite::dump() const
{
    QJsonObject dumps;
    for (const auto &camera : m_cameras)
        dumps.insert(camera->info.id, dumpOf(camera->device.state()));
    return dumps;
}

void OnvifSite::setOnline(const QString &deviceId, bool online)
{
    Camera *camera = m_cameraById.value(deviceId);
    if (!camera)
        return;
    camera->isOnline = online;
    if (online)
        return;
    const QList<HttpServerConnection *> connections = m_connections.keys(camera); // a copy: cutting one removes it
    for (HttpServerConnection *connection : connections)
        connection->cut();
}

std::vector<const OnvifDevice *> OnvifSite::discoverable() const
{
    std::vector<const OnvifDevice *> found;
    for (const auto &camera : m_cameras)
        if (camera->isOnline && camera->device.state().discoveryMode == QLatin1String("Discoverable"))
            found.push_back(&camera->device);
    return found;
}

void OnvifSite::takeOver(QTcpSocket *socket, const vms_sdk::HttpHead &head)
{
    auto *connection = new HttpServerConnection(socket, head, this);
    m_connections.insert(connection, nullptr);
    connect(connection, &HttpServerConnection::closed, this, [this, connection] {
        m_connections.remove(connection);
        connection->deleteLater();
    });
    connect(connection, &HttpServerConnection::requestReceived, this,
            [this, connection](const HttpServerRequest &request) { handle(*connection, request); });
    connection->start();
}

OnvifSite::Camera *OnvifSite::cameraFor(const HttpServerConnection &connection, QString *path) const
{
    if (hasOwnAddresses(m_options))
        return m_cameraByAddress.value(connection.localAddress().toIPv4Address());
    return m_cameraById.value(takeId(path));
}

void OnvifSite::handle(HttpServerConnection &connection, const HttpServerRequest &request)
{
    QString path = request.target;
    Camera *camera = cameraFor(connection, &path);
    if (camera && !camera->isOnline) {
        connection.cut();
        return;
    }
    if (!camera || !camera->device.hasPath(path)) {
        connection.answerAfter({}, httpMessage(404, {}, {}, false, true), true);
        return;
    }
    m_connections.insert(&connection, camera);
    answer(*camera, connection, request, path);
}

void OnvifSite::answer(Camera &camera, HttpServerConnection &connection, const HttpServerRequest &request,
                       const QString &path)
{
    const vms_sdk::XmlRead read = vms_sdk::readXml(request.body);
    const XmlElement none;
    const XmlElement &envelope = read.root ? *read.root : none;
    const XmlElement *body = envelope.child(soapEnvelope, "Body");
    CameraRequest parsed;
    parsed.path = path;
    parsed.account = {request.authorization, request.rawTarget, envelope.child(soapEnvelope, "Header")};
    if (body && !body->children.empty() && !body->children.front().isText())
        parsed.operation = vms_sdk::detached({&envelope, body, &body->children.front()});
    emit requestReceived(camera.info.id, parsed.operation.name, QString::fromUtf8(request.body));
    if (!parsed.operation.isText()) {
        carryOut(camera, connection, parsed);
        return;
    }
    const OnvifReply fault = onvifFault({QStringLiteral("Sender"), QStringLiteral("WellFormed")},
                                        read.root ? QStringLiteral("it is no SOAP request") : read.error);
    connection.answerAfter(m_options.latency, onvifMessage(camera.device.traits(), fault, true), true);
}

void OnvifSite::carryOut(Camera &camera, HttpServerConnection &connection, const CameraRequest &request)
{
    const auto fault = m_faults.find(camera.info.id, request.operation.name);
    const bool isOpen =
        camera.device.isOpen(request.operation.name) && request.operation.namespaceUri == QLatin1String(tds);
    const SignOn signOn = camera.signOn.check(request.account, camera.device.now());
    if (!isOpen && signOn != SignOn::Good && !(fault && fault->fault == Fault::DropConnection)) {
        if (signOn == SignOn::Refused)
            emit signOnRefused(camera.info.id);
        askForAccount(camera, connection, signOn == SignOn::Stale);
        return;
    }
    const bool closes = camera.device.traits().closesAfterAnswer || connection.isLast();
    const OnvifReaction reaction = reactTo(request.operation, request.path, camera.device, closes, fault);
    if (!reaction.isCut) {
        connection.answerAfter(m_options.latency + reaction.delay, reaction.messages, closes);
        return;
    }
    connection.cut();
    if (reaction.offLineFor.count() > 0) {
        setOnline(camera.info.id, false);
        QTimer::singleShot(reaction.offLineFor, this, [this, id = camera.info.id] { setOnline(id, true); });
    }
}

void OnvifSite::askForAccount(Camera &camera, HttpServerConnection &connection, bool isStale) const
{
    const CameraTraits &traits = camera.device.traits();
    const OnvifReply fault = onvifFault({QStringLiteral("Sender"), QStringLiteral("NotAuthorized")},
                                        QStringLiteral("the action needs an account"));
    const bool closes = traits.closesAfterAnswer || connection.isLast();
    const QByteArray challenges = camera.signOn.challenges(isStale);
    const QByteArray message = challenges.isEmpty() ? onvifMessage(traits, fault, closes)
                                                    : httpMessage(401, challenges, soapDocument(fault, traits.style),
                                                                  traits.isChunked, closes);
    connection.answerAfter(m_options.latency, message, closes);
}

void OnvifSite::cutIdle()
{
    const QList<HttpServerConnection *> connections = m_connections.keys();
    for (HttpServerConnection *connection : connections)
        if (!connection->isWaiting() && connection->idleMs() > std::chrono::milliseconds(idleLimit).count())
            connection->cut();
}

} // namespace device_fleet
