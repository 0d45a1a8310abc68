#include "XCOMMON/RowHeader.h"

namespace XCOMMON {

RowHeader::RowHeader(QWidget *parent)
    : QHeaderView(Qt::Vertical, parent)
{
    setSectionsClickable(true);
    setHighlightSections(true);
}

void RowHeader::sectionsInserted(const QModelIndex &parent, int logicalFirst, int logicalLast)
{
    if (!parent.isValid() && logicalFirst >= count())
        initializeSections(logicalFirst, logicalLast);
    else
        QHeaderView::sectionsInserted(parent, logicalFirst, logicalLast);
}

} // namespace XCOMMON
