#include "motion/MotionParamsCfgPage.h"

#include "motion/MotionParamsCfgTask.h"
#include "ui_MotionParamsCfgPage.h"

namespace orda_batchCfg {

namespace {

enum ParamBit
{
    MotionEnable = 1,
    Sensitivity = 2
};

} // namespace

MotionParamsCfgPage::MotionParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(MotionParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::MotionParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {MotionEnable, m_ui->motionEnable, {m_ui->motionEnablePanel}, "bMotion", m_ui->motionSwitch},
        {Sensitivity, m_ui->sensitivity, {m_ui->sensitivityPanel}, "sensitivity", m_ui->sensitivityParam},
    });
}

MotionParamsCfgPage::~MotionParamsCfgPage() = default;

} // namespace orda_batchCfg
