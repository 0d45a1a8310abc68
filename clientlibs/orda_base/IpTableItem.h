#pragma once

#include <orda_base/Export.h>

#include <QTableWidgetItem>

namespace orda_base {

/// A cell that sorts by the number of its IP address; cells without one come last.
class ORDA_BASE_EXPORT IpTableItem : public QTableWidgetItem
{
public:
    /// @param number the address in host byte order; used only while the text is no IPv4 address, so that a changed
    /// text sorts by what it shows
    /// @param type the item type of QTableWidgetItem
    IpTableItem(const QString &ip, quint32 number, int type);

    bool operator<(const QTableWidgetItem &other) const override;
    void setData(int role, const QVariant &value) override;

private:
    quint32 m_number;
};

} // namespace orda_base
