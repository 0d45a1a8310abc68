#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QVector>

namespace orda_client {

/// A table that people read, search, sort and save: a row a thing, a column a text about it. What the texts are, and
/// how they sort, is the subclass's affair.
///
/// Qt::EditRole gives a cell's text as it is, for files; Qt::DisplayRole on one line, safe to look at, and the
/// beginning of a very long one. Names and messages are other people's texts, and are never taken for HTML.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The place of a row when the table is sorted by a column. Rows that sort alike have the same. Worked out for all
    /// rows when it is asked for first, and again after rowsChanged() and a reset.
    int rank(int row, int column) const;

    /// Whether one of the row's texts has this one in it, in capitals or not.
    bool contains(int row, const QString &keyword) const;

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    /// By number, and where these are equal by text, as people sort names: "cam 2" before "cam 10".
    struct SortKey
    {
        qint64 number = 0;
        QString text = {};
    };

    /// Of the columns; changes with endReset() only.
    virtual QStringList titles() const = 0;
    virtual QString text(int row, int column) const = 0;
    /// Unless told otherwise the cell's text.
    virtual SortKey sortKey(int row, int column) const;
    /// Whether a cell is to be seen at once, as failures are.
    virtual bool isEmphasized(int row, int column) const;

    /// Addresses by number, then other texts, then the rows without one.
    static SortKey addressKey(const QString &ip);

    /// Tells views that texts of these rows have changed.
    void rowsChanged(int first, int last);
    /// As QAbstractItemModel's, and what was worked out of the old rows is forgotten.
    void endReset();

private:
    mutable QHash<int, QVector<int>> m_ranks; // by column
    mutable int m_columns = -1; // asked for with every index, and titles are slow to translate; -1: not known
};

} // namespace orda_client
