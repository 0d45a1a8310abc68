#include <orda_base/IpTableItem.h>

#include <orda_base/SortOrder.h>

namespace orda_base {

IpTableItem::IpTableItem(const QString &ip, quint32 number, int type)
    : QTableWidgetItem(ip, type)
    , m_number(ipv4Number(ip).value_or(number))
{
}

void IpTableItem::setData(int role, const QVariant &value)
{
    QTableWidgetItem::setData(role, value);
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        m_number = ipv4Number(text()).value_or(m_number);
}

bool IpTableItem::operator<(const QTableWidgetItem &other) const
{
    const auto *otherIp = dynamic_cast<const IpTableItem *>(&other);
    if (!otherIp)
        return QTableWidgetItem::operator<(other);
    if (text().isEmpty() || other.text().isEmpty())
        return !text().isEmpty() && other.text().isEmpty();
    return m_number < otherIp->m_number;
}

} // namespace orda_base
