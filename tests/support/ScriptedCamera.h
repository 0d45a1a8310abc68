#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/onvif/DigestAuth.h>
#include <vms_client_sdk/onvif/SoapMessage.h>

#include <QtNetwork>
#include <QtTest>

/// An ONVIF camera behind a real socket. Checks accounts, and keeps a log of what it was asked.
class ScriptedCamera : public QObject
{
public:
    QString schemes; ///< that it asks for: "MD5", "SHA-256", "Token", "Basic"; none: it asks for no account
    QString broken; ///< of these one that it takes from nobody
    QSet<QString> open{"GetSystemDateAndTime", "GetServices", "GetCapabilities"}; ///< operations for everybody
    QString forbidden, silent, dropped; ///< an operation each; dropped may be "all"
    QString serial = "SN-1", password = "Gr\u00fcn-7", mediaAddress = "http://192.0.2.1/media";
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
        const QString operation = vms_sdk::readSoapAnswer(body).body.name, path = head.section(' ', 1, 1);
        if (dropped == operation || dropped == "all")
            return socket->abort();
        const QString header = found("\r\n(?i)authorization: ([^\r]*)", head);
        QString shown = "none";
        m_isStale = false;
        const bool isRight = header.isEmpty() ? isTokenRight(body, &shown) : isDigestRight(header, path, &shown);
        const bool isKnown = schemes.isEmpty() || open.contains(operation) || (isRight && shown != broken);
        const bool isAllowed = isKnown && forbidden != operation;
        log.append(operation + (path == info.path ? "" : '@' + path) + ' ' + shown + (isAllowed ? "" : " refused"));
        const QHash<QString, QString> values{{"GetSystemDateAndTime", now().toString(texts["clock"])},
                                             {"GetDeviceInformation", serial}};
        if (!isAllowed)
            refuse(socket);
        else if (!texts.contains(operation))
            send(socket, "500 Fault", texts["fault"].arg("ActionNotSupported"));
        else if (silent != operation)
            send(socket, "200 OK", QString(texts[operation]).replace("%1", values.value(operation, mediaAddress)));
    }

    bool isTokenRight(const QString &body, QString *shown)
    {
        const auto field = [&](const char *name) {
            return found(QString("[<:]%1(?: [^>]*)?>([^<]*)<").arg(name), body).toUtf8();
        };
        *shown = field("Nonce").isEmpty() ? "none" : "Token";
        const QByteArray nonce = QByteArray::fromBase64(field("Nonce")), created = field("Created");
        const auto hash = QCryptographicHash::hash(nonce + created + password.toUtf8(), QCryptographicHash::Sha1);
        return qAbs(QDateTime::fromString(created, Qt::ISODateWithMs).secsTo(now())) < 60 && !m_used.contains(nonce)
            && m_used.insert(nonce) != m_used.end() && hash.toBase64() == field("Password");
    }

    bool isDigestRight(const QString &header, const QString &path, QString *shown)
    {
        const auto field = [&](const char *name) { return found(QString("[ ,]%1=\"?([^\", ]*)").arg(name), header); };
        *shown = field("algorithm");
        const QByteArray nonce = field("nonce").toUtf8();
        m_isStale = stales > 0 && stales-- > 0;
        const bool isUsed = m_used.contains(nonce) && isNonceTakenOnce;
        m_used.insert(nonce);
        const auto digest = m_digests.find(nonce);
        return digest != m_digests.end() && !m_isStale && !isUsed
            && header == digest->authorization("operator", password, path.toUtf8(), "POST", field("cnonce").toUtf8());
    }

    void refuse(QTcpSocket *socket)
    {
        QByteArray headers;
        const QStringList asked = schemes.split(' ', Qt::SkipEmptyParts);
        for (const QString &scheme : asked) {
            const QByteArray nonce = QByteArray::number(QRandomGenerator::global()->generate64());
            const QByteArray digest = "Digest realm=\"camera\", qop=\"auth\", algorithm=" + scheme.toUtf8()
                                    + ", nonce=\"" + nonce + (m_isStale ? "\", stale=true" : "\"");
            if (const auto made = vms_sdk::DigestAuth::fromChallenges({digest}))
                m_digests.insert(nonce, *made);
            if (scheme != "Token")
                headers += "WWW-Authenticate: " + (scheme == "Basic" ? "Basic realm=\"camera\"" : digest) + "\r\n";
        }
        send(socket, (headers.isEmpty() ? "400 Fault\r\n" : "401 Unauthorized\r\n") + headers.trimmed(),
             schemes.contains("Token") ? texts["fault"].arg("NotAuthorized") : QString());
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
    QHash<QByteArray, vms_sdk::DigestAuth> m_digests; ///< by nonce
    QSet<QByteArray> m_used; ///< nonces
    bool m_isStale = false;
};
