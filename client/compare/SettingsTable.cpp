#include "client/compare/SettingsTable.h"

#include "engine/ChangeTexts.h"
#include "engine/Selection.h"

#include <algorithm>

namespace orda_client {

using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgFamily;
using orda_batchCfg::CfgKey;

namespace {

/// Equal for values that are equal, and quick for those that are most frequent.
QString placeOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return QLatin1Char('s') + value.toString();
    case QJsonValue::Double:
        return QLatin1Char('n') + QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    default:
        return QLatin1Char('j') + orda_engine::textOf(value);
    }
}

const CfgKey *keyOf(const CfgFamily &family, const QString &member)
{
    const QString name = member.section(QLatin1Char('.'), -1);
    const auto found =
        std::find_if(family.keys.cbegin(), family.keys.cend(), [&name](const CfgKey &key) { return key.name == name; });
    return found == family.keys.cend() ? nullptr : &*found;
}

} // namespace

SettingsTable::SettingsTable(const CfgFamily &family, const QStringList &members, int rows)
    : m_family(family)
    , m_rows(rows)
{
    for (const QString &member : members)
        columnFor(exchangeOfKey(member), member);
}

int SettingsTable::exchangeOfKey(const QString &member) const
{
    const CfgKey *key = keyOf(m_family, member);
    const int place = key && key->flag != 0 ? m_family.exchangeFrom(0, key->flag) : 0;
    return std::max(place, 0);
}

int SettingsTable::columnFor(int exchange, const QString &member)
{
    const auto known = m_columnOf.constFind({exchange, member});
    if (known != m_columnOf.constEnd())
        return *known;
    const int column = m_columns.size();
    const QString name = m_family.exchanges.at(exchange).nameInValues(member);
    const bool isFirst = member == name && !m_firstOf.contains(name);
    if (isFirst)
        m_firstOf.insert(name, column);
    m_columnOf.insert({exchange, member}, column);
    m_columns.append({exchange, member, name, keyOf(m_family, member) != nullptr, isFirst});
    m_values.append(ColumnValues());
    return column;
}

int SettingsTable::cellFor(int column, const QJsonValue &value)
{
    ColumnValues &values = m_values[column];
    const QString place = placeOf(value);
    const auto known = values.places.constFind(place);
    if (known != values.places.constEnd())
        return *known;
    values.places.insert(place, values.distinct.size());
    values.distinct.append(value);
    values.devices.append(0);
    return values.distinct.size() - 1;
}

void SettingsTable::setHeld(int row, const orda_engine::ObjectsByExchange &held)
{
    Row &device = m_rows[row];
    m_read += device.isRead ? 0 : 1;
    device.isRead = true;
    for (auto exchange = held.begin(); exchange != held.end(); ++exchange) {
        const QJsonObject members = m_family.exchanges.at(exchange.key()).membersOf(*exchange);
        for (auto member = members.begin(); member != members.end(); ++member) {
            const int column = columnFor(exchange.key(), member.key());
            while (device.cells.size() <= column)
                device.cells.append(nothing);
            device.cells[column] = cellFor(column, *member);
            ++m_values[column].devices[device.cells.at(column)];
        }
    }
}

int SettingsTable::standardCell(int column) const
{
    return m_expected.value(column).cell;
}

bool SettingsTable::isDifferent(int row, int column) const
{
    const Expected expected = m_expected.value(column);
    const bool counts = m_isWithOthers || m_columns.at(column).hasKey;
    if (expected.cell == nothing || !counts || !m_rows.at(row).isRead)
        return false;
    const int held = cell(row, column);
    return held == nothing ? expected.isRequired : held != expected.cell;
}

void SettingsTable::compareWith(const Standard &standard, bool isWithOthers)
{
    m_isWithOthers = isWithOthers;
    m_expected.clear();
    switch (standard.kind) {
    case Standard::None:
        break;
    case Standard::Values:
        expectValues(standard.values);
        break;
    case Standard::Row:
        expectRow(standard.row);
        break;
    case Standard::MostFrequent:
        expectMostFrequent();
        break;
    }
    for (int row = 0; row < m_rows.size(); ++row) {
        int differences = 0;
        for (int column = 0; column < m_columns.size(); ++column)
            differences += isDifferent(row, column) ? 1 : 0;
        m_rows[row].differences = differences;
    }
}

