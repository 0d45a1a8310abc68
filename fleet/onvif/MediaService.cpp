#include "fleet/onvif/CameraServices.h"
#include "fleet/onvif/ConfigurationChecks.h"
#include "fleet/onvif/MediaVersions.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QUrl>

#include <algorithm>
#include <array>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

/// Kinds of configurations in the order in which profiles have them.
struct Kind
{
    const char *name; ///< in operations, and in profiles of ver10
    const char *inProfile2; ///< and in those of ver20
};
constexpr std::array<Kind, 4> kinds{{{videoSourceKind, "VideoSource"},
                                     {videoEncoderKind, "VideoEncoder"},
                                     {audioEncoderKind, "AudioEncoder"},
                                     {audioOutputKind, "AudioOutput"}}};

/// One operation of a media service.
class MediaCall
{
public:
    MediaCall(CameraState &state, const XmlElement &operation, const QString &address)
        : m_state(state)
        , m_operation(operation)
        , m_address(address)
        , m_isVer20(operation.namespaceUri == QLatin1String(tr2))
        , m_ns(m_isVer20 ? tr2 : trt)
    {
    }

    std::optional<OnvifReply> reply();

private:
    std::optional<OnvifReply> replyAbout(const QString &kind);
    OnvifReply configurations(const QString &kind);
    OnvifReply oneConfiguration(const QString &kind);
    OnvifReply options(const QString &kind);
    OnvifReply set(const QString &kind);
    OnvifReply profiles();
    OnvifReply videoSources();
    OnvifReply streamUri();

    XmlElement profile1(const CameraProfile &profile);
    XmlElement profile2(const CameraProfile &profile);
    std::optional<XmlElement> shown(const QString &kind, const QString &token);
    XmlElement shownOptions(const QString &kind, const CameraConfiguration &configuration) const;
    QString parameter(const char *name) const { return m_operation.textOf(m_ns, name); }
    /// Of the configurations that the operation names, by themselves or by a profile; all when it names none.
    QStringList wantedTokens(const QString &kind, OnvifReply *fault);
    const CameraProfile *findProfile(const QString &token) const;
    /// Whether ver10 shows an encoder that is kept as ver20 has it.
    bool isConverted() const { return !m_isVer20 && m_state.traits.hasMedia2; }

    CameraState &m_state;
    const XmlElement &m_operation;
    const QString &m_address;
    const bool m_isVer20;
    const char *const m_ns;
};

std::optional<OnvifReply> MediaCall::reply()
{
    if (m_operation.name == QLatin1String("GetProfiles"))
        return profiles();
    if (m_operation.name == QLatin1String("GetStreamUri"))
        return streamUri();
    if (m_operation.name == QLatin1String("GetVideoSources") && !m_isVer20)
        return videoSources();
    for (const Kind &kind : kinds)
        if (auto reply = replyAbout(text(kind.name)))
            return reply;
    const bool isVer10Only = m_operation.name == QLatin1String("GetOSD");
    return isVer10Only && m_isVer20 ? std::nullopt : osdReply(m_state, m_operation);
}

std::optional<OnvifReply> MediaCall::replyAbout(const QString &kind)
{
    const QString &name = m_operation.name;
    const bool isGet = name == text("Get") + kind && !m_isVer20;
    const bool isList = name == text("Get") + kind + QLatin1Char('s');
    const bool isOptions = name == text("Get") + kind + text("Options");
    const bool isSet = name == text("Set") + kind;
    if (!isGet && !isList && !isOptions && !isSet)
        return std::nullopt;
    if (m_state.configurations[kind].empty() && !(m_isVer20 && isList))
        return onvifFault({text("Receiver"), text("ActionNotSupported"), text("AudioNotSupported")},
                          text("this camera has no audio"));
    if (isSet)
        return set(kind);
    if (isOptions)
        return options(kind);
    return isGet ? oneConfiguration(kind) : configurations(kind);
}

const CameraProfile *MediaCall::findProfile(const QString &token) const
{
    const auto found = std::find_if(m_state.profiles.begin(), m_state.profiles.end(),
                                    [&token](const CameraProfile &each) { return each.token == token; });
    return found == m_state.profiles.end() ? nullptr : &*found;
}

