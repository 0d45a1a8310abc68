#pragma once

#include <run/CfgFamily.h>

#include <QJsonObject>
#include <QMap>
#include <QStringList>
#include <QVector>

/// What a run changes on one device, beforehand and afterwards. Pure functions: any thread, no requests. An exchange is
/// named by its place in CfgFamily::exchanges; members are those of CfgExchange::membersOf().
namespace orda_engine {

/// By exchange: what a device holds, as its read answers gave it, or the "param" of a write to it.
using ObjectsByExchange = QMap<int, QJsonObject>;

using orda_batchCfg::MemberChange;

/// A member that is not as it was written.
struct MemberDifference
{
    int exchange;
    QString member;
    QJsonValue wanted; ///< what was written
    QJsonValue found; ///< undefined when the device does not have the member any more
};

/// What a run would do to a device. What its writes only repeat is not in it.
struct DevicePlan
{
    QVector<MemberChange> changes;
    QVector<MemberChange> added; ///< members that the device does not have and that are sent to it all the same
    QStringList lacking; ///< members that the values ask for and that no exchange writes, as the device lacks them
    int alreadySo = 0; ///< members that the values ask for and that the device holds already, each in each exchange
};

/// What becomes of members that are sent to a device and that it has not reported.
enum class Unreported
{
    Sent, ///< it may take them
    Dropped ///< they do not reach it, as it speaks ONVIF
};

/// @param flags the exchanges of the run: CfgFamily::exchangesOf()
/// @param held what the device holds; an exchange that is not there counts as one that does not run, and of a device
/// that drops what it does not report as one that it lacks
DevicePlan planOf(const orda_batchCfg::CfgFamily &family, int flags, const QJsonObject &values,
                  const ObjectsByExchange &held, Unreported unreported = Unreported::Sent);

/// The members that the values put into the writes, and that the device does not hold as they were written.
/// @param sent "param" of the writes that were sent; an exchange without one is judged by what it would write now
/// @param held what the device holds now; an exchange that is not there is not judged
QVector<MemberDifference> differencesOf(const orda_batchCfg::CfgFamily &family, int flags, const QJsonObject &values,
                                        const ObjectsByExchange &sent, const ObjectsByExchange &held,
                                        Unreported unreported = Unreported::Sent);

} // namespace orda_engine
