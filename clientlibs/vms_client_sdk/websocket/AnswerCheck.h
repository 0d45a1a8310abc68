#pragma once

#include <vms_client_sdk/DeviceProtocol.h>

#include <QByteArray>

namespace vms_sdk {

/// How deep arrays and objects may lie in each other. Settings of real devices stay under ten; every level costs four
/// blanks on each line when it is written back.
inline constexpr int maxJsonDepth = 32;

/// What a write needs besides the settings that it takes over from the device: its own members, and the values of the
/// page. The longest of these is the content of one text field: 32,767 characters of up to three bytes.
inline constexpr qint64 roomForRequest = 131'072;

/// What a device reported goes back to it in one frame, so an answer that is larger as it would be written back can
/// never be written.
inline constexpr qint64 maxWrittenBytes = maxFrameBytes - roomForRequest;

/// What one look at a JSON text of a device finds. The look builds no tree and stops at the first limit, so it costs
/// little whatever the text is; QJsonDocument only sees texts that passed it, for some make it use gigabytes and some
/// make it lose memory.
struct AnswerCheck
{
    /// For the log; the same text for the same kind of fault. Null: the text is within all limits.
    const char *fault = nullptr;
    bool isJson = true; ///< an object or an array, as far as it was read
    /// At least what the text takes as a part of a write request: as QJsonDocument::toJson() writes it, a level deeper.
    /// Only as far as the text was read when there is a fault.
    qint64 writtenBytes = 0;
};

/// Looks at an answer, a notice or a sign-on message. A text is at fault that is no JSON object or array, is deeper
/// than maxJsonDepth, larger than maxWrittenBytes or names a key twice in one object.
AnswerCheck checkAnswer(const QByteArray &received);

} // namespace vms_sdk
