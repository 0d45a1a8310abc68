#include "client/preview/PlanGroupList.h"

#include <QHeaderView>
#include <QLocale>

namespace orda_client {

namespace {

enum Column
{
    GroupColumn,
    CountColumn
};

QTableWidgetItem *itemWith(const QString &text, const QString &toolTip)
{
    auto *item = new QTableWidgetItem(text);
    item->setToolTip(toolTip);
    return item;
}

} // namespace

PlanGroupList::PlanGroupList(QWidget *parent)
    : orda_base::TableWidget(parent)
{
    struct Text
    {
        QString title, toolTip;
    };
    const Text texts[PreviewModel::GroupCount] = {
        {tr("All devices"), tr("All devices of the preview")},
        {tr("Would change"), tr("Devices on which Configure would change something")},
        {tr("Have it already"), tr("Devices that hold these values already")},
        {tr("Lack a parameter"),
         tr("Devices that do not have all of these parameters. What they have may change all the same")},
        {tr("Not reached"), tr("Devices that cannot be written to now")},
        {tr("Could not be read"), tr("Devices that refused to be read, or did not answer")},
        {tr("Not read"), tr("Devices that have not answered yet, or were not waited for")}};
    setColumnCount(2);
    setRowCount(PreviewModel::GroupCount);
    for (int row = 0; row < PreviewModel::GroupCount; ++row) {
        setItem(row, GroupColumn, itemWith(texts[row].title, texts[row].toolTip));
        setItem(row, CountColumn, itemWith({}, texts[row].toolTip));
        item(row, CountColumn)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(GroupColumn, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(CountColumn, QHeaderView::ResizeToContents);
    selectRow(PreviewModel::All);
    connect(this, &QTableWidget::itemSelectionChanged, this, &PlanGroupList::signalGroupChosen);
}

void PlanGroupList::setCounts(const PreviewModel &model)
{
    for (int row = 0; row < PreviewModel::GroupCount; ++row)
        item(row, CountColumn)->setText(QLocale().toString(model.count(PreviewModel::Group(row))));
}

PreviewModel::Group PlanGroupList::group() const
{
    const QModelIndexList selected = selectionModel()->selectedRows();
    return selected.isEmpty() ? PreviewModel::All : PreviewModel::Group(selected.constFirst().row());
}

void PlanGroupList::chooseAll()
{
    selectRow(PreviewModel::All);
}

} // namespace orda_client
