#pragma once

#include "client/runs/RunHistory.h"
#include "client/tables/TableModel.h"

namespace orda_client {

/// The runs of the history, a row a run.
class RunListModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Began,
        FamilyTitle,
        Kind,
        Counts,
        Values,
        Duration,
        Program,
        ColumnCount
    };

    using TableModel::TableModel;

    void setLines(const QVector<RunLine> &lines);
    const RunLine &line(int row) const { return m_lines.at(row); }
    /// -1 when the history does not have it.
    int rowOf(const QString &runId) const;

    int rowCount(const QModelIndex &parent = {}) const override;

protected:
    QStringList titles() const override;
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    QVector<RunLine> m_lines;
};

} // namespace orda_client
