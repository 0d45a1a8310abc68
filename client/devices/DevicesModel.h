#pragma once

#include "client/devices/DeviceState.h"
#include "client/tables/GroupList.h"
#include "client/tables/TableModel.h"
#include "journal/Outcome.h"

namespace orda_client {

class DeviceStates;
class LastOutcomes;

/// Every device of the store, a row each, with its state and what became of it in its latest run.
class DevicesModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Name,
        State,
        Since, ///< it has had its state
        SerialNumber,
        Address,
        Kind,
        Protocol, ///< that it speaks
        Group,
        Outcome, ///< of its latest run, with the family
        LastRun, ///< when that began
        ColumnCount
    };
    /// @param states must outlive this object, as must @p outcomes
    DevicesModel(const DeviceStates *states, const LastOutcomes *outcomes, QObject *parent = nullptr);

    /// Takes the devices of the store anew, after the store's list has changed.
    void loadDevices();
    /// Takes the states anew. Rows stay where they are.
    void updateStates();
    void updateOutcomes();
    /// Tells views and filters to look at all rows anew, although they are as they were.
    void resetRows();

    QString devId(int row) const { return m_rows.at(row).devId; }
    /// -1: it has no such device.
    int rowOf(const QString &devId) const { return m_rowOf.value(devId, -1); }
    const DeviceState &state(int row) const { return m_rows.at(row).state; }

    /// The states that devices have, and below each the reasons for it.
    /// @param kept key of a group that stays even when no device is left in it
    QVector<RowGroup> groups(const QString &kept) const;
    /// @param key of one of groups(); empty: all devices are
    bool isInGroup(int row, const QString &key) const;

    int rowCount(const QModelIndex &parent = {}) const override;

protected:
    QStringList titles() const override;
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    struct Row
    {
        QString devId, name, serialNumber, ip, url, group;
        int kindCode = 0;
        vms_sdk::DevProtocol protocol = vms_sdk::DevProtocol::Vms;
        DeviceState state = {};
        QString since = {}; ///< state.since in words; made once, because a search looks at all of them
        // Of the latest run; 0 and empty without one.
        qint64 began = 0;
        orda_journal::Outcome outcome = orda_journal::Outcome::Done;
        QString outcomeText = {}, lastRun = {};
    };

    QString timeText(qint64 time);
    void takeState(Row *row);
    void takeOutcome(Row *row) const;
    const DeviceStates *m_states;
    const LastOutcomes *m_outcomes;
    QVector<Row> m_rows; // in the order of the store
    QHash<QString, int> m_rowOf; // by device id
    QHash<qint64, QString> m_timeTexts; // by second since the epoch
};

} // namespace orda_client
