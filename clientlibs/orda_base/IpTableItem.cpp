#include "orda_base/IpTableItem.h"

#include <QStringList>

namespace orda_base {

namespace {

// The number of a dotted address; false for every other text.
bool parseIpv4(const QString &text, quint32 *number)
{
    const QVector<QStringRef> bytes = text.splitRef(QLatin1Char('.'));
    if (bytes.size() != 4)
        return false;
    quint32 result = 0;
    for (const QStringRef &byte : bytes) {
        bool isNumber = false;
        const ushort value = byte.toUShort(&isNumber);
        if (!isNumber || value > 255)
            return false;
        result = result << 8U | value;
    }
    *number = result;
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
