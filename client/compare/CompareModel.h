#pragma once

#include "client/compare/SettingsTable.h"
#include "client/form/ParameterTexts.h"
#include "client/preview/DeviceCells.h"
#include "client/tables/TableModel.h"
#include "engine/ReadJob.h"

#include <memory>

namespace orda_client {

/// The settings of devices as a table: a row a device, a column a member, and where they differ from a standard.
class CompareModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        DifferencesColumn,
        DeviceColumn,
        FirstMember = DeviceColumn + DeviceCells::Count
    };

    explicit CompareModel(QObject *parent = nullptr);

    /// Begins anew: none of these devices was read.
    /// @param members of the page, which have a column in any case
    void setDevices(const orda_batchCfg::CfgFamily &family, const QStringList &devIds, const QStringList &members,
                    const ParameterTexts &texts);
    void clear();
    /// What reading a device gave. Shown with the next refresh().
    void take(const orda_engine::DeviceReading &reading);
    /// Shows what has come since, compared with the standard. Resets the model where the columns are others than
    /// before.
    void refresh();

    /// Shown with the next refresh(), as the following.
    void setStandard(const SettingsTable::Standard &standard) { m_standard = standard; }
    void setShowsOthers(bool showsOthers) { m_showsOthers = showsOthers; }

    bool isRead(int row) const { return m_rows.at(row).isRead; }
    bool isDifferent(int row) const { return m_table && m_table->differencesIn(row) > 0; }
    int readCount() const;
    int differentCount() const;
    const DeviceCells &device(int row) const { return m_rows.at(row).device; }
    int rowOf(const QString &devId) const { return m_rowOf.value(devId, -1); }
    /// The standard as values of a run; empty when there is none.
    QJsonObject standardValues() const { return m_table ? m_table->standardValues() : QJsonObject(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

protected:
    QStringList titles() const override { return m_titles; }
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    struct Row
    {
        DeviceCells device;
        bool isRead = false;
        QString why = {}; ///< it was not read
    };

    void forget();
    void showColumns(const QVector<int> &columns);
    void addTexts();
    QString valueText(int column, int cell) const;

    std::unique_ptr<SettingsTable> m_table; // null: nothing is compared
    std::unique_ptr<const ParameterTexts> m_texts;
    SettingsTable::Standard m_standard;
    bool m_showsOthers = false;
    QVector<Row> m_rows;
    QHash<QString, int> m_rowOf; // by device id
    QVector<int> m_shown; // columns of the table, from FirstMember on
    QVector<QStringList> m_valueTexts; // by column of the table and cell
    QStringList m_titles;
};

} // namespace orda_client
