#include "orda_base/RowHeader.h"

#include <QMetaMethod>

namespace orda_base {

RowHeader::RowHeader(QWidget *parent)
    : QHeaderView(Qt::Vertical, parent)
{
    setSectionsClickable(true);
    setHighlightSections(true);
}

void RowHeader::setModel(QAbstractItemModel *model)
{
    // Ahead of QHeaderView, which goes by its sections when the rows are sorted.
    if (model)
        connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] {
            if (m_isStale)
                doItemsLayout();
        });
    QHeaderView::setModel(model);
}

void RowHeader::sectionsInserted(const QModelIndex &parent, int first, int last)
{
    if (m_isStale)
        m_hidden.insert(m_hidden.begin() + first, std::size_t(last) - std::size_t(first) + 1, false);
    else if (first >= count())
        initializeSections(first, last);
    else
        QHeaderView::sectionsInserted(parent, first, last);
}

void RowHeader::sectionsAboutToBeRemoved(const QModelIndex &parent, int first, int last)
{
    if (!m_isStale && sectionsHidden()) {
        m_hidden.resize(std::size_t(count()));
        for (int row = 0; row < count(); ++row)
            m_hidden[std::size_t(row)] = isSectionHidden(row);
    }
    QHeaderView::sectionsAboutToBeRemoved(parent, first, last);
}

void RowHeader::_q_sectionsRemoved(const QModelIndex &parent, int first, int last)
{
    if (!m_isStale && !sectionsHidden()) {
        const QMetaObject &base = QHeaderView::staticMetaObject;
        base.method(base.indexOfSlot("_q_sectionsRemoved(QModelIndex,int,int)"))
            .invoke(this, Qt::DirectConnection, Q_ARG(QModelIndex, parent), Q_ARG(int, first), Q_ARG(int, last));
        return;
    }
    m_hidden.erase(m_hidden.begin() + first, m_hidden.begin() + last + 1);
    m_isStale = true;
    scheduleDelayedItemsLayout();
}

void RowHeader::doItemsLayout()
{
    QHeaderView::doItemsLayout(); // as many sections as rows
    if (!m_isStale || int(m_hidden.size()) != count())
        return;
    m_isStale = false;
    for (int row = 0; row < count(); ++row)
        if (isSectionHidden(row) != m_hidden[std::size_t(row)])
            setSectionHidden(row, m_hidden[std::size_t(row)]);
}

} // namespace orda_base
