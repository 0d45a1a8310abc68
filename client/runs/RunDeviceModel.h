#pragma once

#include "client/runs/RunHistory.h"
#include "client/tables/GroupList.h"
#include "client/tables/TableModel.h"

namespace orda_client {

/// The devices of one run, a row a device, in the order in which they were chosen.
class RunDeviceModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Outcome,
        Name,
        SerialNumber,
        Ip,
        Message,
        Changes,
        ColumnCount
    };

    using TableModel::TableModel;

    /// @param run null: no devices
    void setRun(const ChosenRunPtr &run);
    const ChosenRunPtr &run() const { return m_run; }
    const orda_journal::DeviceRow &device(int row) const { return m_run->devices.at(row).row; }
    bool isFailed(int row) const { return RunTexts::isFailure(device(row).outcome); }

    /// The failures by outcome and message, the largest group first.
    QVector<RowGroup> failures() const;
    /// The key of the group that a row is in.
    QString groupOf(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;

protected:
    QStringList titles() const override;
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    QString changesText(int row) const;

    ChosenRunPtr m_run;
};

} // namespace orda_client
