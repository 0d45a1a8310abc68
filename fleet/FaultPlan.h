#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <utility>

namespace device_fleet {

/// What a device does wrong when it is asked for a method. Where nothing else is said the request is carried out and only its
/// answer goes wrong. In brackets: the name in a fault file.
enum class Fault {
    ErrorCode, ///< [error-code] refuses with FaultRule::errorCode; the request is not carried out
    Garbage, ///< [garbage] answers a text that is not JSON
    NoAnswer, ///< [no-answer] the request is lost: not carried out, not answered
    LateAnswer, ///< [late-answer] answers after FaultRule::delayMs
    AnswerTwice, ///< [answer-twice] sends its answer two times
    ForeignId, ///< [foreign-id] answers under a request id that nobody used
    ForeignMethod, ///< [foreign-method] the answer names a method that nobody called
    NoResult, ///< [no-result] a read's answer lacks its "result"
    HugeAnswer, ///< [huge-answer] the answer is larger than a frame may be
    DropConnection, ///< [drop-connection] hangs up; not carried out; takes a new connection at once
    DropAndReturnNew, ///< [drop-and-return-new] hangs up, refuses connections for FaultRule::delayMs, has the new settings
    DropAndReturnOld, ///< [drop-and-return-old] likewise, but comes back with the old settings
    DropAndReturnMissing ///< [drop-and-return-missing] likewise, but what the request wrote is missing from its settings
};

struct FaultRule
{
    Fault fault = Fault::ErrorCode;
    int delayMs = 1000; ///< 0 to 600,000
    int errorCode = -5; ///< not 0
};

/// Which device misbehaves how at which method. Read from a JSON file or set in the process:
///
///     {"faults": [{"devices": ["dev-0001"], "methods": ["ai_set_param", "*"], "fault": "late-answer", "delayMs": 500},
///                 {"devices": ["*"], "methods": ["ifconfig_qbcloud_set_param"], "fault": "error-code", "errorcode": -5}]}
///
/// "*" stands for any device or any method. A rule for one device goes before one for all of them, and among these a rule for
/// one method before one for all; of two rules for the same the later holds. "delayMs" and "errorcode" may be left out.
class FaultPlan
{
public:
    /// All or nothing: a file with an error gives an empty plan.
    /// @param error for the user: file, entry, field and what would be right; empty on success
    /// @param warnings unknown keys and methods, for the user; they stop nothing
    static FaultPlan read(const QString &file, QString *error, QStringList *warnings);

    /// All names of faults as fault files use them.
    static QStringList faultNames();

    /// @param devId, method "*" for any
    void set(const QString &devId, const QString &method, const FaultRule &rule);

    /// The rule that holds for a request, null for none; valid until the plan changes.
    const FaultRule *find(const QString &devId, const QString &method) const;

private:
    QHash<std::pair<QString, QString>, FaultRule> m_rules; // device and method, each possibly "*"
};

} // namespace device_fleet
