#include "orda_base/PlainTextDelegate.h"

#include <vms_client_sdk/ForeignText.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace orda_base {

QString PlainTextDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    return vms_sdk::displayText(QStyledItemDelegate::displayText(value, locale));
}

bool PlainTextDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                                  const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    // QToolTip takes any text for HTML that looks like it, so it gets HTML in which the text is escaped.
    QString tip = vms_sdk::displayText(index.data(Qt::ToolTipRole).toString());
    const bool hasTip = !tip.isEmpty();
    if (hasTip)
        tip = QLatin1String("<p style='white-space:pre'>") + tip.toHtmlEscaped() + QLatin1String("</p>");
    QToolTip::showText(event->globalPos(), tip, view, view->visualRect(index));
    event->setAccepted(hasTip);
    return hasTip;
}

} // namespace orda_base
