#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

namespace orda_batchCfg {

/// One read-change-write exchange of a family with a device, as data: it is built once, and the tasks of all devices
/// use it. The functions are pure: they depend on their arguments only and change none of them.
struct CfgExchange
{
    /// The "param" of the read request.
    using GetParam = std::function<QJsonObject(const QJsonObject &values)>;
    /// The "param" of the write request.
    /// @param values what is to be set
    /// @param device the device's own parameters, as the read answer gave them
    using SetParam = std::function<QJsonObject(const QJsonObject &values, QJsonObject device)>;
    /// A write whose "param" has what the device keeps in a member of its own.
    struct WrappedParam
    {
        QString attribute; ///< the name of that member
        SetParam setParam;
    };

    CfgExchange(const char *getMethod, const char *setMethod, SetParam setParam);
    CfgExchange(const char *getMethod, const char *setMethod, const WrappedParam &param);

    /// Without this the read request has no member "param".
    CfgExchange reading(GetParam param) &&;
    /// Messages of a refused read and of a refused write, not yet translated; %1 is the device's error code.
    CfgExchange failing(const char *getText, const char *setText) &&;
    /// Runs only when the task's flags have @p bit.
    CfgExchange onlyWith(int bit) &&;
    /// The device's parameters are a member of "result", and not "result" itself.
    CfgExchange foundIn(const char *member) &&;
    /// A device that comes back online after the write was sent is read again, and what it holds then decides the
    /// result: some settings make a device drop its connection before it can answer.
    /// @param limit counted from the first time that it is read again: then the result is that of a time-out. Nothing
    /// prolongs it, because a device that comes and goes without end would keep the whole run waiting.
    CfgExchange checkedWhenBack(std::chrono::milliseconds limit) &&;
    /// The device's parameters, and the values, have a list of objects in @p member, told apart by the whole number
    /// @p id. Their members are called by @p prefix and number: "stream0.bitRate".
    CfgExchange listedIn(const char *member, const char *id, const char *prefix) &&;
    /// The write takes these keys from the values only, and never repeats what the device has.
    CfgExchange takingFromValues(const QStringList &keys) &&;

    /// The device's parameters out of the answer to a read.
    QJsonObject heldIn(const QJsonObject &answer) const;

    // Members: what a device holds, or is to hold, as one flat object. Where the parameters have a list (listedIn()),
    // the second entry of a number, as recorders with several channels have it, is called "stream0(2)". Values of
    // members are compared by ==, for which 1 and 1.0 are the same.

    /// Everything that a device holds.
    /// @param device as the read answer gave it
    QJsonObject membersOf(const QJsonObject &device) const;
    /// What the values ask for, by member.
    QJsonObject askedBy(const QJsonObject &values) const;
    /// What the device keeps of a write's "param": all but what steers the request.
    QJsonObject settings(const QJsonObject &param) const;
    /// The name that askedBy() gives to what sets @p member: values do not tell apart the entries of one number.
    QString nameInValues(const QString &member) const;
    /// Values that ask for @p members. Of entries with the same number the first one's stand.
    QJsonObject toValues(const QJsonObject &members) const;
    /// @p device with these members as they are here; those that it does not have are left out.
    QJsonObject withMembers(const QJsonObject &device, const QJsonObject &members) const;
    /// The "param" of a write after which the device holds @p members, as far as it has them, and else what it holds
    /// now.
    /// @param values that steer the write where the device does not say what it has
    QJsonObject writeBack(const QJsonObject &device, const QJsonObject &members, const QJsonObject &values = {}) const;
    /// Whether the device holds everything that a write with @p param sets.
    bool holds(const QJsonObject &param, const QJsonObject &device) const;

    QString getMethod;
    QString setMethod;
    GetParam getParam;
    SetParam setParam;
    const char *getFailure = "";
    const char *setFailure = "";
    int flag = 0; ///< 0: runs always
    QString resultMember; ///< empty: "result" itself
    QString attribute; ///< the member of a write's "param" that has what the device keeps; empty: "param" itself
    QString listMember, listId, listPrefix; ///< listedIn(); empty: there is no list
    QStringList fromValues; ///< takingFromValues()
    bool checkWhenBack = false;
    std::chrono::milliseconds checkLimit{0};

private:
    struct EntryMember
    {
        int id;
        bool isFirst; // of the entries with this number
        QString key;
    };
    std::optional<EntryMember> entryMember(const QString &member) const;
    QStringList entryNames(const QJsonArray &entries) const;
};

/// Reads with {"channelid": 0}: the first video channel, the one that a camera has.
CfgExchange::GetParam channelZero();

/// @p device with the members of @p values that it has itself; what the device did not report is left out.
QJsonObject mergeKnownKeys(QJsonObject device, const QJsonObject &values);

/// @p values with those of @p keys that it lacks taken from @p device, as far as the device has them.
QJsonObject completeFrom(QJsonObject values, const QJsonObject &device, const QStringList &keys);

/// Writes {"channelid": 0, @p attribute: mergeKnownKeys(device, values)}.
CfgExchange::WrappedParam mergedUnder(const char *attribute);

} // namespace orda_batchCfg
