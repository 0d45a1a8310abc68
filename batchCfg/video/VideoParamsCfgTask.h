#pragma once

#include "run/ParamsCfgTask.h"

#include <QSize>

namespace orda_batchCfg {

/// Sets the video encoding of one device's streams.
class VideoParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    static const CfgFamily &family();

    /// @param values {"streams": [{"streamid", …}]}, each with keys of the family; a stream that the device does not
    /// have is left out
    VideoParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent);
};

/// @p device's "streams", each with all the members that @p values has for its "streamid".
QJsonArray mergeStreams(const QJsonObject &device, const QJsonObject &values);

/// Width and height in the order in which an operator chooses among them; a sub-stream cannot carry the largest.
QVector<QSize> videoResolutions(bool isSubStream);

} // namespace orda_batchCfg
