#include <audio/AudioParamsCfgTask.h>
#include <image/ImageParamsCfgTask.h>
#include <network/NetworkParamsCfgTask.h>
#include <onvif/OnvifParamsCfgTask.h>
#include <osd/OSDParamsCfgTask.h>
#include <platform/Platform9100ParamsCfgTask.h>
#include <platform/PlatformParamsCfgTask.h>
#include <video/VideoParamsCfgTask.h>

#include <orda_data/DataSignals.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/DeviceTransport.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QThread>

using namespace orda_batchCfg;

// What devices may answer: the first byte picks the family, the rest is a sequence of answers with null bytes between
// them; an empty one stands for the device's return. However they come, a task ends at most once and asks for nothing
// after that.

namespace {

int requests = 0;

class CountingTransport : public vms_sdk::DeviceTransport
{
public:
    void send(const QString &, const QString &, const QString &text) override
    {
        ++requests;
        if (!QJsonDocument::fromJson(text.toUtf8()).isObject())
            qFatal("a request that is no object");
    }
};

std::unique_ptr<ParamsCfgTask> makeTask(unsigned family)
{
    const QString dev = QStringLiteral("cam");
    const QJsonObject values =
        QJsonDocument::fromJson(R"({"bEnable": true, "encType": "g711a", "aoGain": 3, "flip": "off", "lightmode": "ir",
            "expertmode": "auto", "channelName": "n", "discoveryflag": 1, "bIPLock": true, "qbcloud_type": "public",
            "qbcloud_en": true, "bManualcfgonline": false, "streams": [{"streamid": 0, "width": 5}, {"streamid": 1}]})")
            .object();
    switch (family % 8) {
    case 0:
        return std::make_unique<AudioParamsCfgTask>(dev, values, 3, nullptr);
    case 1:
        return std::make_unique<ImageParamsCfgTask>(dev, values, 7, nullptr);
    case 2:
        return std::make_unique<NetworkParamsCfgTask>(dev, values, 3, nullptr);
    case 3:
        return std::make_unique<OnvifParamsCfgTask>(dev, values, nullptr);
    case 4:
        return std::make_unique<OSDParamsCfgTask>(dev, values, nullptr);
    case 5:
        return std::make_unique<PlatformParamsCfgTask>(dev, values, nullptr);
    case 6:
        return std::make_unique<Platform9100ParamsCfgTask>(dev, values, nullptr);
    default:
        return std::make_unique<VideoParamsCfgTask>(dev, values, nullptr);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    vms_sdk::ClientSdk::instance().setTransport(std::make_unique<CountingTransport>());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    if (size < 2)
        return 0;
    requests = 0;
    const auto task = makeTask(data[0]);
    int results = 0;
    int requestsAtEnd = 0;
    QObject::connect(task.get(), &ParamsCfgTask::signalCfgResult, [&](const QString &, const QString &msg, int code) {
        ++results;
        requestsAtEnd = requests;
        if (msg.isEmpty() || (code == 0) != (msg == QLatin1String("success")))
            qFatal("result %d \"%s\"", code, qPrintable(msg));
    });
    const QList<QByteArray> answers =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data) + 1, int(size) - 1).split('\0');
    for (const QByteArray &answer : answers) {
        const int before = requests;
        if (answer.isEmpty())
            emit orda_data::DataSignals::instance().signalDevStatusChanged(task->devId(), vms_sdk::DevOnline);
        else
            emit vms_sdk::ClientSignals::instance().signalCommonRes(task->requestId(), QString::fromUtf8(answer));
        // A good answer starts the pause before the next request.
        for (int pause = 0; pause < 3 && results == 0 && requests == before && answer.startsWith("{\"m"); ++pause) {
            QThread::msleep(4);
            QCoreApplication::processEvents();
        }
    }
    QCoreApplication::processEvents();
    if (results > 1 || (results == 1 && requests != requestsAtEnd))
        qFatal("%d results, %d requests after the result", results, requests - requestsAtEnd);
    return 0;
}
