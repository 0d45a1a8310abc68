#include "fleet/onvif/MediaVersions.h"

#include "fleet/onvif/ConfigurationChecks.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <algorithm>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

/// A configuration without what is in it: token, attributes of the maker, declarations.
XmlElement shellOf(const XmlElement &encoder)
{
    XmlElement shell = encoder;
    shell.children.clear();
    const auto isVer20Only = [](const XmlElement::Attribute &each) {
        return each.namespaceUri.isEmpty() && each.name != QLatin1String("token")
            && each.name != QLatin1String("GuaranteedFrameRate");
    };
    shell.attributes.erase(std::remove_if(shell.attributes.begin(), shell.attributes.end(), isVer20Only),
                           shell.attributes.end());
    return shell;
}

void copy(const XmlElement &from, XmlElement *to, const QStringList &names)
{
    for (const QString &name : names)
        for (const XmlElement *each : from.all(tt, qPrintable(name)))
            to->append(*each);
}

/// What the camera's maker has added, which stands last in both forms.
void copyForeign(const XmlElement &from, XmlElement *to)
{
    for (const XmlElement &each : from.children)
        if (!each.isText() && each.namespaceUri != QLatin1String(tt))
            to->append(each);
}

} // namespace

std::optional<XmlElement> videoEncoderToVer10(const XmlElement &encoder)
{
    if (encoder.textOf(tt, "Encoding") != QLatin1String("H264"))
        return std::nullopt;
    XmlElement older = shellOf(encoder);
    copy(encoder, &older, {text("Name"), text("UseCount"), text("Encoding"), text("Resolution"), text("Quality")});
    XmlElement &rate = older.append(XmlElement(tt, "RateControl"));
    const double frameRate = textsAt(encoder, text("RateControl/FrameRateLimit")).value(0).toDouble();
    rate.append(XmlElement(tt, "FrameRateLimit", QString::number(int(frameRate))));
    rate.append(XmlElement(tt, "EncodingInterval", text("1")));
    rate.append(XmlElement(tt, "BitrateLimit", textsAt(encoder, text("RateControl/BitrateLimit")).value(0)));
    XmlElement &h264 = older.append(XmlElement(tt, "H264"));
    h264.append(XmlElement(tt, "GovLength", encoder.attribute("GovLength")));
    h264.append(XmlElement(tt, "H264Profile", encoder.attribute("Profile")));
    copy(encoder, &older, {text("Multicast")});
    older.append(XmlElement(tt, "SessionTimeout", text("PT60S")));
    copyForeign(encoder, &older);
    return older;
}

XmlElement videoEncoderToVer20(const XmlElement &encoder, const XmlElement &present)
{
    XmlElement newer = shellOf(encoder);
    newer.setAttribute("GovLength", textsAt(encoder, text("H264/GovLength")).value(0));
    newer.setAttribute("Profile", textsAt(encoder, text("H264/H264Profile")).value(0));
    copy(encoder, &newer, {text("Name"), text("UseCount"), text("Encoding"), text("Resolution")});
    copy(present, &newer, {text("RateControl")});
    XmlElement &rate = newer.childMade(tt, "RateControl");
    rate.childMade(tt, "FrameRateLimit").setText(textsAt(encoder, text("RateControl/FrameRateLimit")).value(0));
    rate.childMade(tt, "BitrateLimit").setText(textsAt(encoder, text("RateControl/BitrateLimit")).value(0));
    copy(encoder, &newer, {text("Multicast"), text("Quality")});
    copyForeign(encoder, &newer);
    return newer;
}

XmlElement videoOptionsToVer10(const XmlElement &options)
{
    const QStringList govLengths = options.attribute("GovLengthRange").split(QLatin1Char(' '));
    const QStringList frameRates = options.attribute("FrameRatesSupported").split(QLatin1Char(' '));
    const auto range = [](XmlElement *parent, const char *name, const QString &min, const QString &max) {
        XmlElement &made = parent->append(XmlElement(tt, name));
        made.append(XmlElement(tt, "Min", min));
        made.append(XmlElement(tt, "Max", max));
    };
    XmlElement h264(tt, "H264");
    copy(options, &h264, {text("ResolutionsAvailable")});
    range(&h264, "GovLengthRange", govLengths.value(0), govLengths.value(1));
    range(&h264, "FrameRateRange", frameRates.constFirst(), frameRates.constLast());
    range(&h264, "EncodingIntervalRange", text("1"), text("1"));
    const QStringList profiles = options.attribute("ProfilesSupported").split(QLatin1Char(' '));
    for (const QString &profile : profiles)
        h264.append(XmlElement(tt, "H264ProfilesSupported", profile));

    XmlElement older(tt, "Options");
    copy(options, &older, {text("QualityRange")});
    older.append(h264);
    copy(options, &h264, {text("BitrateRange")});
    older.append(XmlElement(tt, "Extension")).append(h264);
    return older;
}

XmlElement audioEncoderToVer10(const XmlElement &encoder)
{
    XmlElement older = shellOf(encoder);
    copy(encoder, &older, {text("Name"), text("UseCount")});
    const bool isAac = encoder.textOf(tt, "Encoding") == QLatin1String("MP4A-LATM");
    older.append(XmlElement(tt, "Encoding", text(isAac ? "AAC" : "G711")));
    copy(encoder, &older, {text("Bitrate"), text("SampleRate"), text("Multicast")});
    older.append(XmlElement(tt, "SessionTimeout", text("PT60S")));
    copyForeign(encoder, &older);
    return older;
}

XmlElement audioEncoderToVer20(const XmlElement &encoder)
{
    XmlElement newer = shellOf(encoder);
    copy(encoder, &newer, {text("Name"), text("UseCount")});
    const QString encoding = encoder.textOf(tt, "Encoding");
    newer.append(XmlElement(tt, "Encoding",
                            encoding == QLatin1String("G711")  ? text("PCMU")
                            : encoding == QLatin1String("AAC") ? text("MP4A-LATM")
                                                               : encoding));
    copy(encoder, &newer, {text("Multicast"), text("Bitrate"), text("SampleRate")});
    copyForeign(encoder, &newer);
    return newer;
}

std::optional<XmlElement> audioOptionsToVer10(const XmlElement &options)
{
    const QString encoding = options.textOf(tt, "Encoding");
    if (encoding == QLatin1String("PCMA"))
        return std::nullopt;
    XmlElement older(tt, "Options");
    older.append(XmlElement(tt, "Encoding", text(encoding == QLatin1String("PCMU") ? "G711" : "AAC")));
    copy(options, &older, {text("BitrateList"), text("SampleRateList")});
    return older;
}

} // namespace device_fleet
