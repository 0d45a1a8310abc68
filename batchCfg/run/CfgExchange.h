#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

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

    CfgExchange(const char *getMethod, const char *setMethod, SetParam setParam);

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

    QString getMethod;
    QString setMethod;
    GetParam getParam;
    SetParam setParam;
    const char *getFailure = "";
    const char *setFailure = "";
    int flag = 0; ///< 0: runs always
    QString resultMember; ///< empty: "result" itself
    bool checkWhenBack = false;
    std::chrono::milliseconds checkLimit{0};
};

/// Reads with {"channelid": 0}: the first video channel, the one that a camera has.
CfgExchange::GetParam channelZero();

/// @p device with the members of @p values that it has itself; what the device did not report is left out.
QJsonObject mergeKnownKeys(QJsonObject device, const QJsonObject &values);

/// @p values with those of @p keys that it lacks taken from @p device, as far as the device has them.
QJsonObject completeFrom(QJsonObject values, const QJsonObject &device, const QStringList &keys);

/// Writes {"channelid": 0, @p attribute: mergeKnownKeys(device, values)}.
CfgExchange::SetParam mergedUnder(const char *attribute);

} // namespace orda_batchCfg
