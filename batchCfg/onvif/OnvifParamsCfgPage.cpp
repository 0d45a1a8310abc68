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
    : ParamsCfgPage(OnvifParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::OnvifParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {Compatible,
         m_ui->compatibleEnable,
         {m_ui->compatibleEnablePanel},
         "discoveryflag",
         m_ui->compatibleEnableSwitch},
    });
}

OnvifParamsCfgPage::~OnvifParamsCfgPage() = default;

} // namespace orda_batchCfg
