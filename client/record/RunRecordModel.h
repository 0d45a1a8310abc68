#pragma once

#include "client/record/RunRecord.h"

#include <QAbstractTableModel>
#include <QCollatorSortKey>

#include <optional>
#include <vector>

namespace orda_client {

/// A run's record as a table, a row an entry in the order of the record.
class RunRecordModel : public QAbstractTableModel
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

    /// Qt::EditRole gives a cell's text as the record has it, Qt::DisplayRole on one line, and the beginning of a very
    /// long one.
    explicit RunRecordModel(QObject *parent = nullptr);

    /// A record that has grown keeps its rows and gets the new ones, so that selections last.
    void setEntries(const QVector<RunEntry> &entries);
    const QVector<RunEntry> &entries() const { return m_entries; }

    /// The order of two rows by a column: outcomes with failures first and by name among themselves, names as people
    /// read them, addresses by number and after them the devices without one.
    bool isBefore(Column column, int row, int otherRow) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    static QString outcomeText(RunEntry::Outcome outcome);

private:
    struct Keys
    {
        std::optional<quint32> ip;
        QCollatorSortKey name;
    };

    void appendKeys(int from);
    static QString text(const RunEntry &entry, int column);

    QVector<RunEntry> m_entries;
    std::vector<Keys> m_keys; // by row; comparing the texts each time would take most of the time of sorting
};

} // namespace orda_client
