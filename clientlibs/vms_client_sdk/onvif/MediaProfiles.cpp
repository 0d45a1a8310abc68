#include <vms_client_sdk/onvif/MediaProfiles.h>

#include <vms_client_sdk/onvif/OnvifNames.h>

namespace vms_sdk {

OnvifOperation profilesRead(OnvifService media, std::initializer_list<const char *> kinds)
{
    XmlElement request(namespaceOf(media), "GetProfiles");
    if (media == OnvifService::Media2) // which leaves out what is not asked for
        for (const char *kind : kinds)
            request.append(XmlElement(onvif::tr2, "Type", QLatin1String(kind)));
    return {media, request};
}

std::vector<const XmlElement *> profilesOf(const XmlElement &answer, OnvifService media)
{
    return answer.all(namespaceOf(media), "Profiles");
}

const XmlElement *configurationOf(const XmlElement &profile, OnvifService media, const char *kind)
{
    if (media == OnvifService::Media)
        return profile.child(onvif::tt, QByteArray(kind).append("Configuration").constData());
    const XmlElement *configurations = profile.child(onvif::tr2, "Configurations");
    return configurations ? configurations->child(onvif::tr2, kind) : nullptr;
}

const XmlElement *firstConfiguration(const XmlElement &answer, OnvifService media, const char *kind)
{
    const auto profiles = profilesOf(answer, media);
    for (const XmlElement *profile : profiles)
        if (const XmlElement *found = configurationOf(*profile, media, kind))
            return found;
    return nullptr;
}

} // namespace vms_sdk
