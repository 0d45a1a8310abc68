#include "platform/PlatformParamsCfgPage.h"

#include "platform/PlatformParamsCfgTask.h"
#include "ui_PlatformParamsCfgPage.h"

namespace orda_batchCfg {

namespace {

enum ParamBit
{
    ServiceEnable = 1,
    ServiceAddress = 2
};

} // namespace

PlatformParamsCfgPage::PlatformParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(tr("Platform Parameters Configuration Result"),
                    QStringLiteral("vms_platform_params_batch_cfg_record.txt"), parent)
    , m_ui(std::make_unique<Ui::PlatformParamsCfgPage>())
{
    m_ui->setupUi(this);
    m_ui->serviceAddressParam->setCursorPosition(0); // where the line is too short, its beginning is seen
    m_ui->serviceType->setItemsData({QStringLiteral("public"), QStringLiteral("private")});
    setParams({
        {ServiceEnable,
         m_ui->serviceEnable,
         {m_ui->serviceEnablePanel},
         "qbcloud_en",
         switchState(m_ui->serviceSwitch)},
        {ServiceAddress,
         m_ui->serviceAddress,
         {m_ui->serviceAddressPanel},
         "qbcloud_addr",
         editedText(m_ui->serviceAddressParam)},
        // The type has no box of its own: it goes with either.
        {ServiceEnable | ServiceAddress,
         nullptr,
         {m_ui->serviceTypePanel},
         "qbcloud_type",
         itemData(m_ui->serviceType)},
    });
}

PlatformParamsCfgPage::~PlatformParamsCfgPage() = default;

ParamsCfgTask *PlatformParamsCfgPage::createTask(const QString &devId, const QJsonObject &values)
{
    return new PlatformParamsCfgTask(devId, values, this);
}

} // namespace orda_batchCfg
