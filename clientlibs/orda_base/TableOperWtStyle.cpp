#include <orda_base/TableOperWtStyle.h>

#include <XCOMMON/XTableWidget.h>
#include <orda_base/DelayedCall.h>

#include <QAccessible>
#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLayout>

namespace orda_base {

namespace {

constexpr int checkColumn = 0;

bool isCheckable(const QTableWidgetItem *item)
{
    return item && (item->flags() & Qt::ItemIsUserCheckable) != 0;
}

} // namespace

TableOperWtStyle::TableOperWtStyle(QObject *parent)
    : QObject(parent)
    , m_updateAllBox(new DelayedCall(
          std::chrono::milliseconds(0), [this] { updateAllBox(); }, this))
{
}

void TableOperWtStyle::setWts(QCheckBox *all, XCOMMON::XTableWidget *table, QLayout *header,
                              const QList<int> &hiddenColumns)
{
    m_all = all;
    m_table = table;
    m_header = header;
    for (const int column : hiddenColumns) {
        table->setColumnHidden(column, true);
        QLayoutItem *item = header ? header->itemAt(column) : nullptr;
        if (item && item->widget())
            item->widget()->hide();
    }

    connect(table->model(), &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &topLeft, const QModelIndex &, const QVector<int> &roles) {
                if (topLeft.column() == checkColumn && roles.contains(Qt::CheckStateRole) && !m_isTickingAll)
                    updateAllBox();
            });
    connect(table->model(), &QAbstractItemModel::rowsInserted, m_updateAllBox, &DelayedCall::request);
    connect(table->model(), &QAbstractItemModel::rowsRemoved, m_updateAllBox, &DelayedCall::request);
    // A row that is hidden or shown again gets another height.
    connect(table->verticalHeader(), &QHeaderView::sectionResized, m_updateAllBox, &DelayedCall::request);
    // A tri-state box would go to "partly" at every third click; a click on it means all or none.
    connect(all, &QCheckBox::clicked, this, &TableOperWtStyle::setVisibleRows);
    // Assistive technology toggles the box without a click and means one, which ticks all where only some are ticked.
    connect(all, &QCheckBox::toggled, this, [this](bool checked) {
        if (QAccessible::isActive() && !m_isSettingAllBox)
            setVisibleRows(checked || m_shownState == Qt::PartiallyChecked);
    });
    table->setAccessibleDescription(tr("Space ticks and unticks the selected rows"));
    table->installEventFilter(this);
    table->viewport()->installEventFilter(this);
    alignHeader();
    updateAllBox();
}

void TableOperWtStyle::setVisibleRows(bool checked)
{
    m_isTickingAll = true;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        QTableWidgetItem *item = m_table->item(row, checkColumn);
        if (isCheckable(item) && !m_table->isRowHidden(row))
            item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }
    m_isTickingAll = false;
    updateAllBox();
}

void TableOperWtStyle::toggleSelectedRows()
{
    QList<QTableWidgetItem *> items;
    bool areAllChecked = true;
    const auto add = [&](int row) {
        QTableWidgetItem *item = m_table->item(row, checkColumn);
        if (isCheckable(item) && !m_table->isRowHidden(row)) {
            items.append(item);
            areAllChecked = areAllChecked && item->checkState() == Qt::Checked;
        }
    };
    const QModelIndexList selected = m_table->selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        add(index.row());
    if (items.isEmpty())
        add(m_table->currentRow()); // Ctrl and an arrow key move to a row without selecting it
    m_isTickingAll = true;
    for (QTableWidgetItem *item : qAsConst(items))
        item->setCheckState(areAllChecked ? Qt::Unchecked : Qt::Checked);
    m_isTickingAll = false;
    updateAllBox();
}

void TableOperWtStyle::updateAllBox()
{
    if (!m_all || !m_table)
        return;
    int visible = 0;
    int checked = 0;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QTableWidgetItem *item = m_table->item(row, checkColumn);
        if (isCheckable(item) && !m_table->isRowHidden(row)) {
            ++visible;
            checked += item->checkState() == Qt::Checked ? 1 : 0;
        }
    }
    m_shownState = checked == 0 ? Qt::Unchecked : checked == visible ? Qt::Checked : Qt::PartiallyChecked;
    m_isSettingAllBox = true;
    m_all->setCheckState(m_shownState);
    m_isSettingAllBox = false;
}

void TableOperWtStyle::alignHeader()
{
    if (m_header && m_table) {
        const QRect viewport = m_table->viewport()->geometry();
        QMargins margins = m_header->contentsMargins();
        margins.setLeft(viewport.left());
        margins.setRight(qMax(0, m_table->width() - viewport.right() - 1));
        m_header->setContentsMargins(margins);
    }
}

bool TableOperWtStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) // the scroll bar has come or gone
        alignHeader();
    if (event->type() == QEvent::KeyPress && watched == m_table) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Space && key->modifiers() == Qt::NoModifier) {
            if (!key->isAutoRepeat())
                toggleSelectedRows();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orda_base
