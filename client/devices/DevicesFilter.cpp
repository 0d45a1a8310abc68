#include "client/devices/DevicesFilter.h"

#include "client/devices/DevicesModel.h"

namespace orda_client {

DevicesFilter::DevicesFilter(DevicesModel *model, QObject *parent)
    : TableFilter(model, parent)
    , m_model(model)
{
    setDynamicSortFilter(false);
    refresh();
}

void DevicesFilter::refresh()
{
    m_isShown.resize(m_model->rowCount());
    for (int row = 0; row < m_isShown.size(); ++row)
        m_isShown[row] = TableFilter::filterAcceptsRow(row, {});
    m_model->resetRows();
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
