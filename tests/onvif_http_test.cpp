#include "support/OrdaTest.h"

#include <vms_client_sdk/onvif/DigestAuth.h>
#include <vms_client_sdk/onvif/HttpExchanges.h>

#include <QtNetwork>

using namespace vms_sdk;
using namespace std::chrono_literals;

namespace {

const QByteArray good = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\ngood";

/// A camera at the level of sockets: it counts what arrives, and sends what the test has it send.
class Camera : public QTcpServer
{
public:
    QByteArray answer = good; ///< to each request
    QByteArray endless; ///< sent again and again after it
    bool closes = false; ///< after the answer, without having said so
    bool drips = false; ///< the answer goes out a byte at a time
    bool isSecure = false;
    QSslConfiguration tls;
    QByteArrayList requests;
    QVector<QTcpSocket *> connections;

    explicit Camera() { listen(QHostAddress::LocalHost); }
    HttpRequest request() const
    {
        HttpRequest request;
        request.url = QUrl(QString("http%1://127.0.0.1:%2/onvif/x?y=1").arg(isSecure ? "s" : "").arg(serverPort()));
        request.body = "<body/>";
        return request;
    }
    void say(QTcpSocket *socket)
    {
        socket->write(drips ? answer + 'x' : answer);
        if (closes)
            socket->disconnectFromHost();
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto *socket = new QSslSocket(this);
        connections.append(socket);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            m_received[socket] += socket->readAll();
            if (!m_received[socket].endsWith("<body/>"))
                return;
            requests.append(m_received.take(socket));
            say(socket);
        });
        connect(socket, &QTcpSocket::bytesWritten, this, [this, socket] {
            if (!endless.isEmpty() && socket->bytesToWrite() == 0)
                socket->write(endless.repeated(1 + 30'000 / endless.size()));
            if (drips)
                QTimer::singleShot(20, socket, [socket] { socket->write("x"); });
        });
        socket->setSocketDescriptor(descriptor);
        if (tls != QSslConfiguration()) {
            socket->setSslConfiguration(tls);
            socket->startServerEncryption();
        }
    }

private:
    QHash<QTcpSocket *, QByteArray> m_received;
};

/// A text of a table: "~" is the end of a line, "{3*x}" is "xxx".
QByteArray bytesFrom(QString text)
{
    static const QRegularExpression repeated("\\{(\\d+)\\*(.*?)\\}");
    for (auto match = repeated.match(text); match.hasMatch(); match = repeated.match(text))
        text.replace(match.captured(0), match.captured(2).repeated(match.captured(1).toInt()));
    return text.replace("~", "\r\n").toLatin1();
}

QString valueOf(const char *column)
{
    return *static_cast<QString *>(QTest::qData(column, QMetaType::QString));
}

HttpLimits quick()
{
    HttpLimits limits;
    limits.connectLimit = 300ms;
    limits.answerLimit = 600ms;
    limits.maxAnswerBytes = 50'000;
    return limits;
}

} // namespace

class OnvifHttpTest : public OrdaTest
{
    Q_OBJECT

    QList<HttpAnswer> m_answers;
    HttpExchanges *m_exchanges = nullptr;

    void post(const HttpRequest &request, QObject *owner = nullptr)
    {
        m_exchanges->post(request, owner ? owner : this,
                          [this](const HttpAnswer &answer) { m_answers.append(answer); });
    }
    void use(const HttpLimits &limits)
    {
        delete m_exchanges;
        m_exchanges = new HttpExchanges(limits, this);
    }

private slots:
    void init()
    {
        OrdaTest::init();
        use(quick());
        m_answers.clear();
    }

    void answersAreReadOrRefused_data()
    {
        columns<QString, QString, QString, QString>({"answer", "endless", "outcome", "error"});
        rowsFrom("http_answers.txt");
    }

