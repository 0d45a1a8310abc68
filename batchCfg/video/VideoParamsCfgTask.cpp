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

// All channels at once: -1, where the other families ask for the first one.
VideoParamsCfgTask::VideoParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(devId, values,
                    {{QStringLiteral("stream_get_params"), QStringLiteral("stream_set_params"),
                      QJsonObject{{QStringLiteral("channelid"), -1}}, writeParam,
                      tr("Failed to get stream parameters(%1)"), tr("Failed to set stream parameters(%1)")}},
                    tr("set stream parameters time out"), parent)
{
    start();
}

} // namespace orda_batchCfg
