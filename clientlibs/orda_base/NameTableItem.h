#pragma once

#include <QTableWidgetItem>

namespace orda_base {

/// A cell that sorts by nameCollator().
class NameTableItem : public QTableWidgetItem
{
public:
    explicit NameTableItem(const QString &name);

    bool operator<(const QTableWidgetItem &other) const override;
};

} // namespace orda_base