void SettingsTable::expectValues(const QJsonObject &values)
{
    const orda_engine::Selection selection{&m_family, {}, values};
    const QVector<int> exchanges = values.isEmpty() ? QVector<int>() : m_family.exchangesOf(selection.flagsFor(values));
    for (const int exchange : exchanges) {
        const QJsonObject asked = m_family.exchanges.at(exchange).askedBy(values);
        for (auto member = asked.begin(); member != asked.end(); ++member)
            if (!m_firstOf.contains(member.key())) // no device has it
                columnFor(exchangeOfKey(member.key()), member.key());
        m_expected.resize(m_columns.size());
        for (int column = 0; column < m_columns.size(); ++column) {
            const Column &compared = m_columns.at(column);
            const auto wanted = asked.constFind(compared.name);
            // One value is for all entries of its number, as many as a device has of them.
            if (compared.exchange == exchange && wanted != asked.constEnd())
                m_expected[column] = {cellFor(column, *wanted), compared.isFirst};
        }
    }
}

void SettingsTable::expectRow(int row)
{
    m_expected.resize(m_columns.size());
    for (int column = 0; column < m_columns.size(); ++column) {
        const int own = cell(row, column);
        if (own != nothing) {
            m_expected[column] = {own, true};
            continue;
        }
        const int first = m_columnOf.value({m_columns.at(column).exchange, m_columns.at(column).name}, nothing);
        if (first != nothing && cell(row, first) != nothing)
            m_expected[column] = {cellFor(column, value(first, cell(row, first))), false};
    }
}

void SettingsTable::expectMostFrequent()
{
    m_expected.resize(m_columns.size());
    for (int column = 0; column < m_columns.size(); ++column) {
        const ColumnValues &values = m_values.at(column);
        int best = nothing;
        int lacking = m_read;
        for (int place = 0; place < values.distinct.size(); ++place) {
            lacking -= values.devices.at(place);
            const int lead =
                best == nothing ? values.devices.at(place) : values.devices.at(place) - values.devices.at(best);
            const bool isBefore =
                lead == 0 && best != nothing && placeOf(values.distinct.at(place)) < placeOf(values.distinct.at(best));
            if (lead > 0 || isBefore) // the same one whatever order the devices came in
                best = place;
        }
        const bool isShared = best != nothing && (values.devices.at(best) > 1 || m_read == 1);
        if (isShared) // names and addresses, of which each device has its own, make no standard
            m_expected[column] = {best, values.devices.at(best) >= lacking};
    }
}

QJsonObject SettingsTable::standardValues() const
{
    QJsonObject members;
    for (int column = 0; column < m_columns.size(); ++column) {
        const Column &kept = m_columns.at(column);
        const Expected expected = m_expected.value(column);
        if (kept.hasKey && kept.isFirst && expected.cell != nothing && expected.isRequired)
            members.insert(kept.name, value(column, expected.cell));
    }
    const auto withList = std::find_if(m_family.exchanges.cbegin(), m_family.exchanges.cend(),
                                       [](const CfgExchange &exchange) { return !exchange.listMember.isEmpty(); });
    return (withList == m_family.exchanges.cend() ? m_family.exchanges.constFirst() : *withList).toValues(members);
}

QVector<int> SettingsTable::columnOrder(bool isWithOthers) const
{
    QVector<int> withKey, others;
    for (int column = 0; column < m_columns.size(); ++column)
        (m_columns.at(column).hasKey ? withKey : others).append(column);
    std::sort(others.begin(), others.end(),
              [this](int a, int b) { return m_columns.at(a).member < m_columns.at(b).member; });
    return isWithOthers ? withKey + others : withKey;
}

} // namespace orda_client
