#include "client/devices/DevicesModel.h"

#include "client/devices/DeviceStates.h"
#include "client/devices/LastOutcomes.h"
#include "client/runs/RunTexts.h"

#include <orda_data/DevsMgrData.h>

#include <QMap>

#include <algorithm>

namespace orda_client {

using orda_engine::ReachReason;

namespace {

constexpr int kindCamera = 1;
constexpr int kindRecorder = 6;

QString groupKey(DeviceState::Kind kind)
{
    return QString::number(kind);
}

QString groupKey(DeviceState::Kind kind, ReachReason reason)
{
    return QStringLiteral("%1/%2").arg(kind).arg(int(reason));
}

} // namespace

DevicesModel::DevicesModel(const DeviceStates *states, const LastOutcomes *outcomes, QObject *parent)
    : TableModel(parent)
    , m_states(states)
    , m_outcomes(outcomes)
{
    loadDevices();
}

void DevicesModel::loadDevices()
{
    beginResetModel();
    m_rows.clear();
    m_rowOf.clear();
    m_timeTexts.clear();
    const QList<vms_sdk::DevInfo> devices = orda_data::DevsMgrData::instance().getAllDevs(false);
    m_rows.reserve(devices.size());
    for (const vms_sdk::DevInfo &dev : devices) {
        Row row{dev.id, dev.name, dev.serialNumber, dev.ip, dev.url, dev.group, dev.kindCode, dev.protocol};
        takeState(&row);
        takeOutcome(&row);
        m_rowOf.insert(dev.id, m_rows.size());
        m_rows.append(row);
    }
    endReset();
}

void DevicesModel::takeState(Row *row)
{
    const DeviceState state = m_states->of(row->devId);
    if (state.since != row->state.since)
        row->since = timeText(state.since);
    row->state = state;
}

/// Thousands of devices come on line in one second, and a time is slow to put into words.
QString DevicesModel::timeText(qint64 time)
{
    constexpr qint64 second = 1000;
    QString &text = m_timeTexts[time / second];
    if (text.isEmpty())
        text = RunTexts::time(time);
    return text;
}

void DevicesModel::takeOutcome(Row *row) const
{
    vms_sdk::DevInfo device;
    device.id = row->devId;
    device.serialNumber = row->serialNumber;
    const LastOutcomes::LastOutcome *last = m_outcomes->of(device);
    row->began = last ? last->latest.began : 0;
    row->outcome = last ? *last->latest.device.outcome : orda_journal::Outcome::Done;
    row->outcomeText = last ? last->text : QString();
    row->lastRun = last ? last->time : QString();
}

void DevicesModel::updateStates()
{
    int first = m_rows.size();
    int last = -1;
    for (int i = 0; i < m_rows.size(); ++i) {
        Row &row = m_rows[i];
        if (row.state == m_states->of(row.devId))
            continue;
        takeState(&row);
        first = std::min(first, i);
        last = i;
    }
    if (last < 0)
        return;
    rowsChanged(first, last);
}

void DevicesModel::updateOutcomes()
{
    if (m_rows.isEmpty())
        return;
    for (Row &row : m_rows)
        takeOutcome(&row);
    rowsChanged(0, m_rows.size() - 1);
}

QVector<RowGroup> DevicesModel::groups(const QString &kept) const
{
    QMap<QString, int> counts; // by key
    for (const Row &row : m_rows) {
        ++counts[groupKey(row.state.kind)];
        ++counts[groupKey(row.state.kind, row.state.reason)];
    }
    QVector<RowGroup> groups;
    for (const auto kind : {DeviceState::CanBeConfigured, DeviceState::OffLine, DeviceState::NotOffered}) {
        groups.append({groupKey(kind), DeviceState::text(kind), counts.value(groupKey(kind))});
        for (int number = int(ReachReason::NoSuchDevice); number <= int(ReachReason::Limits); ++number) {
            const auto reason = ReachReason(number);
            const QString key = groupKey(kind, reason);
            if (counts.contains(key) || key == kept)
                groups.append({key, DeviceState::text(kind, reason), counts.value(key)});
        }
    }
    return groups;
}

bool DevicesModel::isInGroup(int row, const QString &key) const
{
    const DeviceState &state = m_rows.at(row).state;
    return key.isEmpty() || key == groupKey(state.kind) || key == groupKey(state.kind, state.reason);
}

void DevicesModel::resetRows()
{
    beginResetModel();
    endReset();
}

int DevicesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QStringList DevicesModel::titles() const
{
    return {tr("Name"),          tr("State"),   tr("Since", "a time, from which on a device has had its state"),
            tr("Serial number"), tr("Address"), tr("Kind"),
            tr("Protocol"),      tr("Group"),   tr("Last outcome"),
            tr("Last run")};
}

QString DevicesModel::text(int row, int column) const
{
    const Row &device = m_rows.at(row);
    switch (column) {
    case Name:
        return device.name;
    case State:
        return device.state.text();
    case SerialNumber:
        return device.serialNumber;
    case Address:
        return device.ip.isEmpty() ? device.url : device.ip;
    case Kind:
        return device.kindCode == kindCamera   ? tr("Camera")
             : device.kindCode == kindRecorder ? tr("Recorder")
                                               : tr("Other", "a kind of device");
    case Protocol: // by its name, which no language changes
        return device.protocol == vms_sdk::DevProtocol::Onvif ? QStringLiteral("ONVIF") : QStringLiteral("vms-device");
    case Group:
        return device.group;
    case Since:
        return device.since;
    case Outcome:
        return device.outcomeText;
    default:
        return device.lastRun;
    }
}

TableModel::SortKey DevicesModel::sortKey(int row, int column) const
{
    const Row &device = m_rows.at(row);
    switch (column) {
    case State: {
        constexpr int manyReasons = 100;
        return {device.state.kind * manyReasons + int(device.state.reason), device.name};
    }
    case Address:
        return device.ip.isEmpty() && !device.url.isEmpty() ? addressKey(device.url) : addressKey(device.ip);
    case Kind:
        return {device.kindCode, device.name};
    case Group:
        return {device.group.isEmpty() ? 1 : 0, device.group}; // those without one come last
    case Since:
        return {device.state.since};
    case Outcome:
        return {device.began == 0 ? -1 : int(device.outcome), device.outcomeText};
    case LastRun:
        return {device.began};
    default:
        return TableModel::sortKey(row, column);
    }
}

bool DevicesModel::isEmphasized(int row, int column) const
{
    return column == State && m_rows.at(row).state.kind == DeviceState::OffLine;
}

} // namespace orda_client
