#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QtNetwork>

/// An ONVIF camera behind a real socket. Checks accounts by itself, and keeps a log of what it was asked.
class ScriptedCamera : public QObject
{
public:
    QStringList schemes; ///< that it asks for: "MD5", "SHA-256", "Token", "Basic"; none: it asks for no account
    QStringList broken; ///< of these: it asks for them, and takes nobody's
    QSet<QString> open{"GetSystemDateAndTime", "GetServices", "GetCapabilities"}; ///< operations for everybody
    QSet<QString> unknown, forbidden, silent, dropped; ///< operations
    QString serial = "SN-1", password = "Gr\u00fcn-7";
    bool isNonceTakenOnce = false;
    int stales = 0; ///< so many requests come with a nonce that is too old
    int clockOffset = 0; ///< seconds
    bool isAway = false; ///< hangs up on everybody
    QString mediaAddress;
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
        QStringList shown = log.filter(QRegularExpression("^" + operation + "[ @]"));
        return shown.replaceInStrings(operation + ' ', "");
    }

private:
    void read(QTcpSocket *socket)
    {
        QByteArray &received = m_received[socket];
        received += socket->readAll();
        const int headEnd = received.indexOf("\r\n\r\n") + 4;
        const QRegularExpression length("content-length: *(\\d+)", QRegularExpression::CaseInsensitiveOption);
        const int size = headEnd + length.match(received.left(headEnd)).captured(1).toInt();
        if (headEnd < 4 || received.size() < size)
            return;
        const QByteArray head = received.left(headEnd), body = received.mid(headEnd, size - headEnd);
        received.remove(0, size);
        take(socket, head, body);
    }

    void take(QTcpSocket *socket, const QByteArray &head, const QByteArray &body)
    {
        QXmlStreamReader xml(body);
        while (xml.name() != "Body" && !xml.atEnd())
            xml.readNextStartElement();
        xml.readNextStartElement();
        const QString operation = xml.name().toString();
        if (isAway || dropped.contains(operation))
            return socket->abort();
        QString shown = "none";
        m_isStale = false;
        const bool isKnown = isAccount(head, body, &shown) && !broken.contains(shown);
        const bool isAllowed =
            (schemes.isEmpty() || open.contains(operation) || isKnown) && !forbidden.contains(operation);
        const QString path = head.split(' ').value(1);
        log.append(operation + (path == info.path ? "" : '@' + path) + ' ' + shown + (isAllowed ? "" : " refused"));
        if (silent.contains(operation))
            return;
        if (!isAllowed)
            refuse(socket);
        else if (unknown.contains(operation))
            send(socket, "500 Internal Server Error", {}, fault("ActionNotSupported"));
        else
            send(socket, "200 OK", {}, answer(operation));
    }

    bool isAccount(const QByteArray &head, const QByteArray &body, QString *shown)
    {
        const auto between = [&body](const char *name) {
            return QRegularExpression(QString("<[^<>]*%1[^<>]*>([^<]*)<").arg(name)).match(body).captured(1);
        };
        if (body.contains("UsernameToken")) {
            *shown = "Token";
            const QString created = between("Created");
            const qint64 age = QDateTime::fromString(created, Qt::ISODateWithMs).secsTo(now());
            QCryptographicHash hash(QCryptographicHash::Sha1);
            hash.addData(QByteArray::fromBase64(between("Nonce").toLatin1()) + created.toLatin1() + password.toUtf8());
            const bool isNew = !std::exchange(m_nonces[between("Nonce").toLatin1()], 1);
            return isNew && qAbs(age) < 60 && between("Username") == info.userName
                && hash.result().toBase64() == between("Password").toLatin1();
        }
        const QString header =
            QRegularExpression("\r\nauthorization: ([^\r]*)", QRegularExpression::CaseInsensitiveOption)
                .match(head)
                .captured(1);
        if (header.isEmpty())
            return false;
        *shown = header.section(' ', 0, 0);
        return *shown == "Digest" && isDigestRight(header, head.split(' ').value(1), shown);
    }

    bool isDigestRight(const QString &header, const QByteArray &uri, QString *shown)
    {
        const auto field = [&header](const char *name) {
            const QRegularExpression pattern(QString("[ ,]%1=(?:\"([^\"]*)\"|([^, ]*))").arg(name));
            const QRegularExpressionMatch match = pattern.match(header);
            return (match.captured(1) + match.captured(2)).toUtf8();
        };
        *shown = field("algorithm").isEmpty() ? "MD5" : field("algorithm");
        const auto kind = *shown == "SHA-256" ? QCryptographicHash::Sha256 : QCryptographicHash::Md5;
        const auto hash = [kind](const QByteArray &text) { return QCryptographicHash::hash(text, kind).toHex(); };
        const QByteArray account = hash("operator:camera:" + password.toUtf8());
        const QByteArray middle = ':' + field("nonce") + ':' + field("nc") + ':' + field("cnonce") + ":auth:";
        const int count = field("nc").toInt(nullptr, 16);
        m_isStale = stales > 0 && stales-- > 0;
        if (m_isStale || !m_nonces.contains(field("nonce")) || count <= m_nonces.value(field("nonce")))
            return false;
        const bool isUsed = std::exchange(m_nonces[field("nonce")], count) > 0;
        return !(isUsed && isNonceTakenOnce) && field("uri") == uri
            && field("response") == hash(account + middle + hash("POST:" + uri));
    }

    void refuse(QTcpSocket *socket)
    {
        QByteArray challenges;
        for (const QString &scheme : qAsConst(schemes)) {
            const QByteArray nonce = QByteArray::number(QRandomGenerator::global()->generate64());
            if (scheme == "Basic")
                challenges += "WWW-Authenticate: Basic realm=\"camera\"\r\n";
            else if (scheme != "Token")
                challenges += "WWW-Authenticate: Digest realm=\"camera\", qop=\"auth\", algorithm=" + scheme.toLatin1()
                            + ", nonce=\"" + nonce + (m_isStale ? "\", stale=true\r\n" : "\"\r\n");
            m_nonces[nonce] = 0;
        }
        send(socket, challenges.isEmpty() ? "400 Bad Request" : "401 Unauthorized", challenges,
             schemes.contains("Token") ? fault("NotAuthorized") : QString());
    }

    QString answer(const QString &operation) const
    {
        const QString named = "<%2:%1Response>%3</%2:%1Response>";
        const QString name = operation == "GetProfiles" ? "trt" : "tds";
        return named.arg(operation, name, content(operation));
    }

    QString content(const QString &operation) const
    {
        const QString media = mediaAddress.isEmpty() ? QString("http://%1/media").arg(info.ip) : mediaAddress;
        if (operation == "GetSystemDateAndTime")
            return now().toString("'<tds:SystemDateAndTime><tt:UTCDateTime><tt:Time><tt:Hour>'H'</tt:Hour><tt:Minute>'m"
                                  "'</tt:Minute><tt:Second>'s'</tt:Second></tt:Time><tt:Date><tt:Year>'yyyy'</tt:Year>"
                                  "<tt:Month>'M'</tt:Month><tt:Day>'d'</tt:Day></tt:Date></tt:UTCDateTime>"
                                  "</tds:SystemDateAndTime>'");
        if (operation == "GetServices")
            return "<tds:Service><tds:Namespace>http://www.onvif.org/ver10/media/wsdl</tds:Namespace><tds:XAddr>"
                 + media.toHtmlEscaped() + "</tds:XAddr></tds:Service>";
        if (operation == "GetCapabilities")
            return "<tds:Capabilities><tt:Media><tt:XAddr>" + media.toHtmlEscaped()
                 + "</tt:XAddr></tt:Media></tds:Capabilities>";
        if (operation == "GetDeviceInformation")
            return "<tds:SerialNumber> " + serial + " </tds:SerialNumber>";
        return operation == "GetDiscoveryMode" ? "<tds:DiscoveryMode>Discoverable</tds:DiscoveryMode>" : QString();
    }

    static QString fault(const QString &code)
    {
        return "<e:Fault><e:Code><e:Value>e:Sender</e:Value><e:Subcode><e:Value>ter:" + code
             + "</e:Value></e:Subcode></e:Code><e:Reason><e:Text>no</e:Text></e:Reason></e:Fault>";
    }

    static void send(QTcpSocket *socket, const char *status, const QByteArray &headers, const QString &content)
    {
        const QString envelope = R"(<e:Envelope xmlns:e="http://www.w3.org/2003/05/soap-envelope")"
                                 R"( xmlns:ter="http://www.onvif.org/ver10/error")"
                                 R"( xmlns:tds="http://www.onvif.org/ver10/device/wsdl")"
                                 R"( xmlns:trt="http://www.onvif.org/ver10/media/wsdl")"
                                 R"( xmlns:tt="http://www.onvif.org/ver10/schema"><e:Body>%1</e:Body></e:Envelope>)";
        const QByteArray body = content.isEmpty() ? QByteArray() : envelope.arg(content).toUtf8();
        socket->write(QByteArray("HTTP/1.1 ") + status + "\r\nContent-Type: application/soap+xml\r\n" + headers
                      + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }

    QDateTime now() const { return QDateTime::currentDateTimeUtc().addSecs(clockOffset); }

    QTcpServer m_server;
    QHash<QTcpSocket *, QByteArray> m_received;
    QHash<QByteArray, int> m_nonces; ///< how often they were used
    bool m_isStale = false;
};
