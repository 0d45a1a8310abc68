#pragma once

#include "engine/DevicePlan.h"
#include "engine/Selection.h"
#include "journal/HistoryRows.h"

#include <QCoreApplication>

namespace orda_engine {

/// What the history has of one device.
struct RecordedDevice
{
    ObjectsByExchange before; ///< what it held; of what the run did not ask for, what it last repeated
    ObjectsByExchange sent; ///< "param" of its writes
};

/// A run as the history has it, in the terms of its family.
class RecordedRun
{
    Q_DECLARE_TR_FUNCTIONS(orda_engine::RecordedRun)

public:
    explicit RecordedRun(const orda_journal::RunDetails &details);

    /// Why nothing can be done with the run, for the user; empty when something can.
    const QString &error() const { return m_error; }
    const QString &id() const { return m_id; }
    /// Its devices that may have something of it, in their order.
    const Selection &written() const { return m_written; }
    RecordedDevice device(const QString &devId) const { return m_devices.value(devId); }
    /// The members in which a device is not as the run has left it. @param held what it holds now
    QVector<MemberDifference> differences(const QString &devId, const ObjectsByExchange &held) const;

private:
    void take(const orda_journal::ExchangeRow &row);

    QString m_id;
    bool m_isUndo;
    QString m_error;
    Selection m_written;
    QHash<QString, RecordedDevice> m_devices;
};

/// By device what a run changed, or was to change where the device did not take it. Nothing of devices that no write
/// has left for, and nothing where the family is not known.
QHash<QString, QVector<MemberChange>> changesOf(const orda_journal::RunDetails &details);

} // namespace orda_engine