    void answersAreReadOrRefused()
    {
        const QString outcome = valueOf("outcome"), error = valueOf("error");
        Camera camera;
        camera.answer = bytesFrom(valueOf("answer"));
        camera.endless = bytesFrom(valueOf("endless"));
        camera.closes = camera.endless.isEmpty();
        post(camera.request());
        QTRY_COMPARE(m_answers.size(), 1);
        const HttpAnswer &read = m_answers.constFirst();
        if (read.status != 0) {
            const QByteArray content = read.status == 401 ? read.challenges.join('|') : read.body;
            QCOMPARE((QByteArray::number(read.status) + ' ' + content).trimmed(), bytesFrom(outcome).trimmed());
        } else {
            QCOMPARE(read.body, QByteArray());
        }
        QCOMPARE(read.reason, outcome == "lost"        ? TroubleReason::ConnectionLost
                              : outcome == "limits"    ? TroubleReason::Limits
                              : outcome == "no answer" ? TroubleReason::SignOn
                                                       : TroubleReason::None);
        QVERIFY2(error.isEmpty() ? read.error.isEmpty() : read.error.contains(error), qPrintable(read.error));
        QCOMPARE(read.hasLeft, read.status == 0);
        QCOMPARE(camera.requests.size(), 1); // never sent again
    }

    void requestsSayWhatTheyMust()
    {
        Camera camera;
        HttpRequest request = camera.request();
        request.url.setUserInfo("not:shown");
        request.action = "urn:a";
        request.authorization = "Digest x";
        post(request);
        QTRY_COMPARE(m_answers.size(), 1);
        QCOMPARE(camera.requests.constFirst(),
                 "POST /onvif/x?y=1 HTTP/1.1\r\nHost: 127.0.0.1:" + QByteArray::number(camera.serverPort())
                     + "\r\nUser-Agent: orda\r\nConnection: keep-alive\r\nAccept-Encoding: identity\r\nContent-Type: "
                       "application/soap+xml; charset=utf-8; action=\"urn:a\"\r\nContent-Length: 7\r\nAuthorization: "
                       "Digest x\r\n\r\n<body/>");
    }

    void whoCannotBeAskedSaysWhy_data()
    {
        columns<QString, QString, TroubleReason>({"url", "pin", "reason"});
        row("nobody listens", "http://127.0.0.1:1/", "", TroubleReason::ConnectionRefused);
        row("no name", "http://" + QString("much.too.long.").repeated(20) + "/", "", TroubleReason::NoAddress);
        row("no host", "http:///x", "", TroubleReason::NoAddress);
        row("another kind of address", "file:///etc/passwd", "", TroubleReason::NoAddress);
        row("no TLS", "https://127.0.0.1:%1/", "", TroubleReason::Tls);
        row("pinned, and no TLS", "http://127.0.0.1:%1/", QString(64, 'a'), TroubleReason::Certificate);
    }

    void whoCannotBeAskedSaysWhy()
    {
        Camera camera;
        HttpRequest request;
        request.url = QUrl(valueOf("url").replace("%1", QString::number(camera.serverPort())));
        request.fingerprint = valueOf("pin");
        QTimer::singleShot(50, &camera, [&camera] { // it waits for a request, and gets a handshake
            for (QTcpSocket *socket : qAsConst(camera.connections))
                camera.say(socket);
        });
        post(request);
        QTRY_COMPARE(m_answers.size(), 1);
        QFETCH(TroubleReason, reason);
        QCOMPARE(m_answers.constFirst().reason, reason);
        QVERIFY(!m_answers.constFirst().error.isEmpty() && !m_answers.constFirst().hasLeft);
        QCOMPARE(camera.requests, QByteArrayList());
    }

    void deadlinesAreForTheWhole_data()
    {
        columns<QString, QString>({"answer", "error"});
        row("silence", "", "no complete answer in time");
        row("a byte now and then", "HTTP/1.1 200 OK\r\n\r\n", "no complete answer in time");
        row("no handshake", "", "no connection in time");
    }

    void deadlinesAreForTheWhole()
    {
        Camera camera;
        camera.answer = valueOf("answer").toLatin1();
        camera.drips = !camera.answer.isEmpty();
        camera.isSecure = valueOf("error").contains("connection");
        QElapsedTimer timer;
        timer.start();
        post(camera.request());
        QTRY_COMPARE(m_answers.size(), 1);
        QCOMPARE(m_answers.constFirst().reason, TroubleReason::NoAnswer);
        QCOMPARE(m_answers.constFirst().error, valueOf("error"));
        QCOMPARE(m_answers.constFirst().hasLeft, !camera.isSecure);
        const int least = camera.isSecure ? 250 : 500;
        QVERIFY2(timer.elapsed() < 1500 && timer.elapsed() > least, qPrintable(QString::number(timer.elapsed())));
    }

