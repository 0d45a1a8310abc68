#pragma once

#include "engine/DevicePlan.h"

#include <QHash>
#include <QJsonObject>
#include <QStringList>

namespace orda_batchCfg {
struct CfgFamily;
}

namespace orda_engine {

/// Parameters for which the ONVIF standard has no counterpart, and that devices would be asked for all the same: these
/// answer with vms_sdk::OnvifNotKnown.
struct OnvifGap
{
    int devices = 0; ///< that speak ONVIF
    QStringList keys; ///< of the family
};

/// Which devices a job is about, and which parameters of theirs.
struct Selection
{
    /// The same with each device once, at its first place: the jobs make sure of it.
    Selection withoutDuplicates() const;

    const orda_batchCfg::CfgFamily *family = nullptr; ///< one of Families::all(), which is never deleted
    QStringList devIds; ///< in the order in which they are to be reported where nothing else decides it
    QJsonObject values; ///< what is to be set, by the device's own keys; empty for reading all that the family has
    QHash<QString, QJsonObject> ownValues = {}; ///< by device id: in place of values

    QJsonObject valuesOf(const QString &devId) const { return ownValues.value(devId, values); }
    /// The flags of the exchanges that @p wanted needs; of all exchanges when it is empty, or has a key that the family
    /// does not have.
    int flagsFor(const QJsonObject &wanted) const;
    int flagsOf(const QString &devId) const { return flagsFor(valuesOf(devId)); }
    /// @p flags without the exchanges that have no counterpart in ONVIF, where the device speaks it and others remain:
    /// a reading ends with the first exchange that fails, and the others can be read. GUI thread.
    int readableFlags(const QString &devId, int flags) const;
    /// Values for read requests, of which some say by a value what is asked for: those that @p wanted lacks are added.
    QJsonObject readValuesFor(QJsonObject wanted) const;

    // As the functions of DevicePlan.h, for one of the devices; GUI thread.
    DevicePlan planOf(const QString &devId, const ObjectsByExchange &held) const;
    QVector<MemberDifference> differencesOf(const QString &devId, const ObjectsByExchange &sent,
                                            const ObjectsByExchange &held) const;
    /// What of the values cannot be set by ONVIF.
    OnvifGap onvifGap() const;

private:
    bool isKnownToOnvif(const QJsonObject &wanted, QStringList *unknownKeys) const;
};

} // namespace orda_engine
