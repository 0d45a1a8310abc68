#pragma once

#include <QObject>
#include <QVector>

QT_BEGIN_NAMESPACE
class QTableWidget;
class QTableWidgetItem;
QT_END_NAMESPACE

namespace orda_batchCfg {

/// The order numbers of a list: rows that can be seen, from 1, top to bottom. They are worked out when they are read:
/// with thousands of devices coming and going, writing the numbers of all rows below into their cells would take the
/// time of all else together. Tables with the property "computedOrderNumbers" need no renumbering.
class OrderNumbers : public QObject
{
    Q_OBJECT

public:
    /// @param table owns this object and must have its columns
    explicit OrderNumbers(QTableWidget *table);

    /// A cell whose text is the order number of the row that it is in; assistive technology is told the text of the
    /// cell beside it too. The table that it is put into owns it.
    QTableWidgetItem *makeItem();

private:
    class Item;
    int numberOf(const QTableWidgetItem *item);
    QString rowText(const QTableWidgetItem *item);

    QTableWidget *m_table;
    QVector<int> m_numbers; // by row; empty when they have to be counted anew
};

} // namespace orda_batchCfg
