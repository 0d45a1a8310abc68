#pragma once

#include "client/record/RunRecord.h"
#include "client/tables/TableModel.h"

namespace orda_client {

/// A run's record as a table, a row an entry in the order of the record.
class RunRecordModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Outcome,
        Name,
        SerialNumber,
        Ip,
        Time,
        Message,
        ColumnCount
    };

    using TableModel::TableModel;

    void setEntries(const QVector<RunEntry> &entries);
    const QVector<RunEntry> &entries() const { return m_entries; }

    int rowCount(const QModelIndex &parent = {}) const override;

protected:
    QStringList titles() const override;
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    QVector<RunEntry> m_entries;
};

} // namespace orda_client
