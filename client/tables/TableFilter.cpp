#include "client/tables/TableFilter.h"

#include "client/tables/TableModel.h"

namespace orda_client {

TableFilter::TableFilter(TableModel *model, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_model(model)
{
    setSourceModel(model);
}

void TableFilter::setKeyword(const QString &keyword)
{
    if (keyword == m_keyword)
        return;
    m_keyword = keyword;
    invalidateFilter();
}

void TableFilter::setAccepts(const Accepts &accepts)
{
    m_accepts = accepts;
    invalidateFilter();
}

QVector<int> TableFilter::shownRows() const
{
    QVector<int> rows;
    rows.reserve(rowCount());
    for (int row = 0; row < rowCount(); ++row)
        rows.append(mapToSource(index(row, 0)).row());
    return rows;
}

QVector<int> TableFilter::rowsOf(const QModelIndexList &indexes) const
{
    QVector<int> rows;
    rows.reserve(indexes.size());
    for (const QModelIndex &index : indexes)
        rows.append(mapToSource(index).row());
    return rows;
}

bool TableFilter::filterAcceptsRow(int row, const QModelIndex &) const
{
    if (m_accepts && !m_accepts(row))
        return false;
    return m_keyword.isEmpty() || m_model->contains(row, m_keyword);
}

bool TableFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const int rank = m_model->rank(left.row(), left.column());
    const int otherRank = m_model->rank(right.row(), right.column());
    return rank != otherRank ? rank < otherRank : left.row() < right.row();
}

} // namespace orda_client
