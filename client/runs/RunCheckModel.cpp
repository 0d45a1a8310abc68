#include "client/runs/RunCheckModel.h"

namespace orda_client {

RunCheckModel::RunCheckModel(RunCheck::Kind kind, QObject *parent)
    : TableModel(parent)
    , m_kind(kind)
{
}

void RunCheckModel::setDevices(const QVector<CheckedDevice> &devices)
{
    beginResetModel();
    m_devices = devices;
    endReset();
}

int RunCheckModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_devices.size();
}

QStringList RunCheckModel::titles() const
{
    return {tr("State"),
            tr("Name"),
            tr("Serial number"),
            tr("IP address"),
            m_kind == RunCheck::Verify ? tr("Written → now") : tr("Now → after the undo"),
            tr("Note")};
}

QString RunCheckModel::text(int row, int column) const
{
    const CheckedDevice &device = m_devices.at(row);
    switch (column) {
    case State:
        return CheckedDevice::stateText(device.state);
    case Name:
        return device.row.name;
    case SerialNumber:
        return device.row.serialNumber;
    case Ip:
        return device.row.ip;
    case Changes:
        return device.changes;
    default:
        return device.note;
    }
}

TableModel::SortKey RunCheckModel::sortKey(int row, int column) const
{
    const CheckedDevice &device = m_devices.at(row);
    if (column == Ip)
        return addressKey(device.row.ip);
    return column == State ? SortKey{device.state, device.row.name} : TableModel::sortKey(row, column);
}

bool RunCheckModel::isEmphasized(int row, int column) const
{
    return column == State && m_devices.at(row).state != CheckedDevice::AsWritten
        && m_devices.at(row).state != CheckedDevice::AlreadyBack;
}

} // namespace orda_client
