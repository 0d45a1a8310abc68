#pragma once

#include <QComboBox>
#include <QList>
#include <QVariant>

namespace orda_base {

/// A combo box of the pages; its texts are added by addItem().
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);

    /// Gives the items their values, by index, for currentData().
    void setItemsData(const QList<QVariant> &values);
};

} // namespace orda_base
