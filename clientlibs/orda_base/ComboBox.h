#pragma once

#include <orda_base/Export.h>

#include <QComboBox>
#include <QList>
#include <QVariant>

namespace orda_base {

/// A combo box whose items carry values beside their texts.
class ORDA_BASE_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);

    /// Gives the items their values (role Qt::UserRole), by index. There must be one for each item: another number is a
    /// mistake in the program, which is logged, and only the items that both have get values.
    void setItemsData(const QList<QVariant> &values);

    /// Opens a list that is wide enough for all texts, even when the box is narrower.
    void showPopup() override;

protected:
    /// Shows the whole text in the tool tip when the box is too narrow for it.
    bool event(QEvent *event) override;

private:
    bool isTextWhole() const;
};

} // namespace orda_base
