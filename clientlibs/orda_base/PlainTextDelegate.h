#pragma once

#include <QStyledItemDelegate>

namespace orda_base {

/// Shows texts that others have chosen, such as the names of devices, as they stand: tool tips are never read as HTML,
/// and characters that cannot be seen but change the order or the look of others are shown as a mark. The data of the
/// cells stays as it is.
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
