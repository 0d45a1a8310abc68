#include "DeviceConnection.h"

#include "Logging.h"

#include <vms_client_sdk/SignOn.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QWebSocket>

#include <chrono>

namespace device_fleet {

namespace {

constexpr std::chrono::seconds signOnLimit{10}; // as long as a client waits

} // namespace

DeviceConnection::DeviceConnection(QWebSocket *socket, const vms_sdk::DevInfo &device, vms_sdk::DevStatus state,
                                   QObject *parent)
    : QObject(parent)
    , m_socket(socket)
    , m_device(device)
    , m_state(state)
    , m_nonce(vms_sdk::makeNonce())
{
    m_socket->setParent(this);
    m_socket->setMaxAllowedIncomingFrameSize(vms_sdk::maxFrameBytes);
    m_socket->setMaxAllowedIncomingMessageSize(vms_sdk::maxFrameBytes);
    connect(m_socket, &QWebSocket::textMessageReceived, this, &DeviceConnection::handleText);
    connect(m_socket, &QWebSocket::disconnected, this, &DeviceConnection::closed);
    connect(&m_signOnTimer, &QTimer::timeout, this, &DeviceConnection::cut);
    m_signOnTimer.start(signOnLimit);
    sendJson(QStringLiteral("hello"), {{QStringLiteral("serial"), m_device.serialNumber},
                                       {QStringLiteral("nonce"), QString::fromLatin1(m_nonce)}});
}

void DeviceConnection::send(const vms_sdk::DeviceFrame &frame)
{
    m_socket->sendTextMessage(vms_sdk::toFrameText(frame));
}

void DeviceConnection::cut()
{
    m_socket->abort();
}

void DeviceConnection::handleText(const QString &text)
{
    if (!m_isSignedOn)
        signOn(QJsonDocument::fromJson(text.toUtf8()).object().value(QLatin1String("auth")).toObject());
    else if (const auto frame = vms_sdk::parseFrame(text))
        emit requestReceived(*frame);
    else
        qCWarning(fleetLog) << m_device.id << "got a frame without an id line";
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
    m_signOnTimer.stop(); // and not left to run out: Qt looks through all timers for each one that is stopped
    sendJson(QStringLiteral("welcome"),
             {{QStringLiteral("state"), int(m_state)},
              {QStringLiteral("proof"), QString::fromLatin1(proofOf(vms_sdk::SignOnSide::Device))}});
    emit signedOn();
}

void DeviceConnection::refuse(const QString &why)
{
    qCDebug(fleetLog) << m_device.id << "refused a sign-on:" << why;
    m_socket->close(QWebSocketProtocol::CloseCode(vms_sdk::signOnRefusedCode), why);
}

void DeviceConnection::sendJson(const QString &key, const QJsonObject &value)
{
    const QJsonObject message{{key, value}};
    m_socket->sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
}

} // namespace device_fleet
