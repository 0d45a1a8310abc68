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

    /// Gives the items their values (role Qt::UserRole), by index. Their number must be that of the items; a difference
    /// is a mistake in the program: it is logged, and the values reach as far as they go.
    void setItemsData(const QList<QVariant> &values);

    /// The list that pops up is wide enough for all texts, however narrow the box is.
    void showPopup() override;

protected:
    /// A text that has no room stands as a whole in the tool tip.
    bool event(QEvent *event) override;

private:
    bool isTextWhole() const;
};

} // namespace orda_base
