#pragma once

#include "client/common/ToolWindow.h"
#include "client/runs/RunComparison.h"
#include "client/runs/RunHistory.h"
#include "client/tables/TableModel.h"

#include <QFutureWatcher>

namespace orda_client {

class SearchedTable;

/// Two runs side by side, as a table: a row a device.
class RunComparisonModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        State,
        Name,
        SerialNumber,
        Ip,
        FirstOutcome,
        SecondOutcome,
        Read,
        Written,
        ColumnCount
    };

    using TableModel::TableModel;

    void setDevices(const QVector<ComparedDevice> &devices);
    const QVector<ComparedDevice> &devices() const { return m_devices; }

    static QString stateText(ComparedDevice::State state);

    int rowCount(const QModelIndex &parent = {}) const override;

protected:
    QStringList titles() const override;
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    QVector<ComparedDevice> m_devices;
};

/// Compares two runs of one family: searched, sorted, saved as a table.
class RunComparisonWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// @param first the earlier run, @param second of the same family, which the form has
    RunComparisonWindow(const RunLine &first, const RunLine &second, const orda_journal::HistoryOptions &options,
                        const RunTexts &texts, ClientSettings *settings, QWidget *parent);

private:
    struct Result
    {
        QVector<ComparedDevice> devices;
        QString error;
    };
    static Result compare(const orda_journal::HistoryOptions &options, const RunTexts &texts, const QString &firstId,
                          const QString &secondId);

    QFutureWatcher<Result> m_worker;
    RunComparisonModel *m_model;
    SearchedTable *m_table;
};

} // namespace orda_client
