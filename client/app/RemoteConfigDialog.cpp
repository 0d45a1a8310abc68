#include "client/app/RemoteConfigDialog.h"

#include "client/app/DeviceTexts.h"

#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ForeignText.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>

namespace orda_client {

RemoteConfigDialog::RemoteConfigDialog(const QString &devId, QWidget *parent)
    : QDialog(parent)
{
    const auto &store = orda_data::DevsMgrData::instance();
    const vms_sdk::DevInfo dev = store.getDevInfoById(devId);
    setObjectName(QStringLiteral("remoteConfigDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Remote configuration of %1").arg(DeviceTexts::name(dev)));
    auto *form = new QFormLayout(this);
    const auto addRow = [form](const QString &caption, const QString &text) {
        auto *value = new QLabel(text.isEmpty() ? QStringLiteral("–") : vms_sdk::displayText(text));
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        form->addRow(caption, value);
    };
    addRow(tr("Name"), dev.name);
    addRow(tr("Serial number"), dev.serialNumber);
    addRow(tr("IP address"), dev.ip);
    addRow(tr("State"), DeviceTexts::status(store.getDevStatus(devId)));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    form->addRow(buttons);
}

} // namespace orda_client
