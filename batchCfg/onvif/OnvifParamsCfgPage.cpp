#include "onvif/OnvifParamsCfgPage.h"

#include "onvif/OnvifParamsCfgTask.h"
#include "ui_OnvifParamsCfgPage.h"

namespace orda_batchCfg {

namespace {

enum ParamBit
{
    Compatible = 1
};

} // namespace

OnvifParamsCfgPage::OnvifParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(tr("Onvif Parameters Configuration Result"),
                    QStringLiteral("vms_onvif_params_batch_cfg_record.txt"), parent)
    , m_ui(std::make_unique<Ui::OnvifParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {Compatible,
         m_ui->compatibleEnable,
         {m_ui->compatibleEnablePanel},
         "discoveryflag",
         switchNumber(m_ui->compatibleEnableSwitch)},
    });
}

OnvifParamsCfgPage::~OnvifParamsCfgPage() = default;

ParamsCfgTask *OnvifParamsCfgPage::createTask(const QString &devId, const QJsonObject &values)
{
    return new OnvifParamsCfgTask(devId, values, this);
}

} // namespace orda_batchCfg
