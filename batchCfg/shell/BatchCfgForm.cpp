#include "shell/BatchCfgForm.h"

#include "families/Families.h"
#include "run/BatchCfgContact.h"
#include "run/DevEligibility.h"
#include "shell/EmptyListHint.h"
#include "shell/FamilyPages.h"
#include "shell/OrderNumbers.h"
#include "ui_BatchCfgForm.h"

#include <XCOMMON/XMenu.h>
#include <orda_base/BaseTools.h>
#include <orda_base/IpTableItem.h>
#include <orda_base/NameTableItem.h>
#include <orda_base/TableOperWtStyle.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_saas/LoginSignals.h>

#include <QApplication>
#include <QCursor>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSet>
#include <QShortcut>

namespace orda_batchCfg {

namespace {

// The number that tells the client which of its forms this is.
constexpr int batchCfgFormType = 8;

constexpr int devIdRole = Qt::UserRole + 1;

enum Column
{
    OrderNum,
    Name,
    SerialNumber,
    Ip,
    ColumnCount
};

constexpr int orderNumWidth = 80; // that of orderNumWt in the header row

bool isDevEligible(const vms_sdk::DevInfo &dev)
{
    return devEligibility(dev) == Eligibility::Eligible;
}

QTableWidgetItem *centred(QTableWidgetItem *item)
{
    item->setTextAlignment(Qt::AlignCenter);
    return item;
}

bool isPressByKey(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

BatchCfgForm::BatchCfgForm(QWidget *parent)
    : orda_base::BaseForm(parent)
    , m_ui(std::make_unique<Ui::BatchCfgForm>())
    , m_tableOperStyle(new orda_base::TableOperWtStyle(this))
{
    m_ui->setupUi(this);
    BatchCfgContact::instance().setForm(this);
    initContextMenu();
    initNavigation();
    initDevTable();
    initShortcuts();
    connect(m_ui->searchBox, &orda_base::SearchBox::signalSearchByKeyword, this,
            &BatchCfgForm::slotSearchDevsFromTable);
    connect(m_ui->navigationWt, &orda_base::NavigationWidget::signalCurAction, this, &BatchCfgForm::showPage);
    connectStore();
}

BatchCfgForm::~BatchCfgForm()
{
    if (BatchCfgContact::instance().form() == this)
        BatchCfgContact::instance().setForm(nullptr); // nobody asks it for devices any more
}

int BatchCfgForm::formType() const
{
    return batchCfgFormType;
}

void BatchCfgForm::initContextMenu()
{
    m_contextMenu = new XCOMMON::XMenu(m_ui->devsTableWt);
    const QAction *remoteSet = m_contextMenu->addAction(tr("Remote Set"));
    connect(remoteSet, &QAction::triggered, this, [this] {
        if (m_contextItem) { // its row may have gone while the menu was open
            const QTableWidgetItem *first = m_ui->devsTableWt->item(m_contextItem->row(), OrderNum);
            orda_base::BaseTools::instance().openDevRemoteConfig(first->data(devIdRole).toString());
        }
    });
    connect(m_ui->devsTableWt, &QWidget::customContextMenuRequested, this, [this](const QPoint &pos) {
        m_contextItem = m_ui->devsTableWt->itemAt(pos);
        if (m_contextItem) {
            m_contextMenu->exec(QCursor::pos()); // the form may be gone afterwards: nothing may follow
        }
    });
}

void BatchCfgForm::initNavigation()
{
    addFamilyBars(m_ui->navigationWt, this);
    for (const FamilyEntry &entry : Families::all())
        if (entry.key)
            m_pageIndexByKey.insert(QLatin1String(entry.key), m_pageIndexByKey.size());
    showPage(m_ui->navigationWt->setDefaultAction(QStringLiteral("video_param")));
}

void BatchCfgForm::showPage(const QString &key)
{
    const auto index = m_pageIndexByKey.constFind(key);
    if (index != m_pageIndexByKey.constEnd())
        m_ui->stackedWidget->setCurrentIndex(*index);
}

void BatchCfgForm::initShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto action) {
        auto *shortcut = new QShortcut(keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    add(QKeySequence::Find, [this] {
        auto *edit = m_ui->searchBox->findChild<QLineEdit *>();
        edit->setFocus(Qt::ShortcutFocusReason);
        edit->selectAll();
    });
    const auto configure = [this] {
        // Some window managers leave the keys to the window below: nobody means it while a summary asks something.
        if (QApplication::activeModalWidget())
            return;
        m_ui->stackedWidget->currentWidget()->findChild<QAbstractButton *>(QStringLiteral("okBt"))->click();
    };
    add(Qt::CTRL + Qt::Key_Return, configure);
    add(Qt::CTRL + Qt::Key_Enter, configure);
}

void BatchCfgForm::initDevTable()
{
    auto *table = m_ui->devsTableWt;
    table->setColumnCount(ColumnCount);
    // Not shown, but read out: the header row that is shown is no part of the table.
    table->setHorizontalHeaderLabels({tr("Number"), m_ui->devName->text(), m_ui->devSn->text(), m_ui->devIp->text()});
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setShowGrid(false);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(OrderNum, QHeaderView::Fixed);
    table->setColumnWidth(OrderNum, orderNumWidth);
    m_orderNumbers = new OrderNumbers(table);
    m_tableOperStyle->setWts(m_ui->selAll, table, m_ui->headerLayout, {});

    m_headerSortWidgets = {m_ui->orderNumWt, m_ui->devName, m_ui->devSn, m_ui->devIp};
    for (int column = Name; column < ColumnCount; ++column)
        m_headerSortWidgets.at(column)->installEventFilter(this);
    addEligibleDevs();
    new EmptyListHint(table, m_ui->searchBox);
}

void BatchCfgForm::connectStore()
{
    const auto &store = orda_data::DataSignals::instance();
    connect(&store, &orda_data::DataSignals::signalDevStatusChanged, this, &BatchCfgForm::updateDevStatus);
    connect(&store, &orda_data::DataSignals::signalUpdateDevs, this,
            [this](const QList<vms_sdk::DevInfo> &devs, bool recordsChanged) {
                if (recordsChanged)
                    updateDevs(devs);
            });
    connect(&store, &orda_data::DataSignals::signalDeleteDevs, this, [this](const QStringList &devIds, bool deleted) {
        if (deleted) {
            removeDevs(devIds);
        }
    });
    const auto &login = orda_saas::LoginSignals::instance();
    connect(&login, &orda_saas::LoginSignals::signalSaasLogoutSuccess, this, &BatchCfgForm::removeIneligibleDevs);
    connect(&login, &orda_saas::LoginSignals::signalEnterpriseStatus, this, &BatchCfgForm::addEligibleDevs);
}

void BatchCfgForm::addDevToTable(const vms_sdk::DevInfo &dev)
{
    if (m_devItemById.contains(dev.id))
        return;
    const int row = m_ui->devsTableWt->rowCount();
    m_ui->devsTableWt->insertRow(row);
    fillRow(row, dev);
}

void BatchCfgForm::fillRow(int row, const vms_sdk::DevInfo &dev)
{
    auto *table = m_ui->devsTableWt;
    auto *orderNum = m_orderNumbers->makeItem();
    orderNum->setFlags(orderNum->flags() | Qt::ItemIsUserCheckable);
    orderNum->setCheckState(Qt::Unchecked);
    orderNum->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    orderNum->setData(devIdRole, dev.id);
    auto *name = new orda_base::NameTableItem(dev.name.isEmpty() ? dev.serialNumber : dev.name);
    name->setToolTip(name->text());
    auto *ip = new orda_base::IpTableItem(dev.ip, dev.ipNumber, 0);
    ip->setToolTip(QString());

    table->setItem(row, OrderNum, orderNum);
    table->setItem(row, Name, centred(name));
    table->setItem(row, SerialNumber, centred(new QTableWidgetItem(dev.serialNumber)));
    table->setItem(row, Ip, centred(ip));
    m_devItemById.insert(dev.id, orderNum);
    const QString keyword = m_ui->searchBox->text();
    if (!keyword.isEmpty())
        searchRow(row, keyword);
}

void BatchCfgForm::removeDevs(const QStringList &devIds)
{
    auto *table = m_ui->devsTableWt;
    // Where rows are hidden, QHeaderView looks at all of them for each row that goes: 2 s for 10,000 that go at once.
    const QString keyword = devIds.size() > 1 ? m_ui->searchBox->text() : QString();
    if (!keyword.isEmpty())
        slotSearchDevsFromTable(QString());
    for (const QString &devId : devIds) {
        if (const QTableWidgetItem *item = m_devItemById.take(devId)) {
            const int row = item->row();
            if (m_contextItem && m_contextItem->row() == row)
                m_contextItem = nullptr;
            table->removeRow(row);
        }
    }
    if (!keyword.isEmpty())
        slotSearchDevsFromTable(keyword);
    orda_base::BaseTools::instance().updateTableOrderNum(table, 1);
}

QStringList BatchCfgForm::checkedDevIds() const
{
    QStringList ids;
    const auto *table = m_ui->devsTableWt;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem *item = table->item(row, OrderNum);
        if (!table->isRowHidden(row) && item->checkState() == Qt::Checked)
            ids.append(item->data(devIdRole).toString());
    }
    return ids;
}

bool BatchCfgForm::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = isPressByKey(event);
    if (event->type() == QEvent::MouseButtonRelease || isKey) {
        const int column = m_headerSortWidgets.indexOf(qobject_cast<QWidget *>(watched));
        if (column >= Name) {
            m_ui->devsTableWt->sortItems(column, Qt::AscendingOrder);
            orda_base::BaseTools::instance().updateTableOrderNum(m_ui->devsTableWt, 1);
            if (isKey)
                return true; // a dialog around the form would press a button of its own
        }
    }
    return orda_base::BaseForm::eventFilter(watched, event);
}

void BatchCfgForm::slotSearchDevsFromTable(const QString &keyword)
{
    auto *table = m_ui->devsTableWt;
    table->setUpdatesEnabled(false); // a shown table lays itself out anew for every row that is hidden
    for (int row = 0; row < table->rowCount(); ++row)
        searchRow(row, keyword);
    table->setUpdatesEnabled(true);
    orda_base::BaseTools::instance().updateTableOrderNum(table, 1);
}

void BatchCfgForm::searchRow(int row, const QString &keyword)
{
    auto *table = m_ui->devsTableWt;
    const auto hasKeyword = [=, &keyword](Column column) {
        return table->item(row, column)->text().contains(keyword, Qt::CaseInsensitive);
    };
    const bool isMatch = keyword.isEmpty() || hasKeyword(Name) || hasKeyword(SerialNumber) || hasKeyword(Ip);
    if (table->isRowHidden(row) == isMatch)
        table->setRowHidden(row, !isMatch);
}

void BatchCfgForm::updateDevStatus(const QString &devId)
{
    const vms_sdk::DevInfo dev = orda_data::DevsMgrData::instance().getDevInfoById(devId);
    const bool isListed = m_devItemById.contains(devId);
    const bool isEligible = isDevEligible(dev);
    if (isEligible && !isListed) {
        addDevToTable(dev);
        orda_base::BaseTools::instance().updateTableOrderNum(m_ui->devsTableWt, 1);
    } else if (!isEligible && isListed) {
        removeDevs({devId});
    }
}

void BatchCfgForm::updateDevs(const QList<vms_sdk::DevInfo> &devs)
{
    auto *table = m_ui->devsTableWt;
    const QString keyword = m_ui->searchBox->text();
    for (const vms_sdk::DevInfo &dev : devs) {
        if (const QTableWidgetItem *item = m_devItemById.value(dev.id)) {
            const int row = item->row();
            table->item(row, Name)->setText(dev.name);
            table->item(row, Name)->setToolTip(dev.name);
            table->item(row, SerialNumber)->setText(dev.serialNumber);
            table->item(row, Ip)->setText(dev.ip);
            if (!keyword.isEmpty())
                searchRow(row, keyword);
        }
    }
    orda_base::BaseTools::instance().updateTableOrderNum(table, 1);
}

void BatchCfgForm::removeIneligibleDevs()
{
    QStringList gone;
    for (auto it = m_devItemById.cbegin(); it != m_devItemById.cend(); ++it)
        if (!isDevEligible(orda_data::DevsMgrData::instance().getDevInfoById(it.key())))
            gone.append(it.key());
    removeDevs(gone);
}

void BatchCfgForm::addEligibleDevs()
{
    QList<vms_sdk::DevInfo> added;
    QSet<QString> ids; // a store may have an id twice
    const QList<vms_sdk::DevInfo> devs = orda_data::DevsMgrData::instance().getAllDevs(false);
    for (const vms_sdk::DevInfo &dev : devs) {
        if (!m_devItemById.contains(dev.id) && !ids.contains(dev.id) && isDevEligible(dev)) {
            ids.insert(dev.id);
            added.append(dev);
        }
    }

    auto *table = m_ui->devsTableWt;
    table->setUpdatesEnabled(false);
    int row = table->rowCount();
    table->setRowCount(row + added.size());
    for (const vms_sdk::DevInfo &dev : qAsConst(added))
        fillRow(row++, dev);
    table->setUpdatesEnabled(true);
    orda_base::BaseTools::instance().updateTableOrderNum(table, 1);
}

} // namespace orda_batchCfg
