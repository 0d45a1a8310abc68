#include "orda_base/TableOperWtStyle.h"

#include <XCOMMON/XTableWidget.h>

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
{
    m_updateSoon.setSingleShot(true);
    connect(&m_updateSoon, &QTimer::timeout, this, &TableOperWtStyle::updateAllBox);
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
    // Later and once, because thousands of rows may change at a time and each update looks at all rows.
    const auto updateSoon = [this] {
        if (!m_updateSoon.isActive())
            m_updateSoon.start();
    };
    connect(table->model(), &QAbstractItemModel::rowsInserted, this, updateSoon);
    connect(table->model(), &QAbstractItemModel::rowsRemoved, this, updateSoon);
    // A row that is hidden or shown again gets another height.
    connect(table->verticalHeader(), &QHeaderView::sectionResized, this, updateSoon);
    // A tri-state box would go to "partly" at every third click; a click on it means all or none.
    const auto tickAll = [this](bool checked) {
        m_all->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        setVisibleRows(checked);
    };
    connect(all, &QCheckBox::clicked, this, tickAll);
    // Assistive technology toggles the box without a click. A change that comes from the rows ticks nothing: then the
    // box is partly checked, or all rows are as it says.
    connect(all, &QCheckBox::toggled, this, [this, tickAll](bool checked) {
        if (m_all->checkState() != Qt::PartiallyChecked)
            tickAll(checked);
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
    if (checked == 0)
        m_all->setCheckState(Qt::Unchecked);
    else
        m_all->setCheckState(checked == visible ? Qt::Checked : Qt::PartiallyChecked);
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
