#include <vms_client_sdk/OpenFiles.h>
#include <vms_client_sdk/onvif/DigestAuth.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTextStream>
#include <QTimer>

#include <ctime>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

// The least that a run over ONVIF cameras can be: posts texts that are there already, phase by phase, the posts of a
// phase side by side; prints what that took, and ends. It builds no XML and reads none. Connections are open and
// nonces known beforehand.
//   bare_post_client TEXTS
// TEXTS as onvif_part.py writes it: cameras, each with "url", "user", "password" and "phases".

namespace {

constexpr std::size_t maxAtOnce = 256; // as the product

/// Posts to cameras, so many at a time.
class Posts
{
public:
    using Done = std::function<void(QNetworkReply *reply)>;

    void add(const std::function<QNetworkRequest()> &request, const QByteArray &body, const Done &done)
    {
        m_waiting.push_back({request, body, done});
        startNext();
    }

private:
    struct Post
    {
        std::function<QNetworkRequest()> request;
        QByteArray body;
        Done done;
    };

    void startNext()
    {
        for (; m_running < maxAtOnce && !m_waiting.empty(); ++m_running) {
            const Post post = m_waiting.front();
            m_waiting.pop_front();
            QNetworkReply *reply = m_manager.post(post.request(), post.body);
            QObject::connect(reply, &QNetworkReply::finished, &m_manager, [this, reply, done = post.done] {
                --m_running;
                reply->deleteLater();
                reply->readAll();
                done(reply);
                startNext();
            });
        }
    }

    QNetworkAccessManager m_manager;
    std::deque<Post> m_waiting;
    std::size_t m_running = 0;
};

/// One camera: opens its connections, then posts.
class BareCamera : public QObject
{
public:
    BareCamera(const QJsonObject &camera, Posts &posts, const std::function<void()> &done)
        : m_url(camera.value(QLatin1String("url")).toString())
        , m_user(camera.value(QLatin1String("user")).toString())
        , m_password(camera.value(QLatin1String("password")).toString())
        , m_phases(camera.value(QLatin1String("phases")).toArray())
        , m_posts(posts)
        , m_done(done)
    {
        for (const QJsonValue &phase : qAsConst(m_phases))
            m_width = qMax(m_width, phase.toObject().value(QLatin1String("posts")).toArray().size());
    }

    /// A post without the account, for a nonce; then as many with it as a phase has side by side.
    void warmUp()
    {
        const QJsonObject first = m_phases.at(0).toObject().value(QLatin1String("posts")).toArray().at(0).toObject();
        post(first, false, [this, first](QNetworkReply *reply) {
            m_digest = vms_sdk::DigestAuth::fromChallenges({reply->rawHeader("WWW-Authenticate")});
            m_running = m_width;
            for (int i = 0; i < m_width; ++i)
                post(first, false, [this](QNetworkReply *) {
                    if (--m_running == 0)
                        m_done();
                });
        });
    }

    void postNextPhase()
    {
        if (m_phase == m_phases.size())
            return m_done();
        const QJsonObject phase = m_phases.at(m_phase++).toObject();
        QTimer::singleShot(phase.value(QLatin1String("pauseMs")).toInt(), Qt::PreciseTimer, this, [this, phase] {
            const QJsonArray posts = phase.value(QLatin1String("posts")).toArray();
            m_running = posts.size();
            for (const QJsonValue &each : posts)
                post(each.toObject(), true, [this](QNetworkReply *reply) {
                    if (reply->error() != QNetworkReply::NoError)
                        qFatal("%s: %s", qPrintable(reply->url().toString()), qPrintable(reply->errorString()));
                    if (--m_running == 0)
                        postNextPhase();
                });
        });
    }

private:
    /// @param isCounted of the run: only then it says its action
    void post(const QJsonObject &text, bool isCounted, const Posts::Done &done)
    {
        const auto request = [this, text, isCounted] {
            const QByteArray path = text.value(QLatin1String("path")).toString().toLatin1();
            QNetworkRequest made(m_url.resolved(QUrl::fromEncoded(path)));
            const QByteArray action = text.value(QLatin1String("action")).toString().toLatin1();
            made.setRawHeader("Content-Type", "application/soap+xml; charset=utf-8"
                                                  + (isCounted ? "; action=\"" + action + '"' : QByteArray()));
            if (m_digest)
                made.setRawHeader("Authorization", m_digest->authorization(m_user, m_password, path));
            return made;
        };
        m_posts.add(request, text.value(QLatin1String("body")).toString().toUtf8(), done);
    }

    QUrl m_url;
    QString m_user, m_password;
    QJsonArray m_phases;
    Posts &m_posts;
    std::function<void()> m_done;
    std::optional<vms_sdk::DigestAuth> m_digest;
    int m_width = 0; ///< the most posts that a phase has
    int m_phase = 0;
    int m_running = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_NO_GLIB", "1"); // as the programs do
    const QCoreApplication app(argc, argv);
    vms_sdk::raiseOpenFileLimit();
    QFile file(QCoreApplication::arguments().value(1));
    file.open(QIODevice::ReadOnly);
    const QJsonArray texts = QJsonDocument::fromJson(file.readAll()).array();
    if (texts.isEmpty())
        qFatal("bare_post_client TEXTS");

    Posts posts;
    QElapsedTimer clock;
    std::clock_t cpu = 0;
    std::vector<std::unique_ptr<BareCamera>> cameras;
    std::size_t ready = 0;
    const auto onDone = [&] {
        if (++ready == cameras.size())
            QTimer::singleShot(200, QCoreApplication::instance(), [&] {
                cpu = std::clock();
                clock.start();
                for (const auto &camera : cameras)
                    camera->postNextPhase();
            });
        if (ready < 2 * cameras.size())
            return;
        const QJsonObject figures{{QStringLiteral("runMs"), double(clock.nsecsElapsed()) / 1e6},
                                  {QStringLiteral("cpuMs"), double(std::clock() - cpu) * 1e3 / CLOCKS_PER_SEC}};
        QTextStream(stdout) << QJsonDocument(figures).toJson(QJsonDocument::Compact) << Qt::endl;
        std::_Exit(0); // closing thousands of sockets is not measured
    };
    for (const QJsonValue &camera : texts)
        cameras.push_back(std::make_unique<BareCamera>(camera.toObject(), posts, onDone));
    for (const auto &camera : cameras)
        camera->warmUp();
    return QCoreApplication::exec();
}
