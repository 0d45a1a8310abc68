#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <QMap>
#include <QString>
#include <QStringList>

#include <chrono>
#include <map>
#include <vector>

namespace device_fleet {

/// Names and values of cameras are ASCII texts.
inline QString text(const char *ascii)
{
    return QString::fromLatin1(ascii);
}

/// How a camera writes its answers.
enum class XmlStyle
{
    Prefixes, ///< the usual ones, all declared on the envelope
    DefaultNamespaces, ///< no prefixes in the body; an element declares its namespace where it changes
    Numbered ///< ns1, ns2, …
};

/// Ways in which cameras differ that no configuration shows.
struct CameraTraits
{
    bool hasMedia2 = false; ///< Media ver20 beside ver10
    bool takesDigest = false;
    bool takesSha256 = false; ///< with takesDigest: offered before MD5
    bool takesUsernameToken = false;
    bool isNonceTakenOnce = false; ///< of HTTP Digest
    bool saysStale = true; ///< of a nonce that is used up
    bool hidesServices = false; ///< GetServices and GetCapabilities only after the sign-on
    std::chrono::seconds clockOffset{0}; ///< of the camera's clock to this machine's
    XmlStyle style = XmlStyle::Prefixes;
    bool isChunked = false;
    bool closesAfterAnswer = false;
    int faultStatus = 400; ///< HTTP status of faults
};

/// A configuration and what may be set in it.
struct CameraConfiguration
{
    QString token;
    vms_sdk::XmlElement element;
    std::vector<vms_sdk::XmlElement> options; ///< one for each encoding; for others one
};

struct CameraProfile
{
    QString token, name;
    QMap<QString, QString> tokens; ///< by kind of configuration
};

// Kinds of configurations, as operations name them: GetVideoEncoderConfigurations and so on.
inline constexpr char videoSourceKind[] = "VideoSourceConfiguration";
inline constexpr char videoEncoderKind[] = "VideoEncoderConfiguration";
inline constexpr char audioEncoderKind[] = "AudioEncoderConfiguration";
inline constexpr char audioOutputKind[] = "AudioOutputConfiguration";
inline constexpr char osdKind[] = "OSD";
inline constexpr char imagingKind[] = "ImagingSettings";

/// What a camera is and holds. Encoders are in the form of Media ver20 where the camera has it, else of ver10.
struct CameraState
{
    CameraTraits traits;
    QString deviceId; ///< as the inventory has it; also the host name
    QString name, location, serialNumber, hardware, manufacturer, mac;
    QMap<QString, QString> paths; ///< of the services, by namespace
    QString discoveryMode = QStringLiteral("Discoverable");
    std::vector<CameraConfiguration> videoSources; ///< without options
    std::vector<CameraProfile> profiles;
    std::map<QString, std::vector<CameraConfiguration>> configurations; ///< by kind, each of them
    std::vector<vms_sdk::XmlElement> osdOptions; ///< one; empty without OSD
    int osdsMade = 0; ///< for tokens of new ones
};

/// Null for an unknown token.
CameraConfiguration *findConfiguration(CameraState &state, const QString &kind, const QString &token);

} // namespace device_fleet
