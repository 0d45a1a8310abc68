#pragma once

#include <QObject>
#include <QVector>

QT_BEGIN_NAMESPACE
class QTableWidget;
class QTableWidgetItem;
QT_END_NAMESPACE

namespace orda_batchCfg {

/// The order numbers of a list: its visible rows count from 1, top to bottom. A number is computed when it is read,
/// because writing new numbers into the cells of thousands of rows for each device that comes or goes takes too long.
/// The table gets the property "computedOrderNumbers", which says that nobody has to number its rows.
class OrderNumbers : public QObject
{
    Q_OBJECT

public:
    /// @param table owns this object and must have its columns
    explicit OrderNumbers(QTableWidget *table);

    /// A cell whose text is the order number of its row; for assistive technology the text of the next cell follows. The
    /// table that it is put into owns it.
    QTableWidgetItem *makeItem();

private:
    class Item;
    int numberOf(const QTableWidgetItem *item);
    QString rowText(const QTableWidgetItem *item);

    QTableWidget *m_table;
    QVector<int> m_numbers; // by row; empty when they have to be counted again
};

} // namespace orda_batchCfg
