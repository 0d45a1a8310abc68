#include <orda_base/NameTableItem.h>

#include <orda_base/SortOrder.h>

namespace orda_base {

NameTableItem::NameTableItem(const QString &name)
    : QTableWidgetItem(name)
{
}

bool NameTableItem::operator<(const QTableWidgetItem &other) const
{
    return nameCollator().compare(text(), other.text()) < 0;
}

} // namespace orda_base
