#include "orda_base/IpTableItem.h"

#include <arpa/inet.h>

namespace orda_base {

namespace {

// The number of a dotted address; false for every other text.
bool parseIpv4(const QString &text, quint32 *number)
{
    in_addr address = {};
    if (::inet_pton(AF_INET, text.toLatin1().constData(), &address) != 1)
        return false;
    *number = ntohl(address.s_addr);
    return true;
}

} // namespace

IpTableItem::IpTableItem(const QString &ip, quint32 number, int type)
    : QTableWidgetItem(ip, type)
    , m_number(number)
{
    parseIpv4(ip, &m_number);
}

void IpTableItem::setData(int role, const QVariant &value)
{
    QTableWidgetItem::setData(role, value);
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        parseIpv4(text(), &m_number);
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
