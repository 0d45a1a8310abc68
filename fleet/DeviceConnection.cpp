#include "fleet/DeviceConnection.h"

#include "fleet/Logging.h"

#include <vms_client_sdk/SignOn.h>
#include <vms_client_sdk/websocket/AnswerCheck.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <chrono>

namespace device_fleet {

namespace {

constexpr std::chrono::seconds signOnLimit{10}; // as long as a client waits
constexpr std::chrono::seconds closeLimit{2}; // what a client may take to close before it is cut
// For a client that does not read its answers. There is room for one, which may be the huge one of a fault.
constexpr qint64 maxUnsentBytes = 2 << 20;

} // namespace

DeviceConnection::DeviceConnection(vms_sdk::WebSocketConnection *connection, const vms_sdk::DevInfo &device,
                                   vms_sdk::DevStatus state, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
    , m_device(device)
    , m_state(state)
    , m_nonce(vms_sdk::makeNonce())
{
    m_connection->setParent(this);
    m_connection->setMaxMessageBytes(vms_sdk::maxSignOnBytes);
    connect(m_connection, &vms_sdk::WebSocketConnection::textReceived, this, &DeviceConnection::handleText);
    connect(m_connection, &vms_sdk::WebSocketConnection::ended, this,
            [this](int, const QString &why, vms_sdk::TroubleReason reason) {
                if (reason == vms_sdk::TroubleReason::Limits)
                    qCWarning(fleetLog) << m_device.id << "cut a client that" << why;
            });
    connect(m_connection, &vms_sdk::WebSocketConnection::finished, this, &DeviceConnection::closed);
    connect(&m_signOnTimer, &QTimer::timeout, this, &DeviceConnection::cut);
    m_signOnTimer.start(signOnLimit);
    sendJson(QStringLiteral("hello"), {{QStringLiteral("serial"), m_device.serialNumber},
                                       {QStringLiteral("nonce"), QString::fromLatin1(m_nonce)}});
}

void DeviceConnection::send(const vms_sdk::DeviceFrame &frame)
{
    if (m_connection->unsentBytes() > maxUnsentBytes) {
        qCWarning(fleetLog) << m_device.id << "cut a client that does not read its answers";
        cut();
        return;
    }
    m_connection->sendText(vms_sdk::toFrameText(frame).toUtf8());
}

void DeviceConnection::cut()
{
    m_connection->abort();
}

void DeviceConnection::handleText(const QByteArray &utf8)
{
    if (!m_isSignedOn) {
        const bool isReadable = !vms_sdk::checkAnswer(utf8).fault;
        const QJsonObject message = isReadable ? QJsonDocument::fromJson(utf8).object() : QJsonObject();
        signOn(message.value(QLatin1String("auth")).toObject());
    } else if (const auto frame = vms_sdk::parseFrame(QString::fromUtf8(utf8))) {
        emit requestReceived(*frame);
    } else {
        qCWarning(fleetLog) << m_device.id << "got a frame without an id line";
    }
}

void DeviceConnection::signOn(const QJsonObject &auth)
{
    const QByteArray clientNonce = auth.value(QLatin1String("nonce")).toString().toLatin1();
    const QByteArray proof = auth.value(QLatin1String("proof")).toString().toLatin1();
    const auto proofOf = [&](vms_sdk::SignOnSide side) {
        return vms_sdk::signOnProof(side, m_device.password, m_nonce, clientNonce);
    };
    if (!vms_sdk::isNonceLongEnough(clientNonce))
        return refuse(QStringLiteral("nonce too short"));
    if (auth.value(QLatin1String("user")).toString() != m_device.userName
        || !vms_sdk::isSameProof(proof, proofOf(vms_sdk::SignOnSide::Client)))
        return refuse(QStringLiteral("wrong user or password"));

    m_isSignedOn = true;
    m_connection->setMaxMessageBytes(vms_sdk::maxFrameBytes);
    m_signOnTimer.stop(); // now, so that few timers are active: stopping one takes Qt a search through all of them
    sendJson(QStringLiteral("welcome"),
             {{QStringLiteral("state"), int(m_state)},
              {QStringLiteral("proof"), QString::fromLatin1(proofOf(vms_sdk::SignOnSide::Device))}});
    emit signedOn();
}

void DeviceConnection::refuse(const QString &why)
{
    qCDebug(fleetLog) << m_device.id << "refused a sign-on:" << why;
    m_signOnTimer.start(closeLimit); // then it is cut
    m_connection->close(vms_sdk::signOnRefusedCode, why);
}

void DeviceConnection::sendJson(const QString &key, const QJsonObject &value)
{
    const QJsonObject message{{key, value}};
    m_connection->sendText(QJsonDocument(message).toJson(QJsonDocument::Compact));
}

} // namespace device_fleet
