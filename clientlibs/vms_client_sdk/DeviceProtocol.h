#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <optional>

/// Names, numbers and framing that both sides of a device connection share (docs/device-protocol.md).
namespace vms_sdk {

inline constexpr char deviceSubProtocol[] = "vms-device.v1";

/// Close code of a sign-on that was refused, by either side. From the range that WebSocket leaves to applications.
inline constexpr int signOnRefusedCode = 4401;

/// Close codes of RFC 6455: a connection that is ended on purpose, and one that its side gives up.
inline constexpr int normalCloseCode = 1000;
inline constexpr int goingAwayCloseCode = 1001;

/// Largest message in bytes, either way; a larger one ends the connection.
inline constexpr qint64 maxFrameBytes = 1'048'576;

/// Largest message of the sign-on. Nobody knows yet who sends it, and a real one takes less than a hundredth of this.
inline constexpr int maxSignOnBytes = 16'384;

/// A message after the sign-on: `<request id>\n<text>`. An empty request id marks a notice of the device.
struct DeviceFrame
{
    QString requestId;
    QString text;
};

QString toFrameText(const DeviceFrame &frame);

/// Nothing when there is no line break.
std::optional<DeviceFrame> parseFrame(const QString &frameText);

/// The SHA-256 that a certificate's fingerprint stands for: 64 hexadecimal digits, with or without a colon between two
/// bytes. Empty for everything else.
QByteArray sha256FromText(const QString &fingerprint);

/// Where the device is dialled; invalid when the record gives no address.
QUrl deviceUrl(const DevInfo &device);

} // namespace vms_sdk
