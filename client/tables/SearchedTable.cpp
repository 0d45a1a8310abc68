#include "client/tables/SearchedTable.h"

#include "client/tables/TableModel.h"
#include "client/tables/TableOrText.h"
#include "client/tables/TableView.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <orda_base/SearchBox.h>

#include <algorithm>
#include <utility>

namespace orda_client {

SearchedTable::SearchedTable(TableModel *model, const QVector<int> &digits, const QString &objectName,
                             const QString &name, const QString &what, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_filter(new TableFilter(model, this))
    , m_top(new QHBoxLayout)
    , m_caption(new QLabel)
    , m_choice(new QComboBox)
    , m_search(new orda_base::SearchBox)
    , m_view(new TableView(m_filter, digits, name))
    , m_shown(new TableOrText(m_view, objectName + QLatin1String("Empty")))
{
    m_choice->setObjectName(objectName + QLatin1String("Choice"));
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_caption->setBuddy(m_choice);
    m_caption->hide();
    m_choice->hide();
    m_search->setObjectName(objectName + QLatin1String("Search"));
    m_search->setToolTip(what);
    m_view->setObjectName(objectName);

    m_top->addStretch(1);
    m_top->addWidget(m_caption);
    m_top->addWidget(m_choice);
    m_top->addWidget(m_search);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(m_top);
    layout->addWidget(m_shown, 1);

    connect(m_choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        applyAccepts();
        m_view->scrollToTop();
    });
    connect(m_search, &orda_base::SearchBox::signalSearchByKeyword, this, [this](const QString &keyword) {
        m_filter->setKeyword(keyword);
        m_view->scrollToTop();
        update();
    });
    connect(m_filter, &QAbstractItemModel::modelReset, this, &SearchedTable::update);
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &SearchedTable::update);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SearchedTable::signalSelectionChanged);
    update();
}

void SearchedTable::setChoices(const QString &caption, const QVector<Choice> &choices)
{
    m_choices = choices;
    for (const Choice &choice : choices)
        m_choice->addItem(choice.name);
    m_caption->setText(caption);
    m_caption->show();
    m_choice->show();
}

void SearchedTable::setAccepts(const TableFilter::Accepts &accepts)
{
    m_accepts = accepts;
    applyAccepts();
}

void SearchedTable::applyAccepts()
{
    const TableFilter::Accepts chosen =
        m_choice->currentIndex() > 0 ? m_choices.at(m_choice->currentIndex()).accepts : nullptr;
    m_filter->setAccepts(
        [chosen, further = m_accepts](int row) { return (!chosen || chosen(row)) && (!further || further(row)); });
    update();
}

void SearchedTable::addBefore(QWidget *widget)
{
    m_top->insertWidget(m_top->indexOf(m_caption) - 1, widget); // before the stretch
}

void SearchedTable::setEmptyText(const QString &text)
{
    m_emptyText = text;
    showTableOrText();
}

QVector<int> SearchedTable::selectedRows() const
{
    QModelIndexList selected = m_view->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    return m_filter->rowsOf(selected);
}

void SearchedTable::selectRow(int row)
{
    const QModelIndex index = m_filter->mapFromSource(m_model->index(row, 0));
    if (!index.isValid())
        return;
    m_view->selectRow(index.row());
    m_view->scrollTo(index);
}

void SearchedTable::showTableOrText()
{
    m_shown->update(m_model->rowCount() > 0 ? tr("Nothing here fits the search and the choice above.") : m_emptyText);
    if (m_filter->rowCount() == 0 || std::exchange(m_hasHadRows, true))
        return;
    // A window opens before its rows are read, and so with the focus on what is there already.
    const QWidget *focused = window()->focusWidget();
    if (!focused || focused == m_choice)
        m_view->setFocus();
}

void SearchedTable::update()
{
    showTableOrText();
    emit signalShownChanged();
}

} // namespace orda_client
