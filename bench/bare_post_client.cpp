#include <vms_client_sdk/OpenFiles.h>
#include <vms_client_sdk/onvif/DigestAuth.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QTextStream>
#include <QTimer>
#include <QUrl>

#include <ctime>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

// The least that a run over ONVIF cameras can be: posts texts that are there already, phase by phase, the posts of a
// phase side by side; prints what that took, and ends. It builds no XML and reads none. Connections are open and nonces
// known beforehand. QNetworkAccessManager would be no floor: header and body leave it in two writes, and each post
// waits 40 ms for an acknowledgement.
//   bare_post_client TEXTS
// TEXTS as onvif_part.py writes it: cameras, each with "url", "user", "password", "width" and "phases".

namespace {

constexpr int maxAtOnce = 256; // posts in all, as the product

/// One connection; it takes answers that tell their length.
class Connection : public QObject
{
public:
    using Done = std::function<void(const QByteArray &answer)>;

    Connection(const QUrl &url, QObject *parent)
        : QObject(parent)
    {
        connect(&m_socket, &QTcpSocket::readyRead, this, &Connection::read);
        connect(&m_socket, &QTcpSocket::disconnected, this, [] { qFatal("a camera has gone"); });
        m_socket.connectToHost(url.host(), quint16(url.port()));
    }

    void post(const QByteArray &message, const Done &done)
    {
        m_done = done;
        m_socket.write(message);
    }

private:
    void read()
    {
        m_answer += m_socket.readAll();
        const int head = m_answer.indexOf("\r\n\r\n");
        const int length = m_answer.indexOf("Content-Length: ") + 16;
        if (head < 0
            || m_answer.size() < head + 4 + m_answer.mid(length, m_answer.indexOf('\r', length) - length).toInt())
            return;
        const Done done = std::exchange(m_done, {}); // it may post
        done(std::exchange(m_answer, {}));
    }

    QTcpSocket m_socket;
    QByteArray m_answer;
    Done m_done;
};

using Posts = std::deque<std::function<void()>>;

/// Starts those that have waited longest. @param ended so many places are free again
void startNext(Posts &waiting, int ended)
{
    static int running = 0;
    running -= ended;
    for (; running < maxAtOnce && !waiting.empty(); ++running) {
        const std::function<void()> post = std::move(waiting.front());
        waiting.pop_front();
        post();
    }
}

/// One camera: opens its connections, then posts.
class Camera : public QObject
{
public:
    /// @param waiting posts of all cameras that wait for a place @param done called when it is ready, and at the end
    Camera(const QJsonObject &record, Posts &waiting, const std::function<void()> &done)
        : m_record(record)
        , m_phases(record.value(QLatin1String("phases")).toArray())
        , m_waiting(waiting)
        , m_done(done)
    {
        const QUrl url(record.value(QLatin1String("url")).toString());
        for (int i = 0; i < record.value(QLatin1String("width")).toInt(); ++i)
            m_idle.push_back(new Connection(url, this));
        const QJsonObject first = m_phases.at(0).toArray().at(0).toObject();
        m_idle.front()->post(message(first), [this](const QByteArray &refusal) {
            const int challenge = refusal.indexOf("WWW-Authenticate: ") + 18;
            const QByteArray line = refusal.mid(challenge, refusal.indexOf('\r', challenge) - challenge);
            m_digest = vms_sdk::DigestAuth::fromChallenges({line});
            m_done();
        });
    }

    void addNextPhase()
    {
        if (m_phase == m_phases.size())
            return m_done();
        const QJsonArray posts = m_phases.at(m_phase++).toArray();
        m_unanswered = posts.size();
        for (const QJsonValue &each : posts)
            m_waiting.push_back([this, each] { post(each.toObject()); });
    }

private:
    static QByteArray member(const QJsonObject &object, const char *name)
    {
        return object.value(QLatin1String(name)).toString().toUtf8();
    }

    QByteArray message(const QJsonObject &text)
    {
        const QByteArray body = member(text, "body");
        QByteArray head = "POST " + member(text, "path") + " HTTP/1.1\r\nHost: camera\r\nContent-Length: "
                        + QByteArray::number(body.size()) + "\r\nContent-Type: application/soap+xml; charset=utf-8";
        if (m_digest) // the first post is none of the run: it says no action either
            head += "; action=\"" + member(text, "action") + "\"\r\nAuthorization: "
                  + m_digest->authorization(QString::fromUtf8(member(m_record, "user")),
                                            QString::fromUtf8(member(m_record, "password")), member(text, "path"));
        return head + "\r\n\r\n" + body;
    }

    void post(const QJsonObject &text)
    {
        Connection *connection = m_idle.back();
        m_idle.pop_back();
        connection->post(message(text), [this, connection](const QByteArray &answer) {
            if (!answer.startsWith("HTTP/1.1 200"))
                qFatal("%s", answer.constData());
            m_idle.push_back(connection);
            if (--m_unanswered == 0)
                addNextPhase();
            startNext(m_waiting, 1);
        });
    }

    QJsonObject m_record;
    QJsonArray m_phases;
    Posts &m_waiting;
    std::function<void()> m_done;
    std::vector<Connection *> m_idle; ///< children
    std::optional<vms_sdk::DigestAuth> m_digest;
    int m_phase = 0;
    int m_unanswered = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_NO_GLIB", "1"); // as the programs do
    const QCoreApplication app(argc, argv);
    vms_sdk::raiseOpenFileLimit();
    QFile file(QCoreApplication::arguments().value(1));
    const QJsonArray records =
        file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).array() : QJsonArray();
    if (records.isEmpty())
        qFatal("bare_post_client TEXTS");
    Posts waiting;
    std::vector<std::unique_ptr<Camera>> cameras;
    QElapsedTimer clock;
    std::clock_t cpu = 0;
    int done = 0;
    const auto begin = [&] {
        cpu = std::clock();
        clock.start();
        for (const auto &camera : cameras)
            camera->addNextPhase();
        startNext(waiting, 0);
    };
    const auto onDone = [&] {
        if (++done == records.size())
            QTimer::singleShot(200, QCoreApplication::instance(), begin);
        if (done < 2 * records.size())
            return;
        const QJsonObject figures{{QStringLiteral("runMs"), double(clock.nsecsElapsed()) / 1e6},
                                  {QStringLiteral("cpuMs"), double(std::clock() - cpu) * 1e3 / CLOCKS_PER_SEC}};
        QTextStream(stdout) << QJsonDocument(figures).toJson(QJsonDocument::Compact) << Qt::endl;
        std::_Exit(0); // closing thousands of sockets is not measured
    };
    for (const QJsonValue &record : records)
        cameras.push_back(std::make_unique<Camera>(record.toObject(), waiting, onDone));
    return QCoreApplication::exec();
}
