#include "support/OrdaTest.h"

#include <vms_client_sdk/Backlog.h>
#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/StatusChanges.h>
#include <vms_client_sdk/websocket/WebSocketConnection.h>

#include <QtNetwork>

#include <optional>

using namespace vms_sdk;

namespace {

/// A frame as a server sends it; @p claimed is the length that its head tells.
QByteArray frame(int firstByte, const QByteArray &payload, std::optional<quint64> claimed = {})
{
    const quint64 length = claimed.value_or(quint64(payload.size()));
    QByteArray head(1, char(firstByte));
    const int lengthBytes = length < 126 ? 0 : length < 65536 ? 2 : 8;
    head.append(lengthBytes == 0 ? char(length) : lengthBytes == 2 ? char(126) : char(127));
    for (int i = lengthBytes - 1; i >= 0; --i)
        head.append(char(length >> (8 * i)));
    return head + payload;
}

QByteArray text(const QByteArray &payload)
{
    return frame(0x81, payload);
}

/// A server of raw bytes.
class RawPeer : public QObject
{
public:
    QByteArray head = "HTTP/1.1 101 Switching Protocols\r\nUpgrade: WebSocket\r\nConnection: keep-alive, Upgrade\r\n"
                      "Sec-WebSocket-Accept: KEY\r\n\r\n";
    QByteArray bytes; ///< after the head, in the same write
    QTcpSocket *client = nullptr;

    RawPeer()
    {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            client = m_server.nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, this, &RawPeer::answer);
        });
    }

    QUrl url() const { return QUrl(QStringLiteral("ws://127.0.0.1:%1/d").arg(m_server.serverPort())); }

private:
    void answer() const
    {
        const QByteArray request = client->readAll();
        const int key = request.indexOf("Sec-WebSocket-Key: ");
        if (key < 0)
            return;
        const QByteArray accept = QCryptographicHash::hash(
            request.mid(key + 19, 24) + "258EAFA5-E914-47DA-95CA-C5AB0DC85B11", QCryptographicHash::Sha1);
        client->write(QByteArray(head).replace("KEY", accept.toBase64()) + bytes);
    }

    QTcpServer m_server;
};

} // namespace

class WebSocketTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        m_peer = std::make_unique<RawPeer>();
        m_connection = std::make_unique<WebSocketConnection>(PeerLimits());
    }

    void peersThatBreakTheRulesAreCut_data()
    {
        columns<QByteArray, QByteArray, QString>({"head", "bytes", "reason"}); // no head: as it should be
        const auto row = [](const char *name, const QByteArray &head, const QByteArray &bytes, const char *reason) {
            ::row(name, head, bytes, reason);
        };
        const QByteArray ok;
        const QByteArray status = "HTTP/1.1 101 Ok\r\n";
        row("a status line without end", QByteArray(9'000, 'x'), {}, "handshake is longer");
        row("a header line without end", status + "a: " + QByteArray(9'000, 'x'), {}, "handshake is longer");
        row("headers without end", status + QByteArray("a: b\r\n").repeated(11'000), {}, "handshake is longer");
        row("no HTTP", "SSH-2.0\r\n\r\n", {}, "no HTTP answer");
        row("another protocol with a status", "SIP/2.0 101 Ok\r\n\r\n", {}, "no HTTP answer");
        row("another status", "HTTP/1.1 404 Not Found\r\n\r\n", {}, "HTTP 404");
        row("another key", status + "Upgrade: websocket\r\nConnection: upgrade\r\nSec-WebSocket-Accept: x\r\n\r\n", {},
            "not asked for");
        row("an extension that was not offered",
            status
                + "Upgrade: websocket\r\nConnection: upgrade\r\nSec-WebSocket-Accept: KEY\r\n"
                  "Sec-WebSocket-Extensions: permessage-deflate\r\n\r\n",
            {}, "not asked for");

        row("masked", ok, QByteArray("\x81\x81\x00\x00\x00\x00x", 7), "masked");
        row("reserved bits", ok, frame(0xC1, "x"), "unknown kind");
        row("unknown opcode", ok, frame(0x83, "x"), "unknown kind");
        row("a control frame in parts", ok, frame(0x09, "x"), "malformed");
        row("a large control frame", ok, frame(0x89, QByteArray(126, 'x')), "malformed");
        row("the end of a message without its beginning", ok, frame(0x80, "x"), "wrong order");
        row("a message within a message", ok, frame(0x01, "x") + text("y"), "wrong order");
        row("not UTF-8", ok, text("\xC3("), "not UTF-8");
        row("over 1 MiB", ok, frame(0x81, "x", quint64(maxFrameBytes + 1)), "over 1024 KiB");
        row("over 1 MiB in parts", ok, frame(0x01, "x") + frame(0x80, "y", quint64(maxFrameBytes)), "over 1024 KiB");
        row("a claim of 2^62 bytes", ok, frame(0x82, "x", 1ULL << 62), "over 1024 KiB");
        row("pings", ok, frame(0x89, {}).repeated(1'001), "faster than");
        row("pongs", ok, frame(0x8A, {}).repeated(1'001), "faster than");
        row("empty continuations", ok, frame(0x01, {}) + frame(0x00, {}).repeated(1'001), "faster than");
        row("small binary messages", ok, frame(0x82, "x").repeated(1'001), "faster than");
        row("small text messages", ok, text("x").repeated(1'001), "faster than");
        row("bytes", ok, text(QByteArray(1'000'000, 'x')).repeated(20), "faster than");
        row("goodbye", ok, frame(0x88, "\x11\x31"), "connection closed");
    }

    void peersThatBreakTheRulesAreCut()
    {
        QFETCH(QByteArray, head);
        QFETCH(QByteArray, bytes);
        if (!head.isEmpty())
            m_peer->head = head;
        m_peer->bytes = bytes;
        const QSignalSpy ended(m_connection.get(), &WebSocketConnection::ended);
        const QSignalSpy finished(m_connection.get(), &WebSocketConnection::finished);
        connect(m_connection.get(), &WebSocketConnection::ended, m_connection.get(), &WebSocketConnection::abort);
        m_connection->open(m_peer->url(), {});
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(ended.size(), 1);
        QFETCH(QString, reason);
        QVERIFY2(ended.at(0).at(1).toString().contains(reason), qPrintable(ended.at(0).at(1).toString()));
        const bool isGoodbye = reason == "connection closed";
        const bool isNoWebSocket = QRegularExpression("HTTP|not asked for").match(reason).hasMatch();
        QCOMPARE(ended.at(0).at(2).value<TroubleReason>(), isGoodbye       ? TroubleReason::ConnectionLost
                                                           : isNoWebSocket ? TroubleReason::SignOn
                                                                           : TroubleReason::Limits);
        QCOMPARE(ended.at(0).at(0).toInt(), isGoodbye ? 4401 : 1006);
        QVERIFY(m_connection->isFinished());
    }

    void messagesArriveWholeHoweverTheyAreCut_data() { seeds(30); }

    void messagesArriveWholeHoweverTheyAreCut()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        QByteArrayList messages;
        QByteArray bytes;
        for (int i = 0; i < 20; ++i) {
            const QByteArray message =
                QByteArray("\xC3\xBC\n").repeated(random.bounded(1 << random.bounded(12))); // cut within a character
            messages.append(message);
            int sent = 0;
            do {
                const int part = random.bounded(message.size() - sent + 1);
                const bool isLast = sent + part == message.size();
                bytes += frame((sent == 0 ? 0x01 : 0x00) | (isLast ? 0x80 : 0x00), message.mid(sent, part));
                if (sent == 0 && part == 0 && !isLast)
                    bytes.chop(2); // an empty beginning would begin twice
                sent += part;
                if (random.bounded(3) == 0)
                    bytes += frame(0x89, "ping");
            } while (sent < message.size());
        }
        const QSignalSpy received(m_connection.get(), &WebSocketConnection::textReceived);
        const QSignalSpy ended(m_connection.get(), &WebSocketConnection::ended);
        m_connection->open(m_peer->url(), {});
        QTRY_VERIFY(m_connection->isOpen());
        for (int at = 0; at < bytes.size();) {
            const int part = 1 + random.bounded(1 << random.bounded(14));
            m_peer->client->write(bytes.mid(at, part));
            m_peer->client->flush();
            QCoreApplication::processEvents();
            at += part;
        }
        QTRY_COMPARE(received.size(), messages.size());
        for (int i = 0; i < messages.size(); ++i)
            QCOMPARE(received.at(i).at(0).toByteArray(), messages.at(i));
        QCOMPARE(ended.size(), 0);
    }

    void unreadPongsAndStoppedReadingKeepLittle()
    {
        const QSignalSpy ended(m_connection.get(), &WebSocketConnection::ended);
        const QSignalSpy received(m_connection.get(), &WebSocketConnection::textReceived);
        m_connection->open(m_peer->url(), {});
        QTRY_VERIFY(m_connection->isOpen());
        m_connection->setReading(false);
        const QByteArray message = text(QByteArray(1'000'000, 'x'));
        for (int i = 0; i < 16; ++i)
            m_peer->client->write(message);
        QTRY_VERIFY(m_peer->client->bytesToWrite() > 1'000'000); // as the system's buffers are full
        QTest::qWait(50);
        QCOMPARE(received.size(), 0);
        m_connection->setReading(true);
        QTRY_COMPARE(received.size(), 16);
        QCOMPARE(ended.size(), 0);
        m_connection->setReading(false);
        m_peer->client->write(text("last"));
        m_peer->client->disconnectFromHost();
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(received.size(), 17); // what came before the end counts

        m_peer->client->setReadBufferSize(1);
        m_connection = std::make_unique<WebSocketConnection>(PeerLimits{1'000'000, 1 << 30, 100'000});
        const QSignalSpy cut(m_connection.get(), &WebSocketConnection::ended);
        m_connection->open(m_peer->url(), {});
        QTRY_VERIFY(m_connection->isOpen());
        m_peer->client->setReadBufferSize(1); // reads no pong
        const QByteArray pings = frame(0x89, QByteArray(125, 'x')).repeated(1'000);
        for (int i = 0; i < 200 && cut.isEmpty(); ++i) {
            m_peer->client->write(pings);
            m_peer->client->flush();
            QCoreApplication::processEvents();
            QVERIFY(m_connection->unsentBytes() < 120'000);
        }
        QTRY_COMPARE(cut.size(), 1);
        QVERIFY(cut.at(0).at(1).toString().contains("pongs"));
    }

    void whatWaitsIsCountedPerDeviceAndInAll()
    {
        int roomAgain = 0;
        Backlog backlog([&roomAgain] { ++roomAgain; });
        const int large = 500'000; // characters: a megabyte each
        int added = 0;
        while (backlog.add("a", "id of a", large))
            ++added;
        QCOMPARE(added, 4);
        QVERIFY(backlog.add("b", "id of b", large)); // others are not concerned
        backlog.passedOn("unknown", large);
        backlog.passedOn("id of a", large);
        QVERIFY(backlog.add("a", "id of a", large));

        int waiting = 0;
        for (; !backlog.isFull(); ++waiting)
            QVERIFY(backlog.add(QString::number(waiting), QString::number(waiting), large));
        QCOMPARE(waiting, 62 + 1);
        while (waiting > 10)
            backlog.passedOn(QString::number(--waiting), large);
        QCOMPARE(roomAgain, 1); // told once, and long before nothing is left
    }

    void changesOfStateAreMergedAfterTheFirstTen()
    {
        StatusChanges changes;
        const QString id = "d";
        const auto add = [&](DevStatus status, qint64 now) { return changes.add({id, status}, now).size(); };
        for (int i = 0; i < 10; ++i)
            QCOMPARE(add(i % 2 ? DevOnline : DevDefaultPassword, 5'000 + i), 1);
        QCOMPARE(add(DevLocked, 5'100), 0);
        QCOMPARE(changes.add({"other", DevOnline}, 5'100).size(), 1);
        QVERIFY(changes.isHolding());
        QCOMPARE(changes.takeDue(5'999).size(), 0);
        using Changes = QVector<StatusChanges::Change>;
        QCOMPARE(changes.takeDue(6'000), Changes({{id, DevLocked}}));
        QVERIFY(!changes.isHolding());

        for (int i = 0; i < 9; ++i) // the merged one was the first of this second
            QCOMPARE(add(DevOnline, 6'001), 1);
        const LinkTrouble lost{TroubleReason::ConnectionLost, "first", 1}, silent{TroubleReason::NoAnswer, "then", 1};
        QCOMPARE(changes.add({id, DevOffline, lost}, 6'002).size(), 0);
        QCOMPARE(changes.add({id, DevOffline, silent}, 6'003).size(), 0);
        QCOMPARE(add(DevOnline, 6'004), 0);
        QCOMPARE(changes.takeDue(7'000), Changes({{id, DevOffline, silent}, {id, DevOnline}}));
        QCOMPARE(add(DevOffline, 9'000), 1);
    }

private:
    std::unique_ptr<RawPeer> m_peer;
    std::unique_ptr<WebSocketConnection> m_connection;
};

ORDA_TEST_MAIN(WebSocketTest)
#include "websocket_test.moc"
