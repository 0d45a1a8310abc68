#pragma once

#include <QString>
#include <QTableWidgetItem>

namespace orda_base {

/// A cell with a name; the table owns it. A text that is set later sorts right too.
class NameTableItem : public QTableWidgetItem
{
public:
    explicit NameTableItem(const QString &name);

    bool operator<(const QTableWidgetItem &other) const override;
};

} // namespace orda_base
