#include "orda_base/ComboBox.h"

#include <QLoggingCategory>
#include <QWheelEvent>

namespace orda_base {

namespace {

Q_LOGGING_CATEGORY(logUi, "orda.ui", QtWarningMsg)

} // namespace

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
{
}

void ComboBox::setItemsData(const QList<QVariant> &values)
{
    if (values.size() != count())
        qCWarning(logUi) << objectName() << "has" << count() << "items but gets" << values.size() << "values";
    for (int i = 0; i < qMin(count(), values.size()); ++i)
        setItemData(i, values.at(i));
}

void ComboBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace orda_base