QStringList MediaCall::wantedTokens(const QString &kind, OnvifReply *fault)
{
    const QString token = parameter("ConfigurationToken");
    const QString profileToken = parameter("ProfileToken");
    if (!token.isEmpty()) {
        if (!findConfiguration(m_state, kind, token))
            *fault = unknownToken("NoConfig", token);
        return {token};
    }
    if (!profileToken.isEmpty()) {
        const CameraProfile *profile = findProfile(profileToken);
        if (!profile)
            *fault = unknownToken("NoProfile", profileToken);
        return profile && profile->tokens.contains(kind) ? QStringList{profile->tokens.value(kind)} : QStringList();
    }
    QStringList all;
    for (const CameraConfiguration &each : m_state.configurations[kind])
        all.append(each.token);
    return all;
}

std::optional<XmlElement> MediaCall::shown(const QString &kind, const QString &token)
{
    const CameraConfiguration *configuration = findConfiguration(m_state, kind, token);
    if (!configuration)
        return std::nullopt;
    if (isConverted() && kind == QLatin1String(videoEncoderKind))
        return videoEncoderToVer10(configuration->element);
    if (isConverted() && kind == QLatin1String(audioEncoderKind))
        return audioEncoderToVer10(configuration->element);
    return configuration->element;
}

OnvifReply MediaCall::configurations(const QString &kind)
{
    OnvifReply reply = emptyReply(m_operation);
    const QStringList tokens = wantedTokens(kind, &reply);
    for (const QString &token : tokens)
        if (const auto element = shown(kind, token))
            reply.response.append(renamed(*element, m_ns, text("Configurations")));
    return reply;
}

OnvifReply MediaCall::oneConfiguration(const QString &kind)
{
    const QString token = parameter("ConfigurationToken");
    const auto element = shown(kind, token);
    if (!element)
        return unknownToken("NoConfig", token);
    OnvifReply reply = emptyReply(m_operation);
    reply.response.append(renamed(*element, m_ns, text("Configuration")));
    return reply;
}

XmlElement MediaCall::shownOptions(const QString &kind, const CameraConfiguration &configuration) const
{
    XmlElement all(m_ns, "Options");
    for (const XmlElement &each : configuration.options) {
        if (kind == QLatin1String(audioEncoderKind)) { // a list in an element of its own
            const auto older = isConverted() ? audioOptionsToVer10(each) : std::optional<XmlElement>(each);
            if (older)
                all.append(*older);
        } else if (isConverted() && kind == QLatin1String(videoEncoderKind)) {
            if (each.textOf(tt, "Encoding") == QLatin1String("H264"))
                return renamed(videoOptionsToVer10(each), m_ns, text("Options"));
        } else {
            return renamed(each, m_ns, text("Options"));
        }
    }
    return all;
}

OnvifReply MediaCall::options(const QString &kind)
{
    OnvifReply reply = emptyReply(m_operation);
    const QStringList tokens = wantedTokens(kind, &reply);
    if (reply.isFault())
        return reply;
    // Without a token: what holds for all; here those of one say it well enough.
    CameraConfiguration *configuration = findConfiguration(m_state, kind, tokens.value(0));
    if (!configuration)
        return unknownToken("NoConfig", {});
    const bool isEncoder = kind == QLatin1String(videoEncoderKind) || kind == QLatin1String(audioEncoderKind);
    if (!m_isVer20 || !isEncoder) {
        reply.response.append(shownOptions(kind, *configuration));
        return reply;
    }
    for (const XmlElement &each : configuration->options)
        reply.response.append(renamed(each, m_ns, text("Options")));
    return reply;
}

