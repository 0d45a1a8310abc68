#pragma once

#include "run/ParamsCfgTask.h"

namespace orda_batchCfg {

/// Sets the audio input and output of one device.
class AudioParamsCfgTask : public ParamsCfgTask
{
    Q_OBJECT

public:
    /// What a task may do, one exchange each.
    enum Flag
    {
        AudioIn = 1,
        AudioOut = 2
    };

    static const CfgFamily &family();

    /// @param values "bEnable", "encType", "sampleRate", "bitWidth", "aiGain", "aoGain"; each goes to every object that
    /// has it
    /// @param flags the Flags of the exchanges to run
    AudioParamsCfgTask(const QString &devId, const QJsonObject &values, int flags, QObject *parent);
};

} // namespace orda_batchCfg
