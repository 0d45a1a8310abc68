#pragma once

#include <QSortFilterProxyModel>

#include <functional>

namespace orda_client {

class TableModel;

/// The rows of a table that are shown, searched, chosen and sorted.
class TableFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using Accepts = std::function<bool(int row)>;

    /// @param model must outlive the filter
    explicit TableFilter(TableModel *model, QObject *parent = nullptr);

    /// Only rows with this text in one of their cells, in capitals or not.
    void setKeyword(const QString &keyword);
    QString keyword() const { return m_keyword; }
    /// Only rows of the model for which this is true; null: all. Called again after what it looks at has changed.
    void setAccepts(const Accepts &accepts);

    /// The rows of the model that are shown, as they stand.
    QVector<int> shownRows() const;
    /// Those of the model's rows that these rows of the filter are.
    QVector<int> rowsOf(const QModelIndexList &indexes) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    TableModel *m_model;
    QString m_keyword;
    Accepts m_accepts;
};

} // namespace orda_client
