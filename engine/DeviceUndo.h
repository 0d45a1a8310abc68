#pragma once

#include "engine/DevicePlan.h"

namespace orda_engine {

/// What taking back a run means for one exchange of a device. Only members that the run has changed are in it.
struct ExchangeUndo
{
    QJsonObject goBack; ///< by member the values of before; empty: the exchange needs no write
    /// Somebody has changed these since. Only those that are also in goBack are written over, which takes force.
    QVector<MemberDifference> changedSince;
    QVector<MemberDifference> notRemovable; ///< the device did not have these before the run: they stay
    QStringList alreadyBack; ///< these are as they were before the run
};

/// By exchange, those that the run has changed or may have changed.
using DeviceUndo = QMap<int, ExchangeUndo>;

/// @param place of the exchange
/// @param before what the device held before its write
/// @param sent "param" of the write
/// @param held what the device holds now
/// @param force puts back what was changed since, too, as far as the device still has it
ExchangeUndo undoOf(const orda_batchCfg::CfgFamily &family, int place, const QJsonObject &before,
                    const QJsonObject &sent, const QJsonObject &held, bool force);

/// All exchanges of a device, also one that was written only in part: an exchange that is missing in one of the three
/// is left out.
DeviceUndo undoOf(const orda_batchCfg::CfgFamily &family, const ObjectsByExchange &before,
                  const ObjectsByExchange &sent, const ObjectsByExchange &held, bool force);

/// Values that describe what an undo writes, for the history; empty where it writes nothing. Where two exchanges have
/// one key, the first one's stand.
/// @param held what the undo was made from
QJsonObject valuesOf(const orda_batchCfg::CfgFamily &family, const DeviceUndo &undo, const ObjectsByExchange &held);

} // namespace orda_engine
