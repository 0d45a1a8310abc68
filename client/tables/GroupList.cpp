#include "client/tables/GroupList.h"

#include <vms_client_sdk/ForeignText.h>

#include <QHeaderView>
#include <QLocale>
#include <QSignalBlocker>
#include <QTextDocument>

#include <algorithm>

namespace orda_client {

GroupList::GroupList(const QString &name, QWidget *parent)
    : orda_base::TableWidget(parent)
{
    setAccessibleName(name);
    setColumnCount(2);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setTextElideMode(Qt::ElideMiddle); // the error code is at the end of a message
    horizontalHeader()->hide();
    verticalHeader()->hide();
    // A long message is shortened, so that the number is always seen.
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(this, &QTableWidget::itemSelectionChanged, this, &GroupList::signalGroupChosen);
}

void GroupList::setGroups(const QString &allText, int all, const QVector<RowGroup> &groups)
{
    if (isSame(allText, groups)) { // what a reader is at stays where it is
        m_groups = groups;
        item(0, 1)->setText(QLocale().toString(all));
        for (int i = 0; i < groups.size(); ++i)
            item(i + 1, 1)->setText(QLocale().toString(groups.at(i).count));
        return;
    }
    const QString chosen = group();
    int row = 0;
    {
        const QSignalBlocker blocker(this);
        setRowCount(0);
        m_allText = allText;
        m_groups = groups;
        addRow(allText, all);
        for (const RowGroup &candidate : groups) {
            if (candidate.key == chosen)
                row = rowCount();
            addRow(candidate.text, candidate.count);
        }
        selectRow(row);
    }
    if (!chosen.isEmpty() && row == 0)
        emit signalGroupChosen();
}

/// But for how many rows they have.
bool GroupList::isSame(const QString &allText, const QVector<RowGroup> &groups) const
{
    return rowCount() > 0 && m_allText == allText
        && std::equal(groups.cbegin(), groups.cend(), m_groups.cbegin(), m_groups.cend(),
                      [](const RowGroup &a, const RowGroup &b) { return a.key == b.key && a.text == b.text; });
}

QString GroupList::group() const
{
    const QModelIndexList selected = selectionModel()->selectedRows();
    const int row = selected.isEmpty() ? 0 : selected.constFirst().row();
    return row > 0 && row <= m_groups.size() ? m_groups.at(row - 1).key : QString();
}

void GroupList::addRow(const QString &recorded, int count)
{
    const QString text = vms_sdk::displayText(recorded, QStringLiteral("\n"));
    auto *message = new QTableWidgetItem(QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    message->setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    auto *number = new QTableWidgetItem(QLocale().toString(count));
    number->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int row = rowCount();
    insertRow(row);
    setItem(row, 0, message);
    setItem(row, 1, number);
}

} // namespace orda_client
