#pragma once

#include <QComboBox>
#include <QList>
#include <QVariant>

namespace orda_base {

/// A combo box whose items carry values beside their texts.
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);

    /// Gives the items their values (role Qt::UserRole), by index. Their number must be that of the items; a difference
    /// is a mistake in the program: it is logged, and the values reach as far as they go.
    void setItemsData(const QList<QVariant> &values);

    /// Whether the current text has room; else the tool tip has the whole of it. The list that pops up is always wide
    /// enough.
    bool isTextWhole() const;

    void showPopup() override;

protected:
    bool event(QEvent *event) override;
    /// Scrolling over a page must not change a value by the way.
    void wheelEvent(QWheelEvent *event) override;
};

} // namespace orda_base