OnvifReply MediaCall::set(const QString &kind)
{
    const XmlElement *sent = m_operation.child(m_ns, "Configuration");
    if (!sent)
        return onvifFault({text("Sender"), text("InvalidArgs")}, text("Configuration is missing"));
    CameraConfiguration *present = findConfiguration(m_state, kind, sent->attribute("token"));
    if (!present)
        return unknownToken("NoConfig", sent->attribute("token"));
    XmlElement stored = renamed(vms_sdk::detached({&m_operation, sent}), tt, text("Configuration"));
    if (isConverted() && kind == QLatin1String(videoEncoderKind))
        stored = videoEncoderToVer20(stored, present->element);
    else if (isConverted() && kind == QLatin1String(audioEncoderKind))
        stored = audioEncoderToVer20(stored);
    const QString why = whyNotAllowed(kind, m_state.traits.hasMedia2, stored, present->options);
    if (!why.isEmpty())
        return onvifFault({text("Sender"), text("InvalidArgVal"), text("ConfigModify")}, why);
    present->element = std::move(stored);
    return emptyReply(m_operation);
}

XmlElement MediaCall::profile1(const CameraProfile &profile)
{
    XmlElement element(trt, "Profiles");
    element.append(XmlElement(tt, "Name", profile.name));
    for (const Kind &kind : kinds) {
        const QString name = text(kind.name);
        const auto shownPart = shown(name, profile.tokens.value(name));
        if (!shownPart)
            continue;
        XmlElement &parent = name == QLatin1String(audioOutputKind) ? element.childMade(tt, "Extension") : element;
        parent.append(renamed(*shownPart, tt, name));
    }
    return element;
}

XmlElement MediaCall::profile2(const CameraProfile &profile)
{
    QStringList types;
    for (const XmlElement *type : m_operation.all(tr2, "Type"))
        types.append(type->text());
    XmlElement element(tr2, "Profiles");
    element.append(XmlElement(tr2, "Name", profile.name));
    for (const Kind &kind : kinds) {
        const auto shownPart = shown(text(kind.name), profile.tokens.value(text(kind.name)));
        if (shownPart && (types.contains(text("All")) || types.contains(text(kind.inProfile2))))
            element.childMade(tr2, "Configurations").append(renamed(*shownPart, tr2, text(kind.inProfile2)));
    }
    return element;
}

OnvifReply MediaCall::profiles()
{
    OnvifReply reply = emptyReply(m_operation);
    const QString token = m_isVer20 ? parameter("Token") : QString();
    if (!token.isEmpty() && !findProfile(token))
        return unknownToken("NoProfile", token);
    for (const CameraProfile &each : m_state.profiles) {
        if (!token.isEmpty() && each.token != token)
            continue;
        XmlElement &profile = reply.response.append(m_isVer20 ? profile2(each) : profile1(each));
        profile.setAttribute("token", each.token);
        profile.setAttribute("fixed", text("true"));
    }
    return reply;
}

OnvifReply MediaCall::videoSources()
{
    OnvifReply reply = emptyReply(m_operation);
    for (const CameraConfiguration &each : m_state.videoSources)
        reply.response.append(renamed(each.element, trt, text("VideoSources")));
    return reply;
}

OnvifReply MediaCall::streamUri()
{
    const QString token = parameter("ProfileToken");
    if (!findProfile(token))
        return unknownToken("NoProfile", token);
    OnvifReply reply = emptyReply(m_operation);
    const QString uri = QStringLiteral("rtsp://%1/%2").arg(QUrl(m_address).host(), token);
    if (m_isVer20) {
        reply.response.append(XmlElement(tr2, "Uri", uri));
        return reply;
    }
    XmlElement &media = reply.response.append(XmlElement(trt, "MediaUri"));
    media.append(XmlElement(tt, "Uri", uri));
    media.append(XmlElement(tt, "InvalidAfterConnect", text("false")));
    media.append(XmlElement(tt, "InvalidAfterReboot", text("false")));
    media.append(XmlElement(tt, "Timeout", text("PT0S")));
    return reply;
}

} // namespace

std::optional<OnvifReply> mediaServiceReply(CameraState &state, const XmlElement &operation, const QString &address)
{
    return MediaCall(state, operation, address).reply();
}

QStringList mediaServiceOperations()
{
    QStringList all{text("GetProfiles"), text("GetVideoSources"), text("GetStreamUri")};
    for (const Kind &kind : kinds) {
        const QString name = text(kind.name);
        all << text("Get") + name << text("Get") + name + QLatin1Char('s') << text("Get") + name + text("Options")
            << text("Set") + name;
    }
    return all;
}

} // namespace device_fleet
