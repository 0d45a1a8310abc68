#pragma once

#include <orda_base/Export.h>

#include <QTableWidgetItem>

namespace orda_base {

/// A cell that sorts by nameCollator().
class ORDA_BASE_EXPORT NameTableItem : public QTableWidgetItem
{
public:
    explicit NameTableItem(const QString &name);

    bool operator<(const QTableWidgetItem &other) const override;
};

} // namespace orda_base
