#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/SignOn.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QSslCertificate>
#include <QSslError>
#include <QWebSocket>

/// A client of one device that is nothing but a socket and the sign-on, so that a device is tested without the SDK's
/// transport.
class RawClient : public QObject
{
    Q_OBJECT

public:
    explicit RawClient(vms_sdk::DevInfo dev)
        : device(std::move(dev))
    {
        connect(&socket, &QWebSocket::textMessageReceived, this, &RawClient::handleText);
        connect(&socket, &QWebSocket::disconnected, this, [this] { isClosed = true; });
        connect(&socket, &QWebSocket::sslErrors, this, [this](const QList<QSslError> &errors) {
            const auto sha256 =
                QSslConfiguration(socket.sslConfiguration()).peerCertificate().digest(QCryptographicHash::Sha256);
            if (QString::fromLatin1(sha256.toHex()) == device.fingerprint)
                socket.ignoreSslErrors(errors);
        });
        socket.open(vms_sdk::deviceUrl(device));
    }

    void request(const QString &requestId, const QByteArray &json)
    {
        socket.sendTextMessage(vms_sdk::toFrameText({requestId, QString::fromUtf8(json)}));
    }

    vms_sdk::DevInfo device; ///< as this client believes it to be
    QByteArray nonce = vms_sdk::makeNonce();
    int state = 0; ///< 0 until the welcome
    bool isClosed = false;
    QList<vms_sdk::DeviceFrame> frames; ///< after the welcome
    QWebSocket socket;

private:
    void handleText(const QString &text)
    {
        const QJsonObject json = QJsonDocument::fromJson(text.toUtf8()).object();
        const QJsonObject hello = json.value(QLatin1String("hello")).toObject();
        const QJsonObject welcome = json.value(QLatin1String("welcome")).toObject();
        if (state != 0) {
            frames.append(*vms_sdk::parseFrame(text));
        } else if (hello.value(QLatin1String("serial")).toString() == device.serialNumber) {
            m_deviceNonce = hello.value(QLatin1String("nonce")).toString().toLatin1();
            const QJsonObject auth{{QStringLiteral("user"), device.userName},
                                   {QStringLiteral("nonce"), QString::fromLatin1(nonce)},
                                   {QStringLiteral("proof"), proof(vms_sdk::SignOnSide::Client)}};
            socket.sendTextMessage(
                QString::fromUtf8(QJsonDocument(QJsonObject{{QStringLiteral("auth"), auth}}).toJson()));
        } else if (welcome.value(QLatin1String("proof")).toString() == proof(vms_sdk::SignOnSide::Device)) {
            state = welcome.value(QLatin1String("state")).toInt();
        }
    }

    QString proof(vms_sdk::SignOnSide side) const
    {
        return QString::fromLatin1(vms_sdk::signOnProof(side, device.password, m_deviceNonce, nonce));
    }

    QByteArray m_deviceNonce;
};
