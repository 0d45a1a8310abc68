#include "client/form/FormTicks.h"

#include <orda_base/DisabledWaitingWt.h>

#include <QLineEdit>
#include <QSet>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace orda_client {

namespace {

constexpr int checkColumn = 0;
constexpr int deviceIdRole = Qt::UserRole + 1;

} // namespace

QTableWidget *FormTicks::listOf(const QWidget *form)
{
    return form->findChild<QTableWidget *>(QStringLiteral("devsTableWt"));
}

QWidget *FormTicks::runOverlay(const QWidget *form)
{
    const auto overlays = form->findChildren<orda_base::DisabledWaitingWt *>();
    const auto found =
        std::find_if(overlays.begin(), overlays.end(), [](const QWidget *overlay) { return !overlay->isHidden(); });
    return found == overlays.end() ? nullptr : *found;
}

QStringList FormTicks::listedIn(const QWidget *form)
{
    const QTableWidget *list = listOf(form);
    QStringList devIds;
    for (int row = 0; list && row < list->rowCount(); ++row)
        devIds.append(list->item(row, checkColumn)->data(deviceIdRole).toString());
    return devIds;
}

FormTicks FormTicks::of(const QWidget *form)
{
    const QTableWidget *list = listOf(form);
    FormTicks ticks;
    if (!list)
        return ticks;
    ticks.listed = list->rowCount();
    for (int row = 0; row < list->rowCount(); ++row) {
        const QTableWidgetItem *item = list->item(row, checkColumn);
        if (item->checkState() != Qt::Checked)
            continue;
        if (list->isRowHidden(row))
            ++ticks.hidden;
        else
            ticks.devIds.append(item->data(deviceIdRole).toString());
    }
    return ticks;
}

FormTicks::Ticked FormTicks::tickExactly(QWidget *form, const QStringList &devIds)
{
    QTableWidget *list = listOf(form);
    QSet<QString> missing(devIds.begin(), devIds.end());
    Ticked result;
    if (!list) {
        result.notListed = devIds;
        return result;
    }
    const QTableWidgetItem *first = nullptr;
    bool isOneHidden = false;
    {
        // One signal for all rows at the end: at each signal the list looks at all its rows.
        const QSignalBlocker blocker(list->model());
        for (int row = 0; row < list->rowCount(); ++row) {
            QTableWidgetItem *item = list->item(row, checkColumn);
            const bool isMeant = missing.remove(item->data(deviceIdRole).toString());
            item->setCheckState(isMeant ? Qt::Checked : Qt::Unchecked);
            if (!isMeant)
                continue;
            ++result.count;
            isOneHidden |= list->isRowHidden(row);
            first = first ? first : item;
        }
    }
    if (list->rowCount() > 0) {
        QAbstractItemModel *model = list->model();
        emit model->dataChanged(model->index(0, checkColumn), model->index(list->rowCount() - 1, checkColumn),
                                {Qt::CheckStateRole});
    }
    if (isOneHidden) {
        form->findChild<QWidget *>(QStringLiteral("searchBox"))->findChild<QLineEdit *>()->clear();
        result.isSearchCleared = true;
    }
    if (first)
        list->scrollToItem(first);
    for (const QString &devId : devIds)
        if (missing.remove(devId)) // in their order, each once
            result.notListed.append(devId);
    return result;
}

} // namespace orda_client
