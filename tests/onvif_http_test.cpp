#include "support/TextTable.h"

#include <vms_client_sdk/onvif/DigestAuth.h>
#include <vms_client_sdk/onvif/HttpExchanges.h>

#include <QtNetwork>

using namespace vms_sdk;
using namespace std::chrono_literals;

namespace {

constexpr char good[] = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\ngood";

/// A camera at the level of sockets: it counts what arrives, and sends what the test has it send.
class Camera : public QTcpServer
{
public:
    QByteArray answer = good; ///< to each request
    QByteArray then = "stays"; ///< what follows: nothing, or as in the table
    QSslConfiguration tls;
    QByteArrayList requests;
    QVector<QTcpSocket *> connections;

    explicit Camera() { listen(QHostAddress::LocalHost); }
    HttpRequest request() const
    {
        HttpRequest request;
        request.url = QUrl(QString("http%1://127.0.0.1:%2/onvif/x?y=1").arg(tls.isNull() ? "" : "s").arg(serverPort()));
        request.body = "<body/>";
        return request;
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto *socket = new QSslSocket(this);
        connections.append(socket);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            const QByteArray arrived = socket->peek(1000);
            if (!arrived.startsWith('\x16') && !arrived.endsWith("<body/>"))
                return; // neither a handshake nor a whole request
            requests.append(socket->readAll());
            socket->write(answer);
            if (then.isEmpty())
                socket->disconnectFromHost();
        });
        connect(socket, &QTcpSocket::bytesWritten, this, [this, socket] {
            if (then == "drips")
                QTimer::singleShot(20, socket, [socket] { socket->write("x"); });
            else if (then != "stays" && !then.isEmpty() && socket->bytesToWrite() == 0)
                socket->write(then.repeated(1 + 30'000 / then.size()));
        });
        socket->setSocketDescriptor(descriptor);
        if (!tls.isNull()) {
            socket->setSslConfiguration(tls);
            socket->startServerEncryption();
        }
    }
};

} // namespace

class OnvifHttpTest : public OrdaTest
{
    Q_OBJECT

    QList<HttpAnswer> m_answers;
    HttpExchanges *m_exchanges = nullptr;

