#include "shell/OrderNumbers.h"

#include <QHeaderView>
#include <QTableWidget>

namespace orda_batchCfg {

class OrderNumbers::Item : public QTableWidgetItem
{
public:
    explicit Item(OrderNumbers *numbers)
        : m_numbers(numbers)
    {
    }

    QVariant data(int role) const override
    {
        if (role == Qt::DisplayRole)
            return QString::number(m_numbers->numberOf(this));
        if (role == Qt::AccessibleTextRole)
            return m_numbers->rowText(this);
        return QTableWidgetItem::data(role);
    }

    void setData(int role, const QVariant &value) override
    {
        if (role != Qt::DisplayRole && role != Qt::EditRole)
            QTableWidgetItem::setData(role, value);
    }

private:
    OrderNumbers *m_numbers;
};

OrderNumbers::OrderNumbers(QTableWidget *table)
    : QObject(table)
    , m_table(table)
{
    table->setProperty("computedOrderNumbers", true);
    const auto countAnew = [this] { m_numbers.clear(); };
    const QAbstractItemModel *model = table->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, countAnew);
    connect(model, &QAbstractItemModel::rowsRemoved, this, countAnew);
    connect(model, &QAbstractItemModel::layoutChanged, this, countAnew);
    // A row that is hidden or shown again gets another height.
    connect(table->verticalHeader(), &QHeaderView::sectionResized, this, countAnew);
}

QTableWidgetItem *OrderNumbers::makeItem()
{
    return new Item(this);
}

int OrderNumbers::numberOf(const QTableWidgetItem *item)
{
    if (m_numbers.isEmpty()) {
        m_numbers.reserve(m_table->rowCount());
        int number = 0;
        for (int row = 0; row < m_table->rowCount(); ++row) {
            if (!m_table->isRowHidden(row))
                ++number;
            m_numbers.append(number);
        }
    }
    return m_numbers.value(m_table->row(item));
}

QString OrderNumbers::rowText(const QTableWidgetItem *item)
{
    const QTableWidgetItem *next = m_table->item(item->row(), item->column() + 1);
    return QStringLiteral("%1 %2").arg(numberOf(item)).arg(next ? next->text() : QString());
}

} // namespace orda_batchCfg
