#pragma once

#include "fleet/onvif/OnvifSignOn.h"

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/SoapMessage.h>

#include <QtNetwork>
#include <QtTest>

/// An ONVIF camera behind a real socket. Judges accounts as those of the fleet do, and logs what it was asked.
class ScriptedCamera : public QObject
{
public:
    QString schemes; ///< that it asks for: "MD5", "SHA-256", "Token", "Basic"; none: it asks for no account
    QString broken; ///< of these one that it takes from nobody
    QSet<QString> open{"GetSystemDateAndTime", "GetServices", "GetCapabilities"}; ///< operations for everybody
    QString forbidden, silent, dropped; ///< an operation each; dropped may be "all"
    QString serial = "SN-1", password = "Gr\u00fcn-7", mediaAddress = "http://192.0.2.1/media";
    QString refusal = "NotAuthorized"; ///< the code of the fault where it takes tokens
    bool isNonceTakenOnce = false;
    int stales = 0; ///< so many requests come with a nonce that is too old
    int clockOffset = 0; ///< seconds
    QStringList log; ///< "GetServices none", "SetDiscoveryMode MD5 refused", "GetProfiles@/media Token"
    QHash<QString, QString> texts; ///< of answers, by operation: it knows no others
    vms_sdk::DevInfo info;

    explicit ScriptedCamera(const QString &id)
    {
        QFile file(QFINDTESTDATA("../cases/onvif_camera.txt"));
        file.open(QIODevice::ReadOnly);
        for (QString line = file.readLine(); !line.isEmpty(); line = file.readLine())
            texts[line.section(' ', 0, 0)] = line.section(' ', 1).trimmed();
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = m_server.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        });
        info.id = id;
        info.protocol = vms_sdk::DevProtocol::Onvif;
        info.ip = "127.0.0.1";
        info.port = m_server.serverPort();
        info.path = "/onvif/device_service";
        info.userName = "operator";
        info.password = password;
    }

    /// How the account was shown for an operation, each time.
    QString shownFor(const QString &operation) const
    {
        return log.filter(QRegularExpression("^" + operation + "[ @]")).join(',').remove(operation + ' ');
    }

private:
    void read(QTcpSocket *socket)
    {
        QByteArray &received = m_received[socket];
        received += socket->readAll();
        const int headEnd = received.indexOf("\r\n\r\n") + 4;
        const QString head = received.left(headEnd);
        const int size = headEnd + found("\r\n(?i)content-length: *(\\d+)", head).toInt();
        if (headEnd >= 4 && received.size() >= size)
            take(socket, head, std::exchange(received, {}).mid(headEnd));
    }

    void take(QTcpSocket *socket, const QString &head, const QByteArray &body)
    {
        const vms_sdk::XmlElement root = *vms_sdk::readXml(body).root;
        const QString operation = vms_sdk::readSoapAnswer(body).body.name, path = head.section(' ', 1, 1);
        if (dropped == operation || dropped == "all")
            return socket->abort();
        const QByteArray account = found("\r\n(?i)authorization: ([^\r]*)", head).toUtf8();
        const vms_sdk::XmlElement *token = root.child(vms_sdk::onvif::soapEnvelope, "Header");
        const QString shown = token ? "Token" : account.isEmpty() ? "none" : found("algorithm=([^, ]*)", account);
        const bool isTooOld = !account.isEmpty() && stales > 0 && stales-- > 0;
        const bool isRight = judge().check({account, path.toUtf8(), token}, now()) == device_fleet::SignOn::Good;
        const bool isKnown = schemes.isEmpty() || open.contains(operation) || (isRight && shown != broken && !isTooOld);
        const bool isAllowed = isKnown && forbidden != operation;
        log.append(operation + (path == info.path ? "" : '@' + path) + ' ' + shown + (isAllowed ? "" : " refused"));
        const QHash<QString, QString> values{{"GetSystemDateAndTime", now().toString(texts["clock"])},
                                             {"GetDeviceInformation", serial}};
        if (!isAllowed)
            refuse(socket, judge().challenges(isTooOld));
        else if (!texts.contains(operation))
            send(socket, "500 Fault", texts["fault"].arg("ActionNotSupported"));
        else if (silent != operation)
            send(socket, "200 OK", QString(texts[operation]).replace("%1", values.value(operation, mediaAddress)));
    }

    device_fleet::OnvifSignOn &judge()
    {
        device_fleet::CameraTraits traits;
        traits.takesSha256 = schemes.contains("SHA-256");
        traits.takesDigest = traits.takesSha256 || schemes.contains("MD5");
        traits.takesUsernameToken = schemes.contains("Token");
        traits.isNonceTakenOnce = isNonceTakenOnce;
        if (!m_judge || std::exchange(m_judgedPassword, password) != password)
            m_judge.emplace("operator", password, traits);
        return *m_judge;
    }

    void refuse(QTcpSocket *socket, QByteArray headers)
    {
        headers += schemes.contains("Basic") ? "WWW-Authenticate: Basic realm=\"camera\"" : "";
        send(socket, (headers.isEmpty() ? "400 Fault" : "401 Unauthorized\r\n") + headers,
             schemes.contains("Token") ? texts["fault"].arg(refusal) : QString());
    }

    void send(QTcpSocket *socket, const QByteArray &head, const QString &content)
    {
        const QByteArray body = content.isEmpty() ? QByteArray() : texts["envelope"].arg(content).toUtf8();
        socket->write("HTTP/1.1 " + head.trimmed() + "\r\nContent-Length: " + QByteArray::number(body.size())
                      + "\r\n\r\n" + body);
    }

    static QString found(const QString &pattern, const QString &text)
    {
        return QRegularExpression(pattern).match(text).captured(1);
    }
    QDateTime now() const { return QDateTime::currentDateTimeUtc().addSecs(clockOffset); }

    QTcpServer m_server;
    QHash<QTcpSocket *, QByteArray> m_received;
    std::optional<device_fleet::OnvifSignOn> m_judge;
    QString m_judgedPassword;
};
