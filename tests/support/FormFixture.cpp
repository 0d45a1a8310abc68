#include "support/FormFixture.h"

#include "support/OrdaTest.h"
#include "support/Store.h"

#include <vms_client_sdk/ClientSdk.h>

#include <QTest>

FormFixture::FormFixture(int devices, const ScriptedTransport::Script &script, std::chrono::milliseconds waitingTime)
{
    auto scripted = std::make_unique<ScriptedTransport>(script);
    transport = scripted.get();
    vms_sdk::ClientSdk::instance().setTransport(std::move(scripted));
    vms_sdk::ClientSdk::instance().setRequestTimeout(waitingTime);

    auto &store = orda_data::DevsMgrData::instance();
    for (int i = 0; i < devices; ++i) {
        store.updateDevs({device(i)});
        store.setDevStatus(device(i).id, vms_sdk::DevOnline);
    }
    form = new orda_batchCfg::BatchCfgForm;
    form->show();
}

FormFixture::~FormFixture()
{
    delete form;
    dismissDialogs();
    clearStore();
    vms_sdk::ClientSdk::instance().setTransport(nullptr);
}

vms_sdk::DevInfo FormFixture::device(int number)
{
    vms_sdk::DevInfo dev;
    dev.id = QStringLiteral("dev%1").arg(number);
    dev.name = QStringLiteral("Cam %1").arg(number);
    dev.serialNumber = QStringLiteral("SN%1").arg(number);
    dev.ip = QStringLiteral("10.0.%1.%2").arg(number / 200).arg(number % 200 + 1);
    dev.accessCode = 1;
    dev.kindCode = 1;
    return dev;
}

QStringList FormFixture::column(int number) const
{
    QStringList texts;
    for (int row = 0; row < table()->rowCount(); ++row)
        if (!table()->isRowHidden(row))
            texts.append(table()->item(row, number)->text());
    return texts;
}

void FormFixture::configure(const QString &navigationKey, const QString &pageName) const
{
    form->findChild<QAbstractButton *>(navigationKey)->click();
    auto *const okBt = form->findChild<QWidget *>(pageName)->findChild<QAbstractButton *>(QStringLiteral("okBt"));
    QTest::mouseClick(okBt, Qt::LeftButton);
}
