#pragma once

#include <vms_client_sdk/DeviceProtocol.h>

#include <QByteArray>

namespace vms_sdk {

/// How deeply arrays and objects may be nested. Settings of real devices stay under ten; every level adds four blanks
/// to each line when the settings are written back.
inline constexpr int maxJsonDepth = 32;

/// Room in a write for what does not come from the device: the request's own members and the values of the page. The
/// longest of these is the content of one text field: 32,767 characters of up to three bytes.
inline constexpr qint64 roomForRequest = 131'072;

/// What a device reported goes back to it in one frame, so an answer that is larger as it would be written back can
/// never be written.
inline constexpr qint64 maxWrittenBytes = maxFrameBytes - roomForRequest;

/// The result of one pass over a JSON text of a device. The pass builds no tree and stops at the first limit, so it
/// costs little for any text. QJsonDocument is given only texts that passed: some others make it use gigabytes, or
/// leak.
struct AnswerCheck
{
    /// For the log; the same text for the same kind of fault. Null: the text is within all limits.
    const char *fault = nullptr;
    bool isJson = true; ///< an object or an array, as far as it was read
    /// At least what the text takes as a part of a write request: as QJsonDocument::toJson() writes it, a level deeper.
    /// Only as far as the text was read when there is a fault.
    qint64 writtenBytes = 0;
};

/// Checks an answer, a notice or a sign-on message. It is a fault to be no JSON object or array, to be nested more
/// deeply than maxJsonDepth, to be larger than maxWrittenBytes, and to name a key twice in one object.
AnswerCheck checkAnswer(const QByteArray &received);

} // namespace vms_sdk
