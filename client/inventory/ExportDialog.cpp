#include "client/inventory/ExportDialog.h"

#include "client/inventory/InventoryCsv.h"

#include <orda_base/ReturnPressesButton.h>
#include <orda_worker/SystemAssistant.h>
#include <vms_client_sdk/WholeFile.h>

#include <QCheckBox>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <QVariant>

namespace orda_client {

namespace {

constexpr int margin = 24;
constexpr int textWidth = 480;

QLabel *paragraph(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    return label;
}

QPushButton *button(const QString &text, const char *style)
{
    auto *button = new QPushButton(text);
    button->setProperty(style, true);
    button->setAutoDefault(false);
    return button;
}

} // namespace

ExportDialog::ExportDialog(const QList<vms_sdk::DevInfo> &devices, const QString &name, QWidget *parent)
    : QDialog(parent)
    , m_devices(devices)
    , m_name(name)
    , m_passwords(new QCheckBox(tr("With &passwords")))
{
    setObjectName(QStringLiteral("exportDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Export devices"));
    m_passwords->setObjectName(QStringLiteral("withPasswords"));
    QLabel *what = paragraph(
        devices.isEmpty()
            ? tr("Saves a table with the titles of all columns and no device, to be filled in and imported.")
            : tr("Saves %n device(s) as a table, which can be changed and imported again.", nullptr, devices.size()));
    QLabel *caution = paragraph(
        tr("The passwords can be read in the file as they are. It is saved so that nobody but you can open it."));
    caution->setEnabled(false);
    connect(m_passwords, &QCheckBox::toggled, caution, &QWidget::setEnabled);
    QPushButton *save = button(tr("&Save as…"), "common_bt_style1");
    save->setObjectName(QStringLiteral("saveExport"));
    QPushButton *cancel = button(tr("Cancel"), "common_bt_style2");
    connect(save, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(save);
    row->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin / 2);
    layout->addWidget(what);
    layout->addWidget(m_passwords);
    layout->addWidget(caution);
    layout->addLayout(row);
    m_passwords->setVisible(!devices.isEmpty());
    caution->setVisible(!devices.isEmpty());
    new orda_base::ReturnPressesButton(this);
}

void ExportDialog::accept()
{
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString file = QStringLiteral("%1-%2.csv").arg(m_name, QDate::currentDate().toString(Qt::ISODate));
    auto *dialog = new QFileDialog(this, tr("Export devices"), directory.filePath(file),
                                   tr("Comma-separated values (*.csv);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->selectFile(file);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        write(path, m_passwords->isChecked());
        QDialog::accept();
    });
    dialog->open();
}

void ExportDialog::write(const QString &path, bool isWithPasswords) const
{
    const QByteArray text = InventoryCsv::text(m_devices, isWithPasswords ? InventoryCsv::Passwords::With
                                                                          : InventoryCsv::Passwords::Without);
    const QString why =
        vms_sdk::writeWholeFile(path, text, isWithPasswords ? vms_sdk::Readers::OwnerOnly : vms_sdk::Readers::Usual);
    if (!why.isEmpty())
        orda_worker::SystemAssistant::instance().messageAlert(tr("Export devices"),
                                                              tr("Cannot write the file %1: %2").arg(path, why));
}

} // namespace orda_client
