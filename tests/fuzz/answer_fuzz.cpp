#include <families/Families.h>
#include <run/ParamsCfgTask.h>

#include <orda_data/DataSignals.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/DeviceTransport.h>
#include <vms_client_sdk/websocket/AnswerCheck.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <chrono>
#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

using namespace orda_batchCfg;

// What devices may answer, as the transport hands it on: empty where it is beyond a limit. The first byte is the
// family's digit in the list of all, its top bit whether the task is deleted while a step may be due; the rest is a
// sequence of answers with null bytes between them: an empty one stands for the device's return, "t" for the waiting
// time going by, and one that begins with a space is followed by the next at once. However they come, a task ends at
// most once and asks for nothing after that, and a task that got no answer knows nothing of it.

namespace {

std::chrono::nanoseconds timePassed{0};

} // namespace

// Qt's timers go by this clock, which is put forward instead of waited for. libFuzzer goes by another.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int clock_gettime(clockid_t clock, timespec *time)
{
    const long result = syscall(SYS_clock_gettime, clock, time);
    if (clock == CLOCK_MONOTONIC && result == 0) {
        const std::chrono::nanoseconds now =
            std::chrono::seconds(time->tv_sec) + std::chrono::nanoseconds(time->tv_nsec) + timePassed;
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now);
        time->tv_sec = seconds.count();
        time->tv_nsec = (now - seconds).count();
    }
    return int(result);
}

namespace {

class CountingTransport : public vms_sdk::DeviceTransport
{
public:
    void send(const QString &, const QString &, const QString &text) override
    {
        ++requests;
        if (!QJsonDocument::fromJson(text.toUtf8()).isObject())
            qFatal("a request that is no object");
    }

    int requests = 0;
};

/// Lets everything happen that is due after @p time.
void pass(std::chrono::milliseconds time)
{
    QCoreApplication::processEvents(); // what was said before
    timePassed += time;
    QCoreApplication::processEvents();
}

QJsonValue someValue(const CfgKey &key)
{
    if (!key.choices.isEmpty())
        return key.choices.constLast().value;
    return key.type == CfgKey::Text ? QJsonValue(QStringLiteral("n")) : QJsonValue(key.initial);
}

std::unique_ptr<ParamsCfgTask> makeTask(int number)
{
    const CfgFamily &family = Families::all().at(number).family;
    QJsonObject values;
    int flags = 0;
    for (const CfgKey &key : family.keys) {
        values.insert(key.name, someValue(key));
        flags |= key.flag;
    }
    QJsonObject stream = values;
    stream.insert(QStringLiteral("streamid"), 0);
    values.insert(QStringLiteral("streams"), QJsonArray{stream, QJsonObject{{QStringLiteral("streamid"), 1}}});
    return std::unique_ptr<ParamsCfgTask>(family.createTask(QStringLiteral("cam"), values, flags, nullptr));
}

/// A task and what came of it.
struct Watched
{
    Watched(int family, const CountingTransport &transport)
        : task(makeTask(family))
    {
        QObject::connect(task.get(), &ParamsCfgTask::signalCfgResult, task.get(),
                         [this, &transport](const QString &devId, const QString &msg, int code) {
                             ++results;
                             requestsAtEnd = transport.requests;
                             timedOut = code == ParamsCfgTask::TimedOut;
                             if (devId != task->devId() || msg.isEmpty() || msg.contains(QLatin1String("%1"))
                                 || (code == 0) != (msg == QLatin1String("success")))
                                 qFatal("result %d \"%s\"", code, qPrintable(msg));
                         });
    }

    std::unique_ptr<ParamsCfgTask> task;
    int results = 0;
    int requestsAtEnd = 0;
    bool timedOut = false;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_NO_GLIB", "1"); // Qt's own event dispatcher, as the programs use it
    static QCoreApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    using namespace std::chrono_literals;
    const int family = size < 2 ? -1 : (data[0] & 0x7f) - '0';
    if (family < 0 || family >= Families::all().size())
        return 0;
    auto owned = std::make_unique<CountingTransport>();
    CountingTransport &transport = *owned;
    vms_sdk::ClientSdk::instance().setTransport(std::move(owned));
    Watched bystander(family, transport); // of the same device
    Watched watched(family, transport);
    const QString requestId = watched.task->requestId();

    bool waited = false;
    const QList<QByteArray> answers =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data) + 1, int(size) - 1).split('\0');
    for (const QByteArray &answer : answers) {
        if (answer.isEmpty())
            emit orda_data::DataSignals::instance().signalDevStatusChanged(watched.task->devId(), vms_sdk::DevOnline);
        else if (answer != "t")
            emit transport.answered(requestId,
                                    vms_sdk::checkAnswer(answer).fault ? QString() : QString::fromUtf8(answer));
        waited = waited || answer == "t";
        if (!answer.startsWith(' '))
            pass(answer == "t" ? 20s : 11ms);
    }
    if ((data[0] & 0x80U) != 0) {
        QCoreApplication::processEvents();
        watched.requestsAtEnd = transport.requests;
        watched.task.reset();
    }
    pass(11ms);
    const bool ended = watched.results > 0 || !watched.task;
    if (watched.results > 1 || (ended && transport.requests != watched.requestsAtEnd))
        qFatal("%d results, %d requests after the end", watched.results, transport.requests - watched.requestsAtEnd);
    if (bystander.results != int(waited) || bystander.timedOut != waited)
        qFatal("another task's answers reach a task: %d results", bystander.results);
    if (waited && watched.task && watched.results != 1)
        qFatal("no result after the waiting time");
    return 0;
}
