#include "client/record/RunRecordFilter.h"

#include "client/record/RunRecordModel.h"

namespace orda_client {

RunRecordFilter::RunRecordFilter(RunRecordModel *model, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_model(model)
{
    setSourceModel(model);
}

void RunRecordFilter::setFailedOnly(bool failedOnly)
{
    m_failedOnly = failedOnly;
    invalidateFilter();
}

void RunRecordFilter::setGroup(const std::optional<FailureGroup> &group)
{
    m_group = group;
    invalidateFilter();
}

void RunRecordFilter::setKeyword(const QString &keyword)
{
    m_keyword = keyword;
    invalidateFilter();
}

bool RunRecordFilter::filterAcceptsRow(int row, const QModelIndex &) const
{
    const RunEntry &entry = m_model->entries().at(row);
    if ((m_failedOnly && entry.outcome == RunEntry::Succeeded) || (m_group && !m_group->has(entry)))
        return false;
    const auto hasKeyword = [this](const QString &text) { return text.contains(m_keyword, Qt::CaseInsensitive); };
    return hasKeyword(entry.name) || hasKeyword(entry.serialNumber) || hasKeyword(entry.ip)
        || hasKeyword(entry.message);
}

bool RunRecordFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return m_model->isBefore(RunRecordModel::Column(left.column()), left.row(), right.row());
}

} // namespace orda_client
