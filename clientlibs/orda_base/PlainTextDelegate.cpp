#include "orda_base/PlainTextDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>

namespace orda_base {

namespace {

// Bidirectional controls and characters without a width are of the category Other_Format.
bool isUnseen(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QString PlainTextDelegate::visible(const QString &text)
{
    QVector<uint> characters = text.toUcs4();
    std::replace_if(characters.begin(), characters.end(), isUnseen, uint(QChar::ReplacementCharacter));
    return QString::fromUcs4(characters.constData(), characters.size());
}

QString PlainTextDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    return visible(QStyledItemDelegate::displayText(value, locale));
}

bool PlainTextDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                                  const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    // QToolTip reads everything as HTML that looks like it, so it is given HTML that shows the text as it stands.
    QString tip = visible(index.data(Qt::ToolTipRole).toString());
    const bool hasTip = !tip.isEmpty();
    if (hasTip)
        tip = QLatin1String("<p style='white-space:pre'>") + tip.toHtmlEscaped() + QLatin1String("</p>");
    QToolTip::showText(event->globalPos(), tip, view, view->visualRect(index));
    event->setAccepted(hasTip);
    return hasTip;
}

} // namespace orda_base
