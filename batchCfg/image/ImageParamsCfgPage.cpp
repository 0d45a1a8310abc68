#include "image/ImageParamsCfgPage.h"

#include "image/ImageParamsCfgTask.h"
#include "ui_ImageParamsCfgPage.h"

namespace orda_batchCfg {

namespace {

enum ParamBit
{
    ImageFlip = 1,
    ExpertMode = 2,
    LightMode = 4
};

} // namespace

ImageParamsCfgPage::ImageParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(ImageParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::ImageParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {ImageFlip, m_ui->imageFlip, {m_ui->imageFlipPanel}, "flip", m_ui->imageFlipParam},
        {ExpertMode, m_ui->expertMode, {m_ui->expertModePanel}, "expertmode", m_ui->expertModeParam},
        {LightMode, m_ui->lightMode, {m_ui->lightModePanel}, "lightmode", m_ui->lightModeParam},
    });
}

ImageParamsCfgPage::~ImageParamsCfgPage() = default;

} // namespace orda_batchCfg