    void connectionsAreKeptButNothingIsSentTwiceThatMustNot()
    {
        Camera camera;
        for (int i = 1; i <= 3; ++i) {
            post(camera.request());
            QTRY_COMPARE(m_answers.size(), i);
        }
        QCOMPARE(camera.connections.size(), 1);

        // Closed when the next request has arrived: that is sent anew, once, but for one that must not come twice.
        camera.answer.clear();
        camera.closes = true;
        post(camera.request());
        QTRY_COMPARE(m_answers.size(), 4);
        QCOMPARE(m_answers.constLast().reason, TroubleReason::ConnectionLost);
        QCOMPARE(camera.requests.size(), 5);
        camera.answer = good; // without a word of closing
        HttpRequest once = camera.request();
        once.isRepeatable = false;
        for (int i = 1; i <= 5; ++i) {
            post(i % 2 ? camera.request() : once);
            QTRY_COMPARE(m_answers.size(), 4 + i);
            QCOMPARE(m_answers.constLast().body, QByteArray("good"));
        }
        QCOMPARE(camera.requests.size(), 10);
        camera.closes = false;
        post(camera.request());
        QTRY_COMPARE(m_answers.size(), 10);
        const int connections = camera.connections.size();
        camera.answer.clear();
        camera.closes = true;
        post(once);
        QTRY_COMPARE(m_answers.size(), 11);
        QCOMPARE(camera.requests.size(), 12);
        QCOMPARE(camera.connections.size(), connections + 1);
    }

    void whatFollowsAnAnswerIsNotTheNextOne()
    {
        Camera camera;
        camera.answer = good + "HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\nforged";
        for (int i = 1; i <= 2; ++i) {
            post(camera.request());
            QTRY_COMPARE(m_answers.size(), i);
            QCOMPARE(m_answers.constLast().body, QByteArray("good"));
        }
        QCOMPARE(camera.connections.size(), 2);
    }

    void certificatesAreComparedBeforeAnythingLeaves_data()
    {
        columns<QString, QString, QString, QString>({"certificate", "pin", "trusted", "state"});
        rowsFrom("certificates.txt");
    }

