#include "client/runs/RunDeviceModel.h"

#include <QMap>

#include <algorithm>

namespace orda_client {

using orda_journal::DeviceRow;

void RunDeviceModel::setRun(const ChosenRunPtr &run)
{
    beginResetModel();
    m_run = run;
    endReset();
}

QString RunDeviceModel::groupOf(int row) const
{
    return RunTexts::outcome(device(row), m_run->line.run.isUnderWay) + QLatin1Char('\n') + device(row).message;
}

QVector<RowGroup> RunDeviceModel::failures() const
{
    QMap<QString, RowGroup> byKey;
    for (int row = 0; row < rowCount(); ++row) {
        if (!isFailed(row))
            continue;
        RowGroup &group = byKey[groupOf(row)];
        if (group.count++ > 0)
            continue;
        group.key = groupOf(row);
        const QString outcome = text(row, Outcome);
        const QString &message = device(row).message;
        group.text = message.isEmpty() ? outcome : tr("%1: %2", "outcome, message").arg(outcome, message);
    }
    QVector<RowGroup> groups;
    for (const RowGroup &group : qAsConst(byKey))
        groups.append(group);
    std::stable_sort(groups.begin(), groups.end(),
                     [](const RowGroup &group, const RowGroup &other) { return group.count > other.count; });
    return groups;
}

int RunDeviceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_run ? 0 : m_run->devices.size();
}

QStringList RunDeviceModel::titles() const
{
    return {tr("Outcome"), tr("Name"), tr("Serial number"), tr("IP address"), tr("Message"), tr("Before → after")};
}

QString RunDeviceModel::text(int row, int column) const
{
    const DeviceRow &recorded = device(row);
    switch (column) {
    case Outcome:
        return RunTexts::outcome(recorded, m_run->line.run.isUnderWay);
    case Name:
        return recorded.name;
    case SerialNumber:
        return recorded.serialNumber;
    case Ip:
        return recorded.ip;
    case Message:
        return recorded.late.isEmpty() ? recorded.message
                                       : tr("%1 (it answered later)", "message").arg(recorded.message);
    default:
        return changesText(row);
    }
}

// "50 → 60" alone would say that the device has 60 now.
QString RunDeviceModel::changesText(int row) const
{
    const QString &changes = m_run->devices.at(row).changes;
    const auto &outcome = device(row).outcome;
    if (changes.isEmpty() || !outcome)
        return changes;
    switch (*outcome) {
    case orda_journal::Outcome::Failed:
    case orda_journal::Outcome::Stopped:
    case orda_journal::Outcome::NotReached:
        return tr("not written: %1", "parameters with before → after").arg(changes);
    case orda_journal::Outcome::Unknown:
        return tr("perhaps written: %1", "parameters with before → after").arg(changes);
    case orda_journal::Outcome::PartlyWritten:
        return tr("partly written: %1", "parameters with before → after").arg(changes);
    default:
        return changes;
    }
}

// Failures first, and among themselves by name.
TableModel::SortKey RunDeviceModel::sortKey(int row, int column) const
{
    if (column == Ip)
        return addressKey(device(row).ip);
    if (column != Outcome)
        return TableModel::sortKey(row, column);
    const auto &outcome = device(row).outcome;
    const int place = outcome ? int(*outcome) : -1;
    return {isFailed(row) ? place - 100 : place, device(row).name};
}

bool RunDeviceModel::isEmphasized(int row, int column) const
{
    return column == Outcome && isFailed(row);
}

} // namespace orda_client
