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
    : ParamsCfgPage(tr("Image Parameters Configuration Result"),
                    QStringLiteral("vms_image_params_batch_cfg_record.txt"), parent)
    , m_ui(std::make_unique<Ui::ImageParamsCfgPage>())
{
    m_ui->setupUi(this);
    m_ui->imageFlipParam->setItemsData(
        {QStringLiteral("off"), QStringLiteral("horizontal"), QStringLiteral("vertical"), QStringLiteral("both")});
    m_ui->expertModeParam->setItemsData(
        {QStringLiteral("auto"), QStringLiteral("indoor"), QStringLiteral("outdoor"), QStringLiteral("backlight")});
    m_ui->lightModeParam->setItemsData(
        {QStringLiteral("ir"), QStringLiteral("white"), QStringLiteral("smart"), QStringLiteral("off")});
    setParams({
        {ImageFlip, m_ui->imageFlip, {m_ui->imageFlipPanel}, "flip", itemData(m_ui->imageFlipParam)},
        {ExpertMode, m_ui->expertMode, {m_ui->expertModePanel}, "expertmode", itemData(m_ui->expertModeParam)},
        {LightMode, m_ui->lightMode, {m_ui->lightModePanel}, "lightmode", itemData(m_ui->lightModeParam)},
    });
}

ImageParamsCfgPage::~ImageParamsCfgPage() = default;

ParamsCfgTask *ImageParamsCfgPage::createTask(const QString &devId, const QJsonObject &values)
{
    int taskFlags = 0;
    if ((flags() & ImageFlip) != 0)
        taskFlags |= ImageParamsCfgTask::Adjust;
    if ((flags() & LightMode) != 0)
        taskFlags |= ImageParamsCfgTask::DayNight;
    if ((flags() & ExpertMode) != 0)
        taskFlags |= ImageParamsCfgTask::Expert;
    return new ImageParamsCfgTask(devId, values, taskFlags, this);
}

} // namespace orda_batchCfg