    void certificatesAreComparedBeforeAnythingLeaves()
    {
        const QString pin = valueOf("pin");
        const bool isTaken = valueOf("state") == "taken";
        const QString path = QFINDTESTDATA("support/certificates") + '/' + valueOf("certificate") + ".pem";
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        Camera camera;
        camera.isSecure = true;
        camera.tls = QSslConfiguration::defaultConfiguration();
        camera.tls.setProtocol(QTest::currentDataTag() == QByteArray("TLS 1.1") ? QSsl::TlsV1_1
                                                                                : QSsl::SecureProtocols);
        camera.tls.setPrivateKey(QSslKey(&file, QSsl::Ec));
        camera.tls.setLocalCertificateChain(QSslCertificate::fromPath(path));
        const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
        QSslConfiguration trusting = before;
        if (!valueOf("trusted").isEmpty())
            trusting.setCaCertificates({camera.tls.localCertificate()});
        QSslConfiguration::setDefaultConfiguration(trusting);
        HttpRequest request = camera.request();
        const QByteArray own = camera.tls.localCertificate().digest(QCryptographicHash::Sha256).toHex(':');
        request.fingerprint = pin == "own" ? QString::fromLatin1(own) : pin;
        post(request);
        QTRY_COMPARE(m_answers.size(), 1);
        if (isTaken) { // on the connection that is kept, what another pin asks for must not leave either
            camera.answer = "HTTP/1.1 200 to the end\r\n\r\n" + QByteArray(49'000, 'x');
            camera.closes = true;
            HttpRequest other = request;
            other.fingerprint = QString(64, '0');
            post(other);
            QTRY_COMPARE(m_answers.size(), 2);
            post(request);
            QTRY_COMPARE(m_answers.size(), 3);
            QCOMPARE(m_answers.constLast().body.size(), 49'000);
            QCOMPARE(camera.requests.size(), 2);
            m_answers.removeFirst();
        }
        QSslConfiguration::setDefaultConfiguration(before);
        const bool isOld = QTest::currentDataTag() == QByteArray("TLS 1.1");
        QCOMPARE(m_answers.constFirst().reason, isOld ? TroubleReason::Tls : TroubleReason::Certificate);
        QVERIFY(!m_answers.constFirst().hasLeft);
        QCOMPARE(camera.requests.size(), isTaken ? 2 : 0);
    }

    void oneCameraTakesOnlyItsShare()
    {
        HttpLimits limits = quick();
        limits.maxAtOnce = 6;
        limits.answerLimit = 10s;
        use(limits);
        Camera silent, answering, flooding;
        silent.answer.clear();
        flooding.answer = "HTTP/1.1 200 OK\r\n";
        flooding.endless = "A: b\r\n";
        for (int i = 0; i < 20; ++i)
            post(silent.request());
        for (int i = 0; i < 20; ++i) {
            post(flooding.request());
            post(answering.request());
        }
        QTRY_COMPARE(m_answers.size(), 40);
        QCOMPARE(
            std::count_if(m_answers.begin(), m_answers.end(), [](const auto &each) { return each.body == "good"; }),
            20);
        QCOMPARE(silent.requests.size(), limits.maxToAddress);
        QVERIFY(answering.connections.size() <= limits.maxToAddress);
    }

    void whoHasGoneIsToldNothing()
    {
        Camera silent;
        silent.answer.clear();
        auto *owner = new QObject(this);
        for (int i = 0; i < 6; ++i) // four go on, two wait
            post(silent.request(), owner);
        QTRY_COMPARE(silent.requests.size(), 4);
        delete owner;
        silent.answer = good;
        m_exchanges->post(silent.request(), this, [this](const HttpAnswer &answer) {
            m_answers.append(answer);
            post(HttpRequest()); // would be told in the end
            delete std::exchange(m_exchanges, nullptr);
        });
        QTRY_COMPARE(m_answers.size(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(silent.requests.size(), 5); // what waited was not sent
        QCOMPARE(m_answers.size(), 1);
    }

    void accountsAreShownAsTheStandardHasIt_data()
    {
        columns<QString, QString>({"challenges", "response"});
        rowsFrom("digest_challenges.txt");
    }

    void accountsAreShownAsTheStandardHasIt()
    {
        const QByteArray response = bytesFrom(valueOf("response"));
        QByteArray challenges = bytesFrom(valueOf("challenges"));
        challenges.replace("RFC", R"(Digest realm="http-auth@example.org", qop="auth, auth-int", )"
                                  R"(nonce="7ypf/xlj9XXwfDPEoM4URrv/xwf94BcCAzFZH4GiTo0v", )"
                                  R"(opaque="FQhe/qaU925kfnzjCev0ciny7QMkPqMAFRtzCUYo5tdS")");
        challenges.replace("own", R"(digest Realm="a, \"b\\" , NONCE=N1 ,stale=TRUE)");
        auto auth = DigestAuth::fromChallenges({challenges});
        QCOMPARE(auth.has_value(), !response.isEmpty());
        if (!auth)
            return;
        const bool isOwn = auth->nonce() == "N1";
        QCOMPARE(auth->isStale(), isOwn);
        const QByteArray uri = isOwn ? "/onvif/x?y=1" : "/dir/index.html";
        const QString user = isOwn ? "J\u00e4ger" : "Mufasa", password = isOwn ? "p\u00e4\"\u00df" : "Circle of Life";
        const QByteArray header = auth->authorization(user, password, uri, isOwn ? "POST" : "GET",
                                                      isOwn ? "C1" : "f2/wE4q74E6zIJEtWaHKaf5wv/H5QzzpXusqGemxURZJ");
        QVERIFY2(header.contains(", response=\"" + response + '"'), header);
        QVERIFY2(!isOwn || header.startsWith("Digest username=\"J\u00e4ger\", realm=\"a, \\\"b\\\\\", nonce=\"N1\""),
                 header);
        QCOMPARE(header.contains("qop=auth, nc=00000001, cnonce=\""), challenges.contains("qop"));
        const QByteArray second = auth->authorization("a\"\\\r\nX: y", password, uri);
        QVERIFY2(second.contains("username=\"a\\\"\\\\X: y\"") && !second.contains('\n'), second);
        QCOMPARE(second.contains("nc=00000002"), challenges.contains("qop"));
    }
};

ORDA_TEST_MAIN(OnvifHttpTest)
#include "onvif_http_test.moc"
