#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/SignOn.h>

#include <QtNetwork>
#include <QtWebSockets>

/// How a device behaves badly at sign-on.
enum Fault
{
    NoFault,
    HangsUp,
    Refuses,
    OtherSerial,
    ShortNonce,
    NoProof,
    Replays
};

/// A device behind a real socket. What it says after the sign-on is the test's business.
class TestDevice : public QObject
{
public:
    Fault fault = NoFault;
    int dials = 0;
    QStringList received;
    QWebSocket *client = nullptr;
    vms_sdk::DevInfo info;

    explicit TestDevice(const QString &id, const QSslConfiguration *tls = nullptr)
        : m_server(QString(), tls ? QWebSocketServer::SecureMode : QWebSocketServer::NonSecureMode)
    {
        if (tls)
            m_server.setSslConfiguration(*tls);
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QWebSocketServer::newConnection, this, &TestDevice::greet);
        info.id = info.serialNumber = info.password = id;
        info.userName = "operator";
        info.ip = "127.0.0.1";
        info.port = m_server.serverPort();
        info.tls = tls;
    }

    /// On the present connection: pings lie unread.
    void stopReading()
    {
        const auto sockets = m_server.findChildren<QTcpSocket *>();
        for (QTcpSocket *socket : sockets)
            socket->blockSignals(true);
    }

private:
    void send(const char *message, const QString &first, const QByteArray &second) const
    {
        client->sendTextMessage(QString(message).arg(first, QString::fromLatin1(second)));
    }

    void greet()
    {
        ++dials;
        client = m_server.nextPendingConnection();
        client->setParent(this);
        m_nonce = fault == ShortNonce ? QByteArray("c2hvcnQ=") : vms_sdk::makeNonce();
        connect(client, &QWebSocket::textMessageReceived, this, &TestDevice::take);
        if (fault == HangsUp)
            client->close();
        else
            send(R"({"hello":{"serial":"%1","nonce":"%2"}})", fault == OtherSerial ? "\\t" : info.id, m_nonce);
    }

    void take(const QString &message)
    {
        using vms_sdk::SignOnSide;
        const QJsonObject auth = QJsonDocument::fromJson(message.toUtf8()).object().value("auth").toObject();
        if (auth.isEmpty())
            return received.append(message);
        const auto text = [&auth](const char *key) { return auth.value(key).toString().toLatin1(); };
        const auto proof = [&](SignOnSide side, const QByteArray &nonce) {
            return vms_sdk::signOnProof(side, info.password, m_nonce, nonce);
        };
        if (fault == Refuses || text("user") != "operator" || text("proof") != proof(SignOnSide::Client, text("nonce")))
            return client->close(QWebSocketProtocol::CloseCode(4401));
        const QByteArray nonce = fault == Replays ? QByteArray("b2YgYW4gZWFybGllciBkaWFsbGluZw==") : text("nonce");
        send(R"({"welcome":{"state":%1,"proof":"%2"}})", "5",
             fault == NoProof ? text("proof") : proof(SignOnSide::Device, nonce));
    }

    QByteArray m_nonce;
    QWebSocketServer m_server;
};

/// Devices behind a server that takes no connection and says nothing.
struct SilentDevices
{
    explicit SilentDevices(int count)
    {
        server.listen(QHostAddress::LocalHost);
        for (int i = 0; i < count; ++i) {
            infos.append(TestDevice(QString::number(i)).info);
            infos.last().port = server.serverPort();
        }
    }

    QTcpServer server;
    QList<vms_sdk::DevInfo> infos;
};