    void post(const HttpRequest &request)
    {
        m_exchanges->post(request, this, [this](const HttpAnswer &answer) { m_answers.append(answer); });
    }
    void exchange(const HttpRequest &request)
    {
        const int before = m_answers.size();
        post(request);
        QTRY_COMPARE_WITH_TIMEOUT(m_answers.size(), before + 1, 2000);
    }

private slots:
    void init()
    {
        OrdaTest::init();
        delete std::exchange(m_exchanges, new HttpExchanges({300ms, 1s, 50'000}, this));
        m_answers.clear();
    }

    void answersAreReadOrRefused_data()
    {
        readTable("http_answers.txt", {"url", "pin", "answer", "then", "outcome", "error"});
    }

    void answersAreReadOrRefused()
    {
        static const QStringList reasons{"",        "",        "",           "no HTTP", "certificate", "tls",
                                         "refused", "silence", "no address", "lost",    "limits"};
        Camera camera;
        camera.answer = valueOf("answer").toLatin1();
        camera.then = valueOf("then").toLatin1();
        HttpRequest request = camera.request();
        if (const QString url = valueOf("url"); !url.isEmpty())
            request.url = QUrl(QString(url).replace("%1", QString::number(camera.serverPort())));
        request.fingerprint = valueOf("pin");
        exchange(request);
        const HttpAnswer &read = m_answers.constFirst();
        const QByteArray content = read.status == 401 ? read.challenges.join('|') : read.body;
        const QString reason = reasons.at(int(read.reason)) + (read.hasLeft ? "" : " -");
        QCOMPARE(read.status ? QString("%1 %2").arg(read.status).arg(QString(content)).trimmed() : reason,
                 valueOf("outcome"));
        QCOMPARE(read.status ? QByteArray() : read.body, QByteArray());
        const QString error = valueOf("error");
        QVERIFY2(error.isEmpty() ? read.error.isEmpty() : read.error.contains(error), qPrintable(read.error));
        QVERIFY(camera.requests.size() <= 1); // never sent again
    }

    void connectionsAreKeptButNothingIsSentTwiceThatMustNot()
    {
        Camera camera;
        HttpRequest request = camera.request(), once = request;
        request.url.setUserInfo("not:shown");
        request.action = "urn:a";
        request.authorization = "Digest x";
        once.isRepeatable = false;
        exchange(request);
        exchange(request);
        QCOMPARE(camera.connections.size(), 1);
        QCOMPARE(camera.requests.constFirst(),
                 "POST /onvif/x?y=1 HTTP/1.1\r\nHost: 127.0.0.1:" + QByteArray::number(camera.serverPort())
                     + "\r\nUser-Agent: orda\r\nConnection: keep-alive\r\nAccept-Encoding: identity\r\nContent-Type: "
                       "application/soap+xml; charset=utf-8; action=\"urn:a\"\r\nContent-Length: 7\r\nAuthorization: "
                       "Digest x\r\n\r\n<body/>");

        camera.answer.clear();
        camera.then.clear(); // a kept connection is closed when the request has arrived, and so is the next one
        exchange(request);
        QCOMPARE(m_answers.constLast().reason, TroubleReason::ConnectionLost);
        QCOMPARE(camera.requests.size(), 4);
        camera.answer = good; // closed after each answer, without a word
        for (int i = 0; i < 5; ++i) {
            exchange(i % 2 ? once : request);
            QCOMPARE(m_answers.constLast().body, QByteArray("good"));
        }
        QCOMPARE(camera.requests.size(), 9);
        camera.then = "stays";
        exchange(request); // leaves a connection
        camera.answer.clear();
        camera.then.clear();
        exchange(once);
        QCOMPARE(m_answers.constLast().reason, TroubleReason::ConnectionLost);
        QCOMPARE(camera.requests.size(), 11);
        QCOMPARE(camera.connections.size(), 9); // not on the one that was left

        // What follows an answer is not taken for the next one.
        camera.answer = good + QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\nforged");
        camera.then = "stays";
        exchange(request);
        exchange(request);
        QCOMPARE(m_answers.constLast().body, QByteArray("good"));
    }

    void certificatesAreComparedBeforeAnythingLeaves_data()
    {
        readTable("certificates.txt", {"certificate", "pin", "trusted", "state"});
    }

    void certificatesAreComparedBeforeAnythingLeaves()
    {
        const bool isTaken = valueOf("state") == "taken", isOld = QTest::currentDataTag() == QByteArray("TLS 1.1");
        QFile file(QFINDTESTDATA("support/certificates") + '/' + valueOf("certificate") + ".pem");
        QVERIFY(file.open(QIODevice::ReadOnly));
        Camera camera;
        camera.tls = QSslConfiguration::defaultConfiguration();
        camera.tls.setProtocol(isOld ? QSsl::TlsV1_1 : QSsl::SecureProtocols);
        camera.tls.setPrivateKey(QSslKey(&file, QSsl::Ec));
        camera.tls.setLocalCertificateChain(QSslCertificate::fromPath(file.fileName()));
        camera.answer = "HTTP/1.1 200 to the end\r\n\r\n" + QByteArray(49'000, 'x');
        camera.then.clear();
        const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
        QSslConfiguration trusting = before;
        if (!valueOf("trusted").isEmpty())
            trusting.setCaCertificates({camera.tls.localCertificate()});
        QSslConfiguration::setDefaultConfiguration(trusting);
        HttpRequest request = camera.request(), other = request;
        const QByteArray own = camera.tls.localCertificate().digest(QCryptographicHash::Sha256).toHex(':');
        request.fingerprint = valueOf("pin") == "own" ? QString::fromLatin1(own) : valueOf("pin");
        other.fingerprint = QString(64, '0');
        exchange(request);
        QCOMPARE(m_answers.constFirst().body.size(), isTaken ? 49'000 : 0);
        if (isTaken) { // a connection that is kept does not serve who asks for another certificate
            camera.answer = good;
            camera.then = "stays";
            exchange(request);
            exchange(other);
        }
        QSslConfiguration::setDefaultConfiguration(before);
        QCOMPARE(m_answers.constLast().reason, isOld ? TroubleReason::Tls : TroubleReason::Certificate);
        QVERIFY(!m_answers.constLast().hasLeft);
        QCOMPARE(camera.requests.size(), isTaken ? 2 : 0);
    }

    void oneCameraTakesOnlyItsShare()
    {
        delete std::exchange(m_exchanges, new HttpExchanges({300ms, 10s, 50'000, 4, 6}, this));
        Camera silent, answering, flooding;
        silent.answer.clear();
        flooding.answer = "HTTP/1.1 200 OK\r\n";
        flooding.then = "A: b\r\n";
        for (int i = 0; i < 20; ++i)
            post(silent.request());
        for (int i = 0; i < 20; ++i) {
            post(flooding.request());
            post(answering.request());
        }
        QTRY_COMPARE(m_answers.size(), 40);
        QCOMPARE(std::count_if(m_answers.begin(), m_answers.end(), [](auto &each) { return each.body == "good"; }), 20);
        QCOMPARE(silent.requests.size(), 4);
        QVERIFY(answering.connections.size() <= 4);
    }

    void theLongestOfTooManyBytesIsGivenUp()
    {
        delete std::exchange(m_exchanges, new HttpExchanges({300ms, 10s, 50'000, 4, 256, 100'000}, this));
        Camera hoarding, answering;
        hoarding.answer = "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(40'000, 'x'); // and no end
        for (int i = 0; i < 4; ++i)
            post(hoarding.request());
        QTRY_COMPARE(m_answers.size(), 2);
        exchange(answering.request());
        QCOMPARE(m_answers.at(0).reason, TroubleReason::Limits);
        QCOMPARE(m_answers.at(1).reason, TroubleReason::Limits);
        QCOMPARE(m_answers.at(2).body, QByteArray("good"));
        HttpRequest small = answering.request();
        small.maxAnswerBytes = 3;
        exchange(small);
        QCOMPARE(m_answers.constLast().reason, TroubleReason::Limits);
    }

    void whoHasGoneIsToldNothing()
    {
        Camera silent;
        silent.answer.clear();
        auto *owner = new QObject(this);
        for (int i = 0; i < 6; ++i) // four go on, two wait
            m_exchanges->post(silent.request(), owner, [](auto &) { QFAIL("told"); });
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

    void accountsAreShownAsTheStandardHasIt_data() { readTable("digest_challenges.txt", {"challenges", "response"}); }

    void accountsAreShownAsTheStandardHasIt()
    {
        const QByteArray response = valueOf("response").toLatin1();
        QByteArray challenges = valueOf("challenges").toLatin1();
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
        const QString user = isOwn ? "J\u00e4ger" : "Mufasa", password = isOwn ? "p\u00e4\"\u00df" : "Circle of Life";
        const QByteArray uri = "/dir/index.html", own = "f2/wE4q74E6zIJEtWaHKaf5wv/H5QzzpXusqGemxURZJ";
        const QByteArray header = auth->authorization(user, password, uri, "GET", own);
        QVERIFY2(header.contains(", response=\"" + response + '"'), header);
        QVERIFY2(!isOwn || header.startsWith("Digest username=\"J\u00e4ger\", realm=\"a, \\\"b\\\\\", nonce=\"N1\""),
                 header);
        const QByteArray next = auth->authorization("a\"\\\r\nX: y", password, uri);
        QVERIFY2(next.contains("username=\"a\\\"\\\\X: y\"") && !next.contains('\n') && !next.contains(own), next);
        QCOMPARE(next.contains("qop=auth, nc=00000002, cnonce=\""), challenges.contains("qop"));
    }
};

ORDA_TEST_MAIN(OnvifHttpTest)
#include "onvif_http_test.moc"
