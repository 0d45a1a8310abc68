#include "orda_base/ComboBox.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLoggingCategory>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>

namespace orda_base {

namespace {

Q_LOGGING_CATEGORY(logUi, "orda.ui", QtWarningMsg)

constexpr int maxShownItems = 16; // a longer list gets a scroll bar

} // namespace

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
{
    setMaxVisibleItems(maxShownItems);
    setItemDelegate(new QStyledItemDelegate(this)); // the default one ignores the row height of the theme
}

void ComboBox::setItemsData(const QList<QVariant> &values)
{
    if (values.size() != count())
        qCWarning(logUi) << objectName() << "has" << count() << "items but gets" << values.size() << "values";
    for (int i = 0; i < qMin(count(), values.size()); ++i)
        setItemData(i, values.at(i));
}

bool ComboBox::isTextWhole() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().horizontalAdvance(currentText()) <= room.width();
}

bool ComboBox::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(isTextWhole() ? QString() : currentText());
    return QComboBox::event(event);
}

void ComboBox::showPopup()
{
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width());
    QComboBox::showPopup();
}

} // namespace orda_base
