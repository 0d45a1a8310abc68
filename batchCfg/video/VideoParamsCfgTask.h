#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets the video encoding of one device's streams.
class VideoParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    /// @param values {"streams": [{"streamid", …}]}; a stream that the device does not have is left out
    VideoParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent);
};

/// @p device's "streams", each with all the members that @p values has for its "streamid".
QJsonArray mergeStreams(const QJsonObject &device, const QJsonObject &values);

} // namespace orda_batchCfg
