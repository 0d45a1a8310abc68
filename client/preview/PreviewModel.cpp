#include "client/preview/PreviewModel.h"

#include "journal/Outcome.h"

namespace orda_client {

using orda_engine::DevicePlan;
using orda_engine::DeviceReading;

namespace {

constexpr int sortedBy = 60; // characters of the changes

} // namespace

PreviewModel::PreviewModel(QObject *parent)
    : TableModel(parent)
    , m_titles(QStringList(tr("Outcome")) + DeviceCells::titles() + QStringList(tr("What would change")))
{
}

void PreviewModel::setSelection(const orda_engine::Selection &selection, const ParameterTexts &texts)
{
    beginResetModel();
    forget();
    m_selection = selection.withoutDuplicates();
    m_texts = std::make_unique<const ParameterTexts>(texts);
    for (const QString &devId : qAsConst(m_selection.devIds)) {
        m_rowOf.insert(devId, m_rows.size());
        m_rows.append({DeviceCells::of(devId)});
        count(m_rows.constLast(), 1);
    }
    endReset();
}

void PreviewModel::clear()
{
    beginResetModel();
    forget();
    endReset();
}

void PreviewModel::forget()
{
    m_selection = {};
    m_rows.clear();
    m_rowOf.clear();
    m_counts = {};
}

void PreviewModel::take(const DeviceReading &reading)
{
    const int place = m_rowOf.value(reading.devId, -1);
    if (place < 0)
        return;
    Row &row = m_rows[place];
    count(row, -1);
    if (!reading.reach.canBeWritten) {
        row.group = NotReached;
        row.changes = reading.reach.text;
    } else if (reading.code == orda_journal::StoppedCode) {
        row.group = NotRead;
    } else if (reading.code != 0) {
        row.group = Failed;
        row.changes = reading.message;
    } else {
        takePlan(&row, reading);
    }
    count(row, 1);
}

void PreviewModel::takePlan(Row *row, const DeviceReading &reading) const
{
    const DevicePlan plan = m_selection.planOf(reading.devId, reading.held);
    row->isLacking = !plan.lacking.isEmpty();
    row->group = !plan.changes.isEmpty() || !plan.added.isEmpty() ? WouldChange : row->isLacking ? Lacks : HasAlready;
    row->changes = changeTexts(plan).join(QStringLiteral("; "));
}

QStringList PreviewModel::changeTexts(const DevicePlan &plan) const
{
    QStringList changes;
    for (const orda_engine::MemberChange &change : plan.changes)
        changes.append(m_texts->change(change.member, change.before, change.after));
    for (const orda_engine::MemberChange &change : plan.added)
        changes.append(tr("added, as the device does not have it: %1", "parameter: nothing → value")
                           .arg(m_texts->change(change.member, change.before, change.after)));
    for (const QString &member : plan.lacking)
        changes.append(tr("the device lacks %1", "parameter").arg(m_texts->title(member)));
    changes.removeDuplicates(); // two exchanges may have the same parameter
    return changes;
}

void PreviewModel::refresh()
{
    if (!m_rows.isEmpty())
        rowsChanged(0, m_rows.size() - 1);
}

void PreviewModel::count(const Row &row, int difference)
{
    for (int group = All; group < GroupCount; ++group)
        if (group == All || group == row.group || (group == Lacks && row.isLacking))
            m_counts[std::size_t(group)] += difference;
}

bool PreviewModel::isIn(int row, Group group) const
{
    const Row &shown = m_rows.at(row);
    return group == All || shown.group == group || (group == Lacks && shown.isLacking);
}

QStringList PreviewModel::changing() const
{
    QStringList devIds;
    for (const Row &row : m_rows)
        if (row.group == WouldChange)
            devIds.append(row.device.devId);
    return devIds;
}

int PreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QString PreviewModel::outcomeText(Group group)
{
    switch (group) {
    case WouldChange:
        return tr("Would change");
    case HasAlready:
        return tr("Has it already");
    case Lacks:
        return tr("Cannot be set", "the device lacks the parameters");
    case NotReached:
        return tr("Not reached");
    case Failed:
        return tr("Could not be read");
    case All:
    case NotRead:
    case GroupCount:
        break;
    }
    return tr("Not read");
}

QString PreviewModel::text(int row, int column) const
{
    const Row &shown = m_rows.at(row);
    if (column == OutcomeColumn)
        return outcomeText(shown.group);
    return column == ChangesColumn ? shown.changes : shown.device.text(column - DeviceColumn);
}

TableModel::SortKey PreviewModel::sortKey(int row, int column) const
{
    const Row &shown = m_rows.at(row);
    if (column == OutcomeColumn)
        return {shown.group};
    if (column == DeviceColumn + DeviceCells::Address)
        return addressKey(shown.device.ip);
    if (column == ChangesColumn)
        return {0, shown.changes.left(sortedBy)}; // they may be long, and comparing them takes its time
    return TableModel::sortKey(row, column);
}

bool PreviewModel::isEmphasized(int row, int column) const
{
    const Group group = m_rows.at(row).group;
    return column == OutcomeColumn && (group == NotReached || group == Failed);
}

} // namespace orda_client
