#pragma once

#include <orda_base/BaseForm.h>
#include <vms_client_sdk/DevInfo.h>

#include <QMap>
#include <QStringList>

#include <memory>

QT_BEGIN_NAMESPACE
class QTableWidgetItem;
QT_END_NAMESPACE

namespace XCOMMON {
class XMenu;
}
namespace orda_base {
class TableOperWtStyle;
}

namespace orda_batchCfg {

class OrderNumbers;

namespace Ui {
class BatchCfgForm;
}

/// The module's one screen: navigation, parameter pages, and the list of the devices online that may be configured.
/// The list follows the device store. User-interface thread only.
class BatchCfgForm : public orda_base::BaseForm
{
    Q_OBJECT

public:
    explicit BatchCfgForm(QWidget *parent = nullptr);
    ~BatchCfgForm() override;

    int formType() const override;
    /// Ids of the rows that are ticked and can be seen, top to bottom.
    QStringList checkedDevIds() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    /// Shows the rows that have @p keyword in name, serial number or IP, in any case of letters; all when it is empty.
    void slotSearchDevsFromTable(const QString &keyword);

private:
    void initContextMenu();
    void initNavigation();
    void showPage(const QString &key);
    void initDevTable();
    void initShortcuts();
    void connectStore();

    void addDevToTable(const vms_sdk::DevInfo &dev);
    void fillRow(int row, const vms_sdk::DevInfo &dev); // an empty one
    void removeDevs(const QStringList &devIds);
    void searchRow(int row, const QString &keyword);
    void updateDevStatus(const QString &devId);
    void updateDevs(const QList<vms_sdk::DevInfo> &devs);
    void removeIneligibleDevs();
    void addEligibleDevs();

    OrderNumbers *m_orderNumbers = nullptr;
    QMap<QString, int> m_pageIndexByKey;
    std::unique_ptr<Ui::BatchCfgForm> m_ui;
    orda_base::TableOperWtStyle *m_tableOperStyle;
    QMap<QString, QTableWidgetItem *> m_devItemById; // the first item of each row
    QList<QWidget *> m_headerSortWidgets; // by column
    XCOMMON::XMenu *m_contextMenu = nullptr;
    QTableWidgetItem *m_contextItem = nullptr;
};

} // namespace orda_batchCfg
