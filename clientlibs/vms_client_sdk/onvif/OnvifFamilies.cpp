#include <vms_client_sdk/onvif/OnvifFamilies.h>

#include <vms_client_sdk/onvif/ConfigurationFamily.h>
#include <vms_client_sdk/onvif/ScreenTexts.h>
#include <vms_client_sdk/onvif/VideoStreams.h>

#include <algorithm>
#include <iterator>

namespace vms_sdk {

namespace {

using Form = KeyForm;

const KeyWords audioWords[] = {{"PCMU", "g711u"}, {"PCMA", "g711a"}, {"G711", "g711u"}, {nullptr, nullptr}};
// With the filter always in, infrared light does not reach the sensor.
const KeyWords filterWords[] = {{"AUTO", "ir"}, {"ON", "off"}, {"OFF", "night"}, {nullptr, nullptr}};
const KeyWords discoveryWords[] = {{"Discoverable", "1"}, {"NonDiscoverable", "0"}, {nullptr, nullptr}};

// Where two places or limits are named, the first is that of Media2, the second that of Media. The encoding comes
// first: the limits of the others depend on it.
const KeyRow videoKeys[] = {
    {"venctype", "Encoding", "", nullptr, Form::Encoding},
    {"width", "Resolution/Width"},
    {"height", "Resolution/Height"},
    {"frameRate", "RateControl/FrameRateLimit", "@FrameRatesSupported|FrameRateRange"},
    {"bitRate", "RateControl/BitrateLimit", "BitrateRange"}, // kbit/s on both sides
    {"rcMode", "RateControl/@ConstantBitRate", "@ConstantBitRateSupported", nullptr, Form::ConstantRate},
    {"quality", "Quality", "QualityRange", nullptr, Form::Share},
    {"iFrameInterval", "@GovLength|$/GovLength", "@GovLengthRange|GovLengthRange", nullptr, Form::Number, true},
    {"profile", "@Profile|$/H264Profile", "@ProfilesSupported|H264ProfilesSupported", nullptr, Form::Word, true},
    {nullptr, nullptr},
};

const KeyRow audioInKeys[] = {
    {"encType", "Encoding", "", audioWords, Form::Encoding},
    {"sampleRate", "SampleRate", "SampleRateList/Items", nullptr, Form::KiloHertz},
    {nullptr, nullptr},
};

const KeyRow audioOutKeys[] = {{"aoGain", "OutputLevel", "OutputLevelRange", nullptr, Form::WholeShare},
                               {nullptr, nullptr}};
const KeyRow adjustKeys[] = {{"flip", "Extension/Rotate", "", nullptr, Form::Rotation}, {nullptr, nullptr}};
const KeyRow dayNightKeys[] = {{"lightmode", "IrCutFilter", "IrCutFilterModes", filterWords, Form::Word},
                               {nullptr, nullptr}};
const KeyRow discoveryKeys[] = {{"discoveryflag", "", "", discoveryWords, Form::Flag}, {nullptr, nullptr}};

const FamilyTable families[] = {
    {"stream_get_params", "stream_set_params", "", "streams", FamilyReach::Configurations, "VideoEncoder",
     "GetVideoEncoderConfigurations", "Configurations", "GetVideoEncoderConfigurationOptions", "Options",
     "SetVideoEncoderConfiguration", "Configuration", videoKeys},
    {"ai_get_param", "ai_set_param", "audioAttr", "", FamilyReach::Configurations, "AudioEncoder",
     "GetAudioEncoderConfigurations", "Configurations", "GetAudioEncoderConfigurationOptions", "Options",
     "SetAudioEncoderConfiguration", "Configuration", audioInKeys},
    {"ao_get_param", "ao_set_param", "audioAttr", "", FamilyReach::Configurations, "", "GetAudioOutputConfigurations",
     "Configurations", "GetAudioOutputConfigurationOptions", "Options", "SetAudioOutputConfiguration", "Configuration",
     audioOutKeys},
    {"image_get_adjust_param", "image_set_adjust_param", "attr", "", FamilyReach::Configurations, "VideoSource",
     "GetVideoSourceConfigurations", "Configurations", "GetVideoSourceConfigurationOptions", "Options",
     "SetVideoSourceConfiguration", "Configuration", adjustKeys},
    {"image_get_dncut_param", "image_set_dncut_param", "attr", "", FamilyReach::VideoSource, "VideoSource",
     "GetImagingSettings", "ImagingSettings", "GetOptions", "ImagingOptions", "SetImagingSettings", "ImagingSettings",
     dayNightKeys},
    {"image_get_expertsetting_param", "image_set_expertsetting_param", "attr", "", FamilyReach::Nothing, "", "", "", "",
     "", "", "", nullptr},
    {"chnosd_get_param", "chnosd_set_param", "attr", "", FamilyReach::ScreenTexts, "", "", "", "", "", "", "", nullptr},
    {"netservice_onvif_get_discoveryinfo", "netservice_onvif_set_discoveryinfo", "", "", FamilyReach::Device, "",
     "GetDiscoveryMode", "DiscoveryMode", "", "", "SetDiscoveryMode", "DiscoveryMode", discoveryKeys},
};

const FamilyTable noKeys{"", "", "", "", FamilyReach::Nothing, "", "", "", "", "", "", "", nullptr};

/// The media service to be used; none when the camera has none.
std::optional<OnvifService> mediaOf(const CameraCalls &calls)
{
    for (const OnvifService service : {OnvifService::Media2, OnvifService::Media})
        if (calls.hasService(service))
            return service;
    return std::nullopt;
}

} // namespace

const FamilyTable *familyOf(const QString &method)
{
    const auto *found = std::find_if(std::begin(families), std::end(families), [&method](const FamilyTable &each) {
        return method == QLatin1String(each.readMethod) || method == QLatin1String(each.writeMethod);
    });
    return found == std::end(families) ? nullptr : found;
}

std::unique_ptr<OnvifFamily> makeFamily(const FamilyTable &table, const CameraCalls &calls)
{
    const std::optional<OnvifService> media = mediaOf(calls);
    switch (table.reach) {
    case FamilyReach::Nothing:
    case FamilyReach::Device:
        return std::make_unique<ConfigurationFamily>(table, OnvifService::Device);
    case FamilyReach::VideoSource:
        if (!calls.hasService(OnvifService::Imaging)) // then it lacks these keys, and has the family's others
            return std::make_unique<ConfigurationFamily>(noKeys, OnvifService::Device);
        [[fallthrough]];
    case FamilyReach::Configurations:
        if (!media)
            return nullptr;
        if (*table.list)
            return std::make_unique<VideoStreams>(table, *media);
        return std::make_unique<ConfigurationFamily>(table, *media);
    case FamilyReach::ScreenTexts:
        return media ? std::make_unique<ScreenTexts>(*media) : nullptr;
    }
    return nullptr;
}

} // namespace vms_sdk
