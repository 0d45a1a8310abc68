#pragma once

#include <QHash>
#include <QJsonObject>
#include <QStringList>

namespace orda_batchCfg {
struct CfgFamily;
}

namespace orda_engine {

/// Which devices a job is about, and which parameters of theirs.
struct Selection
{
    const orda_batchCfg::CfgFamily *family = nullptr; ///< one of Families::all(), which is never deleted
    QStringList devIds; ///< each once, in the order in which they are to be reported where nothing else decides it
    QJsonObject values; ///< what is to be set, by the device's own keys; empty for reading all that the family has
    QHash<QString, QJsonObject> ownValues = {}; ///< by device id: in place of values

    const QJsonObject valuesOf(const QString &devId) const { return ownValues.value(devId, values); }
    /// The flags of the exchanges that these values need; of all exchanges without values.
    int flagsOf(const QString &devId) const;
    /// Values for the device's read requests: some say what is asked for by a value.
    QJsonObject readValuesOf(const QString &devId) const;
};

} // namespace orda_engine
