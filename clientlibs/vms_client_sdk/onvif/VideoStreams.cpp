#include <vms_client_sdk/onvif/VideoStreams.h>

#include <vms_client_sdk/onvif/MediaProfiles.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlPath.h>

#include <QSize>

#include <algorithm>

namespace vms_sdk {

namespace {

QSize sizeIn(const XmlElement &resolution)
{
    return {resolution.textOf(onvif::tt, "Width").toInt(), resolution.textOf(onvif::tt, "Height").toInt()};
}

QSize resolutionOf(const XmlElement &configuration)
{
    const XmlElement *resolution = configuration.child(onvif::tt, "Resolution");
    return resolution ? sizeIn(*resolution) : QSize();
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

/// The tokens of the encoders of the first video source, in the order of the profiles.
QStringList encodersOfProfiles(const XmlElement &answer, OnvifService media)
{
    const auto sourceOf = [media](const XmlElement &profile) {
        const XmlElement *source = configurationOf(profile, media, "VideoSource");
        return source ? source->textOf(onvif::tt, "SourceToken") : QString();
    };
    const auto profiles = profilesOf(answer, media);
    QString firstSource;
    for (const XmlElement *profile : profiles)
        if (firstSource.isEmpty())
            firstSource = sourceOf(*profile);
    QStringList tokens;
    for (const XmlElement *profile : profiles) {
        const XmlElement *encoder = configurationOf(*profile, media, "VideoEncoder");
        if (encoder && sourceOf(*profile) == firstSource)
            tokens.append(encoder->attribute("token"));
    }
    tokens.removeDuplicates();
    return tokens;
}

} // namespace

std::vector<const XmlElement *> VideoStreams::chosen(const std::vector<const XmlElement *> &configurations,
                                                     const XmlElement *profiles) const
{
    const QStringList tokens = profiles ? encodersOfProfiles(*profiles, service()) : QStringList();
    std::vector<const XmlElement *> streams;
    for (const QString &token : tokens)
        for (const XmlElement *each : configurations)
            if (each->attribute("token") == token)
                streams.push_back(each);
    if (!streams.empty())
        return streams;
    streams = configurations;
    std::stable_sort(streams.begin(), streams.end(), [](const XmlElement *a, const XmlElement *b) {
        const QSize sizeA = resolutionOf(*a);
        const QSize sizeB = resolutionOf(*b);
        return qint64(sizeA.width()) * sizeA.height() > qint64(sizeB.width()) * sizeB.height();
    });
    return streams;
}

/// Media keeps what only H.264 has in an element of its own, which an encoder for something else need not have.
void VideoStreams::completeEncoding(XmlElement *configuration, const KeyOptions &options) const
{
    const bool isH264 = configuration->textOf(onvif::tt, "Encoding") == QLatin1String("H264");
    if (service() != OnvifService::Media || !isH264 || configuration->child(onvif::tt, "H264")
        || !options.limitAt("GovLengthRange"))
        return;
    // A key frame a second, as far as the range has it; the values are fitted to the options afterwards.
    const QString frames = textAt(*configuration, "RateControl/FrameRateLimit").value_or(QStringLiteral("25"));
    XmlElement &h264 = placed(configuration, "H264", {"H264", "Multicast", "SessionTimeout"});
    h264.append(XmlElement(onvif::tt, "GovLength", frames));
    h264.append(XmlElement(onvif::tt, "H264Profile", QStringLiteral("Main")));
}

QString VideoStreams::refusedTogether(const QJsonObject &asked, const XmlElement &configuration,
                                      const KeyOptions &options) const
{
    const QLatin1String width("width");
    if (!asked.contains(width) && !asked.contains(QLatin1String("height")))
        return {};
    QStringList allowed;
    for (const XmlElement *scope : options.scopes) {
        const auto resolutions = elementsAt(*scope, "ResolutionsAvailable");
        for (const XmlElement *each : resolutions)
            allowed.append(sizeText(sizeIn(*each)));
    }
    allowed.removeDuplicates();
    const QString wanted = sizeText(resolutionOf(configuration));
    return allowed.isEmpty() || allowed.contains(wanted)
             ? QString()
             : notAllowed(QStringLiteral("width and height"), wanted, listed(allowed));
}

} // namespace vms_sdk
