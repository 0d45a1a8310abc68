#include "video/VideoParamsCfgTask.h"

#include <QJsonArray>

namespace orda_batchCfg {

namespace {

const QLatin1String streamsKey("streams");

QJsonObject streamOf(const QJsonArray &streams, int streamId)
{
    for (const QJsonValue &value : streams) {
        QJsonObject stream = value.toObject();
        if (stream.value(QLatin1String("streamid")).toInt() == streamId)
            return stream;
    }
    return {};
}

QJsonObject writeParam(const QJsonObject &values, const QJsonObject &device)
{
    return {{streamsKey, mergeStreams(device, values)}};
}

/// The lengths of one side that the resolutions have.
QVector<CfgChoice> sides(int (QSize::*side)() const)
{
    const QVector<QSize> resolutions = videoResolutions(false);
    QVector<CfgChoice> choices;
    for (const QSize &resolution : resolutions) {
        const int length = (resolution.*side)();
        const auto isLength = [length](const CfgChoice &choice) { return choice.value == QJsonValue(length); };
        if (std::none_of(choices.cbegin(), choices.cend(), isLength))
            choices.append(length);
    }
    return choices;
}

} // namespace

QJsonArray mergeStreams(const QJsonObject &device, const QJsonObject &values)
{
    const QJsonArray chosen = values.value(streamsKey).toArray();
    QJsonArray streams = device.value(streamsKey).toArray();
    for (int i = 0; i < streams.size(); ++i) {
        QJsonObject stream = streams.at(i).toObject();
        const QJsonObject changes = streamOf(chosen, stream.value(QLatin1String("streamid")).toInt());
        for (auto it = changes.begin(); it != changes.end(); ++it)
            stream.insert(it.key(), it.value());
        if (!changes.isEmpty())
            streams.replace(i, stream);
    }
    return streams;
}

QVector<QSize> videoResolutions(bool isSubStream)
{
    const QVector<QSize> all{{2560, 1440}, {2304, 1296}, {1920, 1080}, {1280, 960}, {1280, 720}, {960, 540}, {768, 432},
                             {720, 576},   {720, 480},   {704, 576},   {640, 480},  {352, 288},  {368, 208}};
    constexpr int mainStreamOnly = 3;
    return isSubStream ? all.mid(mainStreamOnly) : all;
}

const CfgFamily &VideoParamsCfgTask::family()
{
    static const CfgFamily video{
        QStringLiteral("video"),
        &staticMetaObject,
        QT_TR_NOOP("Video Parameters Configuration Result"),
        QT_TR_NOOP("set stream parameters time out"),
        {
            CfgExchange("stream_get_params", "stream_set_params", writeParam)
                .listedIn("streams", "streamid", "stream")
                // All channels at once: -1, where the other families ask for the first one.
                .reading([](const QJsonObject &) {
                    return QJsonObject{{QStringLiteral("channelid"), -1}};
                })
                .failing(QT_TR_NOOP("Failed to get stream parameters(%1)"),
                         QT_TR_NOOP("Failed to set stream parameters(%1)")),
        },
        {
            CfgKey::choice(
                "smartencode",
                {{"open", QT_TR_NOOP("Open")}, {"close", QT_TR_NOOP("Close")}, {"autoopen", QT_TR_NOOP("Auto")}}),
            CfgKey::choice("venctype", {{"h264", QT_TR_NOOP("H264")}, {"h265", QT_TR_NOOP("H265")}}),
            CfgKey::choice("width", sides(&QSize::width)).needing({QStringLiteral("height")}),
            CfgKey::choice("height", sides(&QSize::height)).needing({QStringLiteral("width")}),
            CfgKey::choice("frameRate", {10, 15, 20, 21, 22, 23, 24, 25, 30}, 0, 7),
            CfgKey::choice("rcMode", {{"vbr", QT_TR_NOOP("Variable Bitrate")}, {"cbr", QT_TR_NOOP("Fixed Bitrate")}}),
            CfgKey::choice("quality",
                           {{100, QT_TR_NOOP("Best Image Quality")},
                            {80, QT_TR_NOOP("Image Quality Priority")},
                            {60, QT_TR_NOOP("Balance Mode")},
                            {40, QT_TR_NOOP("Storage Priority")},
                            {20, QT_TR_NOOP("Optimal Storage")}},
                           0, 2),
            CfgKey::number("bitRate", 10, 10240, 1024), // kbps
        },
        newTask<VideoParamsCfgTask>};
    return video;
}

VideoParamsCfgTask::VideoParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(family(), devId, values, 0, parent)
{
}

} // namespace orda_batchCfg
