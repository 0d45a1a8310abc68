#pragma once

#include <QStyledItemDelegate>

namespace orda_base {

/// Shows texts from outside, such as names of devices, safely: tool tips are never read as HTML, and invisible
/// characters that could change how the others look are shown as a mark. The data of the cells does not change.
class PlainTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

} // namespace orda_base
