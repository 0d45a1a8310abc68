#include "client/find/FoundModel.h"

#include <algorithm>

namespace orda_client {

using vms_sdk::FoundCamera;

void FoundModel::clear()
{
    beginResetModel();
    m_rows.clear();
    endReset();
    emit signalTicksChanged();
}

void FoundModel::add(const QVector<FoundCamera> &cameras)
{
    if (cameras.isEmpty())
        return;
    // Not a reset: who is ticking keeps the place and the selection.
    beginInsertRows({}, m_rows.size(), m_rows.size() + cameras.size() - 1);
    for (const FoundCamera &camera : cameras)
        m_rows.append({camera, isKnownNow(camera), false});
    endInsertRows();
}

bool FoundModel::isKnownNow(const FoundCamera &camera) const
{
    return std::any_of(camera.addresses.cbegin(), camera.addresses.cend(),
                       [this](const QUrl &address) { return m_known.contains(vms_sdk::hostAndPort(address)); });
}

void FoundModel::setKnown(const QSet<QString> &addresses)
{
    m_known = addresses;
    for (Row &row : m_rows) {
        row.isKnown = isKnownNow(row.camera);
        row.isTicked = row.isTicked && !row.isKnown;
    }
    if (!m_rows.isEmpty())
        rowsChanged(0, m_rows.size() - 1);
    emit signalTicksChanged();
}

void FoundModel::setTicked(const QVector<int> &rows, bool isTicked)
{
    for (const int row : rows) {
        if (isKnown(row) || m_rows.at(row).isTicked == isTicked)
            continue;
        m_rows[row].isTicked = isTicked;
        const QModelIndex changed = index(row, Name);
        emit dataChanged(changed, changed, {Qt::CheckStateRole});
    }
    emit signalTicksChanged();
}

QVariant FoundModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::CheckStateRole)
        return TableModel::data(index, role);
    if (index.column() != Name || isKnown(index.row()))
        return {};
    return isTicked(index.row()) ? Qt::Checked : Qt::Unchecked;
}

bool FoundModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Name || isKnown(index.row()))
        return false;
    setTicked({index.row()}, value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags FoundModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = TableModel::flags(index);
    return index.column() == Name && !isKnown(index.row()) ? flags | Qt::ItemIsUserCheckable : flags;
}

QStringList FoundModel::titles() const
{
    return {tr("Name"), tr("State"), tr("Address"), tr("Answered from"), tr("Hardware"), tr("Location")};
}

QString FoundModel::text(int row, int column) const
{
    const FoundCamera &found = camera(row);
    switch (column) {
    case Name:
        return found.name.isEmpty() ? tr("(no name)") : found.name;
    case Hardware:
        return found.hardware;
    case Location:
        return found.location;
    case Sender:
        return found.sender;
    case Address: {
        const QString address = found.addresses.constFirst().toString(QUrl::FullyEncoded);
        return found.isAtSender() ? address : tr("says that it is at %1").arg(address);
    }
    default:
        return isKnown(row) ? tr("in the inventory already") : tr("new", "a camera");
    }
}

TableModel::SortKey FoundModel::sortKey(int row, int column) const
{
    if (column == Sender)
        return addressKey(camera(row).sender);
    return column == Address ? addressKey(camera(row).addresses.constFirst().host()) : TableModel::sortKey(row, column);
}

bool FoundModel::isEmphasized(int row, int column) const
{
    return column == Address && !camera(row).isAtSender();
}

} // namespace orda_client
