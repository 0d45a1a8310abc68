#include "client/compare/CompareModel.h"

#include "journal/Outcome.h"

#include <vms_client_sdk/ForeignText.h>

#include <QLocale>
#include <QTextDocument>

#include <algorithm>
#include <limits>

namespace orda_client {

CompareModel::CompareModel(QObject *parent)
    : TableModel(parent)
{
    showColumns({});
}

void CompareModel::clear()
{
    beginResetModel();
    forget();
    showColumns({});
    endReset();
}

void CompareModel::forget()
{
    m_table.reset();
    m_texts.reset();
    m_rows.clear();
    m_rowOf.clear();
    m_valueTexts.clear();
}

void CompareModel::setDevices(const orda_batchCfg::CfgFamily &family, const QStringList &devIds,
                              const QStringList &members, const ParameterTexts &texts)
{
    beginResetModel();
    forget();
    m_table = std::make_unique<SettingsTable>(family, members, devIds.size());
    m_texts = std::make_unique<const ParameterTexts>(texts);
    for (const QString &devId : devIds) {
        m_rowOf.insert(devId, m_rows.size());
        m_rows.append({DeviceCells::of(devId), false, tr("not read yet")});
    }
    showColumns(m_table->columnOrder(m_showsOthers));
    addTexts();
    endReset();
}

void CompareModel::take(const orda_engine::DeviceReading &reading)
{
    const int row = m_rowOf.value(reading.devId, -1);
    if (row < 0)
        return;
    Row &taken = m_rows[row];
    taken.isRead = reading.isRead();
    if (taken.isRead)
        m_table->setHeld(row, reading.held);
    else if (!reading.reach.canBeWritten)
        taken.why = tr("not reached: %1", "reason").arg(reading.reach.text);
    else if (reading.code == orda_journal::StoppedCode)
        taken.why = tr("not read");
    else
        taken.why = tr("could not be read: %1", "message of the device").arg(reading.message);
}

void CompareModel::refresh()
{
    if (!m_table)
        return;
    m_table->compareWith(m_standard, m_showsOthers);
    const QVector<int> columns = m_table->columnOrder(m_showsOthers);
    if (columns == m_shown) {
        addTexts();
        if (!m_rows.isEmpty())
            rowsChanged(0, m_rows.size() - 1);
        return;
    }
    beginResetModel();
    showColumns(columns);
    addTexts();
    endReset();
}

void CompareModel::showColumns(const QVector<int> &columns)
{
    m_shown = columns;
    m_titles = QStringList(tr("Differs in")) + DeviceCells::titles();
    QHash<QString, int> times;
    for (const int column : columns) {
        // Two exchanges may have members of one name.
        const QString &member = m_table->column(column).member;
        const int time = ++times[member];
        const QString title = m_texts->title(member);
        m_titles.append(time == 1 ? title : QStringLiteral("%1 (%2)").arg(title).arg(time));
    }
}

/// What a cell says is worked out once for all devices that have the same.
void CompareModel::addTexts()
{
    m_valueTexts.resize(m_table->columnCount());
    for (int column = 0; column < m_valueTexts.size(); ++column)
        for (int cell = m_valueTexts.at(column).size(); cell < m_table->valueCount(column); ++cell)
            m_valueTexts[column].append(m_texts->value(m_table->column(column).member, m_table->value(column, cell)));
}

QString CompareModel::valueText(int column, int cell) const
{
    return cell == SettingsTable::nothing ? QStringLiteral("–") : m_valueTexts.at(column).value(cell);
}

int CompareModel::readCount() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(), [](const Row &row) { return row.isRead; }));
}

int CompareModel::differentCount() const
{
    int count = 0;
    for (int row = 0; row < m_rows.size(); ++row)
        count += isDifferent(row) ? 1 : 0;
    return count;
}

int CompareModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QString CompareModel::text(int row, int column) const
{
    const Row &shown = m_rows.at(row);
    if (column >= DeviceColumn && column < FirstMember)
        return shown.device.text(column - DeviceColumn);
    if (column == DifferencesColumn) {
        if (!shown.isRead)
            return shown.why;
        return m_standard.kind == SettingsTable::Standard::None ? QString()
                                                                : QLocale().toString(m_table->differencesIn(row));
    }
    if (!shown.isRead)
        return {};
    const int place = m_shown.at(column - FirstMember);
    return valueText(place, m_table->cell(row, place));
}

TableModel::SortKey CompareModel::sortKey(int row, int column) const
{
    const Row &shown = m_rows.at(row);
    if (column == DifferencesColumn)
        return shown.isRead ? SortKey{m_table->differencesIn(row)} : SortKey{-1, shown.why};
    if (column == DeviceColumn + DeviceCells::Address)
        return addressKey(shown.device.ip);
    if (column < FirstMember)
        return TableModel::sortKey(row, column);
    const int place = m_shown.at(column - FirstMember);
    const int cell = m_table->cell(row, place);
    if (cell == SettingsTable::nothing)
        return {std::numeric_limits<qint64>::max()};
    const QJsonValue value = m_table->value(place, cell);
    return value.isDouble() ? SortKey{qint64(value.toDouble()), text(row, column)} : SortKey{0, text(row, column)};
}

bool CompareModel::isEmphasized(int row, int column) const
{
    if (column == DifferencesColumn)
        return isDifferent(row) || !m_rows.at(row).isRead;
    return column >= FirstMember && m_table->isDifferent(row, m_shown.at(column - FirstMember));
}

QVariant CompareModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::ToolTipRole || index.column() < FirstMember || !isEmphasized(index.row(), index.column()))
        return TableModel::data(index, role);
    const int place = m_shown.at(index.column() - FirstMember);
    return Qt::convertFromPlainText(tr("%1, and the standard: %2", "value of the device, value of the standard")
                                        .arg(vms_sdk::displayText(text(index.row(), index.column())),
                                             vms_sdk::displayText(valueText(place, m_table->standardCell(place)))),
                                    Qt::WhiteSpaceNormal);
}

} // namespace orda_client
