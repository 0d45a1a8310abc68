#pragma once

#include <QString>
#include <QTableWidgetItem>

namespace orda_base {

/// A cell with an IP address; the table owns it. A text that is set later sorts right too.
class IpTableItem : public QTableWidgetItem
{
public:
    /// @param ip may be empty @param number the address in host byte order @param type the item's; the module gives 0
    IpTableItem(const QString &ip, quint32 number, int type);

    bool operator<(const QTableWidgetItem &other) const override;
};

} // namespace orda_base
