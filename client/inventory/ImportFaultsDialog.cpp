#include "client/inventory/ImportFaultsDialog.h"

#include "client/common/OpeningSize.h"
#include "client/common/Widgets.h"
#include "client/settings/ClientSettings.h"
#include "client/tables/CsvFile.h"
#include "client/tables/TableFilter.h"
#include "client/tables/TableModel.h"
#include "client/tables/TableView.h"

#include <orda_base/ReturnPressesButton.h>
#include <vms_client_sdk/ForeignText.h>

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace orda_client {

namespace {

constexpr QSize wantedSize(960, 480);
constexpr int margin = 12;

enum Column
{
    Line,
    Number,
    Name,
    What,
    ColumnCount
};

class FaultsModel : public TableModel
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::ImportFaultsDialog)

public:
    FaultsModel(const QVector<InventoryCsv::Fault> &faults, QObject *parent)
        : TableModel(parent)
        , m_faults(faults)
    {
    }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_faults.size(); }

protected:
    QStringList titles() const override
    {
        return {tr("Line"), tr("Column", "of a table, its number"), tr("Field"), tr("What is wrong")};
    }

    QString text(int row, int column) const override
    {
        const InventoryCsv::Fault &fault = m_faults.at(row);
        const QString texts[ColumnCount]{QString::number(fault.line), QString::number(fault.column), fault.field,
                                         fault.what};
        return texts[column];
    }

    SortKey sortKey(int row, int column) const override
    {
        const InventoryCsv::Fault &fault = m_faults.at(row);
        if (column == Line || column == Number)
            return {column == Line ? fault.line : fault.column};
        return TableModel::sortKey(row, column);
    }

private:
    const QVector<InventoryCsv::Fault> m_faults;
};

} // namespace

ImportFaultsDialog::ImportFaultsDialog(const QString &file, const QVector<InventoryCsv::Fault> &faults,
                                       ClientSettings *settings, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("importFaultsDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Import devices"));
    auto *model = new FaultsModel(faults, this);
    auto *filter = new TableFilter(model, this);
    auto *summary = new QLabel(tr("%n error(s) in %1. Nothing has been imported.", nullptr, faults.size())
                                   .arg(vms_sdk::displayText(QFileInfo(file).fileName())));
    summary->setTextFormat(Qt::PlainText);
    summary->setWordWrap(true);
    summary->setProperty("dialog_caption", true);
    auto *table = new TableView(filter, {6, 8, 16, 0}, tr("What is wrong, line by line"));
    auto *save = styledButton(tr("Export &CSV…"), "exportFaults", "common_bt_style2");
    connect(save, &QPushButton::clicked, this,
            [this, filter] { CsvFile::saveAs(this, *filter, QStringLiteral("import-errors")); });
    auto *close = styledButton(tr("C&lose"), "closeFaults", "common_bt_style1");
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(save);
    row->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(summary);
    layout->addWidget(table);
    layout->addLayout(row);
    new orda_base::ReturnPressesButton(this);
    table->setFocus();
    if (!settings->restoreGeometry(this))
        resize(openingSize(this, wantedSize));
}

ImportFaultsDialog::~ImportFaultsDialog()
{
    m_settings->keepGeometry(this);
}

} // namespace orda_client
