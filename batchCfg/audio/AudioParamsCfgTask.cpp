#include "audio/AudioParamsCfgTask.h"

namespace orda_batchCfg {

const CfgFamily &AudioParamsCfgTask::family()
{
    static const CfgFamily audio{
        QStringLiteral("audio"),
        &staticMetaObject,
        QT_TR_NOOP("Audio Parameters Configuration Result"),
        QT_TR_NOOP("set audio parameters time out"),
        {
            CfgExchange("ai_get_param", "ai_set_param", mergedUnder("audioAttr"))
                .reading(channelZero())
                .failing(QT_TR_NOOP("Failed to get audio in parameters(%1)"),
                         QT_TR_NOOP("Failed to set audio in parameters(%1)"))
                .onlyWith(AudioIn),
            CfgExchange("ao_get_param", "ao_set_param", mergedUnder("audioAttr"))
                .reading(channelZero())
                .failing(QT_TR_NOOP("Failed to get audio out parameters(%1)"),
                         QT_TR_NOOP("Failed to set audio out parameters(%1)"))
                .onlyWith(AudioOut),
        },
        {
            CfgKey::switchOf("bEnable", AudioIn),
            CfgKey::choice("encType", {{"g711u", QT_TR_NOOP("G711U")}, {"g711a", QT_TR_NOOP("G711A")}}, AudioIn),
            CfgKey::number("aiGain", 0, 100, 50, AudioIn),
            CfgKey::number("aoGain", 0, 100, 50, AudioOut),
            CfgKey::choice("sampleRate", {{8000, "8000"}}, AudioIn),
            CfgKey::choice("bitWidth", {{16, QT_TR_NOOP("16bit")}}, AudioIn),
        },
        newTaskWithFlags<AudioParamsCfgTask>};
    return audio;
}

AudioParamsCfgTask::AudioParamsCfgTask(const QString &devId, const QJsonObject &values, int flags, QObject *parent)
    : ParamsCfgTask(family(), devId, values, flags, parent)
{
}

} // namespace orda_batchCfg
