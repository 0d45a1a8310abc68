#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

namespace orda_batchCfg {

/// One read-change-write exchange of a family with a device. A task is a list of these; all that differs between the
/// families stands here as data.
struct CfgExchange
{
    /// Builds the "param" of the write request.
    /// @param values what the page asked for; a family that completes them from the device does so in place
    /// @param device the device's own parameters, as the read answer gave them; the function's to keep
    using BuildSetParam = std::function<QJsonObject(QJsonObject &values, QJsonObject device)>;

    QString getMethod;
    QString setMethod;
    /// "param" of the read request; none: the request has no such member.
    std::optional<QJsonObject> getParam;
    BuildSetParam setParam;
    /// Messages of a refused read and of a refused write; %1 is the device's error code.
    QString getFailure;
    QString setFailure;
    /// Runs when the task's flags have this bit; 0: always.
    int flag = 0;
    /// The member of "result" that holds the parameters; empty: "result" itself.
    QString resultKey = {};
    /// A device that comes back online after the write was sent is read again, and what it holds then decides the
    /// result: some settings make a device drop its connection before it can answer.
    bool checkWhenBack = false;
    /// Counted from the first time that it is read again: then the result is that of a time-out. Nothing prolongs it,
    /// for a device that comes and goes without end would keep the whole run waiting. 0: no limit.
    std::chrono::milliseconds checkLimit{0};
};

/// {"channelid": 0}: the first video channel, the one that a camera has.
QJsonObject channelZero();

/// @p device with the members of @p values that it has itself; what the device did not report is left out.
QJsonObject mergeKnownKeys(QJsonObject device, const QJsonObject &values);

/// @p values with those of @p keys that it lacks taken from @p device, as far as the device has them.
QJsonObject completeFrom(QJsonObject values, const QJsonObject &device, const QStringList &keys);

/// Writes {"channelid": 0, @p attributeKey: mergeKnownKeys(device, values)}.
CfgExchange::BuildSetParam mergedUnder(const QString &attributeKey);

} // namespace orda_batchCfg
