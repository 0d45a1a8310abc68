#pragma once

#include "engine/DevicePlan.h"

#include <QHash>
#include <QJsonObject>
#include <QPair>
#include <QStringList>
#include <QVector>

namespace orda_client {

/// What many devices hold of a family, a column a member, and where they differ from a standard. Plain data: values
/// that are equal are kept once, so that devices are compared by numbers.
class SettingsTable
{
public:
    static constexpr int nothing = -1; ///< in place of a value: the device, or the standard, has none

    struct Column
    {
        int exchange; ///< its place in CfgFamily::exchanges
        QString member; ///< as CfgExchange::membersOf() calls it
        QString name; ///< as values call it: CfgExchange::nameInValues()
        bool hasKey; ///< one of the family's keys: a run can set it
        bool isFirst; ///< of the columns with this name; a device that lacks the member differs here, and only here
    };

    /// What devices are measured by.
    struct Standard
    {
        enum Kind
        {
            None,
            Values, ///< those of a run, as FormPage::values
            Row, ///< what one device holds
            MostFrequent ///< of each member, the value that most devices have
        };
        Kind kind = None;
        QJsonObject values = {};
        int row = nothing;
    };

    /// @param members that have a column from the beginning, such as "stream0.bitRate": those of the page
    SettingsTable(const orda_batchCfg::CfgFamily &family, const QStringList &members, int rows);

    /// What reading a device gave.
    void setHeld(int row, const orda_engine::ObjectsByExchange &held);

    /// Works out all differences anew. Columns may come with it.
    /// @param isWithOthers members without a key count, too
    void compareWith(const Standard &standard, bool isWithOthers);
    /// How many of the counted columns differ; 0 of a device that was not read.
    int differencesIn(int row) const { return m_rows.at(row).differences; }
    bool isDifferent(int row, int column) const;
    /// The standard as values of a run: of members with a key only, and empty when it has none of them.
    QJsonObject standardValues() const;

    /// Those with a key first, in the order of the page; then the others by name.
    QVector<int> columnOrder(bool isWithOthers) const;
    int columnCount() const { return m_columns.size(); }
    const Column &column(int column) const { return m_columns.at(column); }
    /// Which of the column's values the device has, or nothing.
    int cell(int row, int column) const { return m_rows.at(row).cells.value(column, nothing); }
    /// Which of the column's values the standard has, or nothing.
    int standardCell(int column) const;
    QJsonValue value(int column, int cell) const { return m_values.at(column).distinct.at(cell); }
    int valueCount(int column) const { return m_values.at(column).distinct.size(); }

private:
    struct ColumnValues
    {
        QVector<QJsonValue> distinct;
        QVector<int> devices; // how many have it
        QHash<QString, int> places;
    };
    struct Row
    {
        bool isRead = false;
        QVector<int> cells; // by column; may be shorter
        int differences = 0;
    };
    struct Expected
    {
        int cell = nothing;
        bool isRequired = false; // a device that lacks the member differs
    };

    int columnFor(int exchange, const QString &member);
    int cellFor(int column, const QJsonValue &value);
    int exchangeOfKey(const QString &member) const;
    void expectValues(const QJsonObject &values);
    void expectRow(int row);
    void expectMostFrequent();

    const orda_batchCfg::CfgFamily &m_family; // constant, and never deleted
    QVector<Column> m_columns;
    QHash<QPair<int, QString>, int> m_columnOf; // by exchange and member
    QHash<QString, int> m_firstOf; // by name in values
    QVector<ColumnValues> m_values; // by column
    QVector<Expected> m_expected; // by column; may be shorter
    QVector<Row> m_rows;
    bool m_isWithOthers = false;
    int m_read = 0;
};

} // namespace orda_client
