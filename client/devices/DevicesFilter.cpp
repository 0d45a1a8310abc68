#include "client/devices/DevicesFilter.h"

#include "client/devices/DevicesModel.h"

namespace orda_client {

DevicesFilter::DevicesFilter(DevicesModel *model, QObject *parent)
    : TableFilter(model, parent)
{
    setDynamicSortFilter(false);
    refresh();
    connect(model, &QAbstractItemModel::modelReset, this, &DevicesFilter::refresh);
}

void DevicesFilter::refresh()
{
    m_isShown.resize(sourceModel()->rowCount());
    for (int row = 0; row < m_isShown.size(); ++row)
        m_isShown[row] = TableFilter::filterAcceptsRow(row, {});
    invalidateFilter();
    sort(sortColumn(), sortOrder());
}

int DevicesFilter::outdated() const
{
    int count = 0;
    for (int row = 0; row < m_isShown.size(); ++row)
        count += TableFilter::filterAcceptsRow(row, {}) != m_isShown.at(row) ? 1 : 0;
    return count;
}

bool DevicesFilter::filterAcceptsRow(int row, const QModelIndex &) const
{
    return row < m_isShown.size() && m_isShown.at(row);
}

} // namespace orda_client
