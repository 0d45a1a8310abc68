#pragma once

#include "client/form/ParameterTexts.h"
#include "client/preview/DeviceCells.h"
#include "client/tables/TableModel.h"
#include "engine/ReadJob.h"

#include <QHash>

#include <array>
#include <memory>

namespace orda_client {

/// What a run would do to each device of a selection, as far as the devices were read.
class PreviewModel : public TableModel
{
    Q_OBJECT

public:
    /// Groups of devices. A device that lacks a parameter may be among those that would change, too; in the others it
    /// is once.
    enum Group
    {
        All,
        WouldChange,
        HasAlready,
        Lacks,
        NotReached,
        Failed, ///< to be read
        NotRead, ///< not yet, or not any more
        GroupCount
    };

    enum Column
    {
        OutcomeColumn,
        DeviceColumn,
        ChangesColumn = DeviceColumn + DeviceCells::Count
    };

    explicit PreviewModel(QObject *parent = nullptr);

    /// Begins anew: none of these devices was read.
    void setSelection(const orda_engine::Selection &selection, const ParameterTexts &texts);
    void clear();
    /// What reading a device gave. Shown with the next refresh().
    void take(const orda_engine::DeviceReading &reading);
    void refresh();

    int count(Group group) const { return m_counts[group]; }
    bool isIn(int row, Group group) const;
    /// Those that would change, in the order of the selection.
    QStringList changing() const;

    int rowCount(const QModelIndex &parent = {}) const override;

protected:
    QStringList titles() const override { return m_titles; }
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    struct Row
    {
        DeviceCells device;
        Group group = NotRead; ///< never All
        bool isLacking = false;
        QString changes = {}; ///< or why there are none
    };

    void forget();
    void takePlan(Row *row, const orda_engine::DeviceReading &reading) const;
    QStringList changeTexts(const orda_engine::DevicePlan &plan) const;
    void count(const Row &row, int difference);
    static QString outcomeText(Group group);

    const QStringList m_titles; // asked for with each cell
    orda_engine::Selection m_selection;
    std::unique_ptr<const ParameterTexts> m_texts;
    QVector<Row> m_rows;
    QHash<QString, int> m_rowOf; // by device id
    std::array<int, GroupCount> m_counts{};
};

} // namespace orda_client
