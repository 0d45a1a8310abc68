#include "client/record/RunRecordModel.h"

namespace orda_client {

void RunRecordModel::setEntries(const QVector<RunEntry> &entries)
{
    beginResetModel();
    m_entries = entries;
    endReset();
}

int RunRecordModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QStringList RunRecordModel::titles() const
{
    return {tr("Outcome"), tr("Name"), tr("Serial number"), tr("IP address"), tr("Time"), tr("Message")};
}

QString RunRecordModel::text(int row, int column) const
{
    const RunEntry &entry = m_entries.at(row);
    switch (column) {
    case Outcome:
        return entry.outcome == RunEntry::Failed     ? tr("Failed")
             : entry.outcome == RunEntry::Unreadable ? tr("Unreadable")
                                                     : tr("Succeeded");
    case Name:
        return entry.name;
    case SerialNumber:
        return entry.serialNumber;
    case Ip:
        return entry.ip;
    case Time:
        return entry.time;
    default:
        return entry.message;
    }
}

// Failures first, and among themselves by name.
TableModel::SortKey RunRecordModel::sortKey(int row, int column) const
{
    const RunEntry &entry = m_entries.at(row);
    if (column == Ip)
        return addressKey(entry.ip);
    return column == Outcome ? SortKey{entry.outcome, entry.name} : TableModel::sortKey(row, column);
}

bool RunRecordModel::isEmphasized(int row, int column) const
{
    return column == Outcome && m_entries.at(row).outcome != RunEntry::Succeeded;
}

} // namespace orda_client
