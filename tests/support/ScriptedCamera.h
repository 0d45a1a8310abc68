#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/onvif/SoapMessage.h>

#include <QtNetwork>

/// An ONVIF camera behind a real socket. Checks accounts by itself, and keeps a log of what it was asked.
class ScriptedCamera : public QObject
{
public:
    QStringList schemes; ///< that it asks for: "MD5", "SHA-256", "Token", "Basic"; none: it asks for no account
    QString broken; ///< of these one that it takes from nobody
    QSet<QString> open{"GetSystemDateAndTime", "GetServices", "GetCapabilities"}; ///< operations for everybody
    QSet<QString> unknown, forbidden, silent, dropped; ///< operations
    QString serial = "SN-1", password = "Gr\u00fcn-7";
    bool isNonceTakenOnce = false;
    int stales = 0; ///< so many requests come with a nonce that is too old
    int clockOffset = 0; ///< seconds
    bool isAway = false; ///< hangs up on everybody
    QString mediaAddress = "http://192.0.2.1/media";
    QStringList log; ///< "GetServices none", "SetDiscoveryMode MD5 refused", "GetProfiles@/media Token"
    vms_sdk::DevInfo info;

    explicit ScriptedCamera(const QString &id)
    {
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
    QStringList shownFor(const QString &operation) const
    {
        return log.filter(QRegularExpression("^" + operation + "[ @]")).replaceInStrings(operation + ' ', "");
    }

private:
    void read(QTcpSocket *socket)
    {
        QByteArray &received = m_received[socket];
        received += socket->readAll();
        const int headEnd = received.indexOf("\r\n\r\n") + 4;
        const QString head = received.left(headEnd);
        const int size = headEnd + found("\r\n(?i)content-length: *(\\d+)", head).toInt();
        if (headEnd < 4 || received.size() < size)
            return;
        const QByteArray body = received.mid(headEnd, size - headEnd);
        received.remove(0, size);
        take(socket, head, body);
    }

    void take(QTcpSocket *socket, const QString &head, const QByteArray &body)
    {
        const QString operation = vms_sdk::readSoapAnswer(body).body.name, path = head.section(' ', 1, 1);
        if (isAway || dropped.contains(operation))
            return socket->abort();
        const QString header = found("\r\n(?i)authorization: ([^\r]*)", head);
        m_shown = body.contains("UsernameToken") ? "Token" : header.isEmpty() ? "none" : header.section(' ', 0, 0);
        m_isStale = false;
        const bool isRight =
            m_shown == "Token" ? isTokenRight(body) : m_shown == "Digest" && isDigestRight(header, path);
        const bool isKnown = schemes.isEmpty() || open.contains(operation) || (isRight && m_shown != broken);
        const bool isAllowed = isKnown && !forbidden.contains(operation);
        log.append(operation + (path == info.path ? "" : '@' + path) + ' ' + m_shown + (isAllowed ? "" : " refused"));
        if (silent.contains(operation))
            return;
        if (!isAllowed)
            refuse(socket);
        else if (unknown.contains(operation))
            send(socket, "500 Internal Server Error", {}, fault("ActionNotSupported"));
        else
            send(socket, "200 OK", {},
                 QString("<%2:%1Response>%3</%2:%1Response>")
                     .arg(operation, operation == "GetProfiles" ? "trt" : "tds", content(operation)));
    }

    bool isTokenRight(const QString &body)
    {
        const auto field = [&body](const char *name) {
            return found(QString("[<:]%1(?: [^>]*)?>([^<]*)<").arg(name), body);
        };
        const QByteArray nonce = field("Nonce").toLatin1(), created = field("Created").toLatin1();
        const QByteArray hashed = QByteArray::fromBase64(nonce) + created + password.toUtf8();
        return std::exchange(m_nonces[nonce], 1) == 0
            && qAbs(QDateTime::fromString(created, Qt::ISODateWithMs).secsTo(now())) < 60
            && field("Username") == "operator"
            && QCryptographicHash::hash(hashed, QCryptographicHash::Sha1).toBase64() == field("Password").toLatin1();
    }

    bool isDigestRight(const QString &header, const QString &path)
    {
        const auto field = [&](const char *name) {
            return found(QString("[ ,]%1=\"?([^\", ]*)").arg(name), header).toUtf8();
        };
        m_shown = field("algorithm");
        const auto kind = m_shown == "SHA-256" ? QCryptographicHash::Sha256 : QCryptographicHash::Md5;
        const auto hash = [kind](const QByteArray &text) { return QCryptographicHash::hash(text, kind).toHex(); };
        const QByteArray middle = ':' + field("nonce") + ':' + field("nc") + ':' + field("cnonce") + ":auth:";
        const int count = field("nc").toInt(nullptr, 16), before = m_nonces.value(field("nonce"), count);
        m_isStale = stales > 0 && stales-- > 0;
        m_nonces[field("nonce")] = count;
        return !m_isStale && count > before && !(before > 0 && isNonceTakenOnce) && field("uri") == path.toUtf8()
            && field("response")
                   == hash(hash("operator:camera:" + password.toUtf8()) + middle + hash("POST:" + path.toUtf8()));
    }

    void refuse(QTcpSocket *socket)
    {
        QByteArray headers;
        for (const QString &scheme : qAsConst(schemes)) {
            const QByteArray nonce = QByteArray::number(QRandomGenerator::global()->generate64());
            m_nonces[nonce] = 0;
            if (scheme == "Basic")
                headers += "WWW-Authenticate: Basic realm=\"camera\"\r\n";
            else if (scheme != "Token")
                headers += "WWW-Authenticate: Digest realm=\"camera\", qop=\"auth\", algorithm=" + scheme.toLatin1()
                         + (m_isStale ? ", stale=true" : "") + ", nonce=\"" + nonce + "\"\r\n";
        }
        send(socket, headers.isEmpty() ? "400 Bad Request" : "401 Unauthorized", headers,
             schemes.contains("Token") ? fault("NotAuthorized") : QString());
    }

    QString content(const QString &operation) const
    {
        const QString media = "<tt:Media><tt:XAddr>" + mediaAddress + "</tt:XAddr></tt:Media>";
        return QHash<QString, QString>{
            {"GetSystemDateAndTime",
             now().toString("'<tds:SystemDateAndTime><tt:UTCDateTime><tt:Time><tt:Hour>'H'</tt:Hour>"
                            "<tt:Minute>'m'</tt:Minute><tt:Second>'s'</tt:Second></tt:Time><tt:Date>"
                            "<tt:Year>'yyyy'</tt:Year><tt:Month>'M'</tt:Month><tt:Day>'d'</tt:Day>"
                            "</tt:Date></tt:UTCDateTime></tds:SystemDateAndTime>'")},
            {"GetServices",
             "<tds:Service><tds:Namespace>http://www.onvif.org/ver10/media/wsdl</tds:Namespace><tds:XAddr>"
                 + mediaAddress + "</tds:XAddr></tds:Service>"},
            {"GetCapabilities", "<tds:Capabilities>" + media + "</tds:Capabilities>"},
            {"GetDeviceInformation", "<tds:SerialNumber> " + serial + " </tds:SerialNumber>"},
            {"GetDiscoveryMode", "<tds:DiscoveryMode>Discoverable</tds:DiscoveryMode>"}}
            .value(operation);
    }

    static QString fault(const QString &code)
    {
        return "<e:Fault><e:Code><e:Value>e:Sender</e:Value><e:Subcode><e:Value>ter:" + code
             + "</e:Value></e:Subcode></e:Code><e:Reason><e:Text>no</e:Text></e:Reason></e:Fault>";
    }

    static void send(QTcpSocket *socket, const QByteArray &status, const QByteArray &headers, const QString &content)
    {
        const QString www = "http://www.onvif.org/ver10/";
        const QString text =
            QString(R"(<e:Envelope xmlns:e="http://www.w3.org/2003/05/soap-envelope" xmlns:tds="%1device/wsdl")"
                    R"( xmlns:trt="%1media/wsdl" xmlns:tt="%1schema"><e:Body>%2</e:Body></e:Envelope>)");
        const QByteArray body = content.isEmpty() ? QByteArray() : text.arg(www, content).toUtf8();
        socket->write("HTTP/1.1 " + status + "\r\nContent-Type: application/soap+xml\r\n" + headers
                      + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }

    static QString found(const QString &pattern, const QString &text)
    {
        return QRegularExpression(pattern).match(text).captured(1);
    }
    QDateTime now() const { return QDateTime::currentDateTimeUtc().addSecs(clockOffset); }

    QTcpServer m_server;
    QHash<QTcpSocket *, QByteArray> m_received;
    QHash<QByteArray, int> m_nonces; ///< how often they were used
    QString m_shown;
    bool m_isStale = false;
};
