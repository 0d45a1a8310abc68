#include "families/Families.h"

#include "audio/AudioParamsCfgTask.h"
#include "image/ImageParamsCfgTask.h"
#include "network/NetworkParamsCfgTask.h"
#include "onvif/OnvifParamsCfgTask.h"
#include "osd/OSDParamsCfgTask.h"
#include "platform/Platform9100ParamsCfgTask.h"
#include "platform/PlatformParamsCfgTask.h"
#include "video/VideoParamsCfgTask.h"

namespace orda_batchCfg {

const CfgFamily *Families::find(const QString &name)
{
    for (const FamilyEntry &entry : all())
        if (entry.family.name == name)
            return &entry.family;
    return nullptr;
}

const QVector<FamilyEntry> &Families::all()
{
    static constexpr NavigationBar audioVideo{"audio_video_param", QT_TR_NOOP("Audio-Video Parameters")};
    static constexpr NavigationBar platform{"platform_param", QT_TR_NOOP("Platform Parameters")};
    static const QVector<FamilyEntry> entries{
        {OnvifParamsCfgTask::family(), nullptr, nullptr, nullptr, "orda_batchCfg__OnvifParamsCfgPage"},
        {AudioParamsCfgTask::family(), "audio_param", QT_TR_NOOP("Audio Parameters"), &audioVideo,
         "audioParametersPage"},
        {VideoParamsCfgTask::family(), "video_param", QT_TR_NOOP("Video Parameters"), &audioVideo,
         "videoParametersPage"},
        {ImageParamsCfgTask::family(), "image_param", QT_TR_NOOP("Image Parameters"), nullptr, "imageParametersPage"},
        {PlatformParamsCfgTask::family(), "cloud_service_param", QT_TR_NOOP("Cloud Service Parameters"), &platform,
         "platformParametersPage"},
        {Platform9100ParamsCfgTask::family(), "9100_param", QT_TR_NOOP("Platform 9100 Parameters"), &platform,
         "platform9100ParametersPage"},
        {NetworkParamsCfgTask::family(), "network_param", QT_TR_NOOP("Network Parameters"), nullptr,
         "networkParamsCfgPage"},
        {OSDParamsCfgTask::family(), "osd_param", QT_TR_NOOP("OSD Parameters"), nullptr, "osdParamsCfgPage"},
    };
    return entries;
}

} // namespace orda_batchCfg
