#pragma once

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace device_fleet {

/// What a device does wrong with a request.
enum class Fault
{
    ErrorCode, ///< changes nothing, answers with an error code
    Garbage, ///< the answer is not JSON
    NoAnswer, ///< changes nothing, says nothing
    LateAnswer, ///< answers after a delay
    AnswerTwice, ///< the same answer two times
    ForeignId, ///< the answer comes under a request id that nobody sent
    ForeignMethod, ///< the answer names another method
    NoResult, ///< the answer has no "result"
    HugeAnswer, ///< the answer is larger than a frame may be
    DropConnection, ///< changes nothing, cuts the connection; the device can be dialled again at once
    DropAndReturn, ///< cuts the connection and cannot be dialled for a while
};

/// The settings with which a device comes back from DropAndReturn after a write. After a read they are the old ones.
enum class ReturnWith
{
    NewSettings, ///< the write took effect
    OldSettings, ///< it did not
    MissingMember, ///< it did, but the first member that it named is gone
};

struct FaultRule
{
    Fault fault = Fault::ErrorCode;
    int errorCode = -5; ///< for ErrorCode; never 0
    std::chrono::milliseconds delay{1000}; ///< how late (LateAnswer), how long gone (DropAndReturn)
    ReturnWith returnWith = ReturnWith::NewSettings; ///< for DropAndReturn
};

/// Which faults the devices have, and with which methods. As a file:
///
///     {"faults": [{"devices": ["dev-0001", "dev-0007"], "methods": ["ai_set_param"], "fault": "late-answer",
///     "delayMs": 500},
///                 {"devices": ["dev-0002"], "fault": "error-code", "errorcode": -5},
///                 {"devices": ["dev-0003"], "methods": ["ifconfig_qbcloud_set_param"],
///                  "fault": "drop-and-return", "delayMs": 800, "returnWith": "old-settings"}]}
///
/// "devices" and "methods" are lists of names; "*", or no list at all, means every one. Names of faults: error-code,
/// garbage, no-answer, late-answer, answer-twice, foreign-id, foreign-method, no-result, huge-answer, drop-connection,
/// drop-and-return; of "returnWith": new-settings (when not given), old-settings, missing-member. "delayMs" is in
/// milliseconds (1000 when not given), "errorcode" any whole number but 0 (-5 when not given). Where several entries
/// fit a request, a named device goes before "*", then a named method before "*", then the later entry.
///
/// A method of an ONVIF camera is the name of an operation. There an error code is a fault, "foreign-id" the answer to
/// another operation, "foreign-method" an answer under another name, "no-result" an empty one, "huge-answer" one beyond
/// 4 MiB, and after "missing-member" the first member that a write changed is again what it was. A request without a
/// sign-on that the operation needs meets no fault but "drop-connection".
class FaultPlan
{
public:
    /// @param error set to a text for the user: file, entry, field and what would be right; empty on success
    /// @param warnings is appended the keys that are not used
    /// @return the plan, without any fault on an error
    static FaultPlan read(const QString &path, QString *error, QStringList *warnings);

    /// All names that "fault" takes, for a user to choose from.
    static QStringList faultNames();

    /// Stands for every device or every method.
    static QString any() { return QStringLiteral("*"); }

    /// @param deviceId, method a name or any()
    void set(const QString &deviceId, const QString &method, const FaultRule &fault);
    void clear() { m_faults.clear(); }

    std::optional<FaultRule> find(const QString &deviceId, const QString &method) const;
    /// The devices named, without any().
    QStringList deviceIds() const;

private:
    QHash<QPair<QString, QString>, FaultRule> m_faults; // by device and method
};

} // namespace device_fleet
