#include "osd/OSDParamsCfgPage.h"

#include "osd/OSDParamsCfgTask.h"
#include "ui_OSDParamsCfgPage.h"

namespace orda_batchCfg {

namespace {

enum ParamBit
{
    OsdVisible = 1,
    TimeFormat = 2,
    TimePosition = 4,
    Name = 8,
    NamePosition = 16,
    LargeFont = 32
};

} // namespace

OSDParamsCfgPage::OSDParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(tr("OSD Parameters Configuration Result"), QStringLiteral("vms_osd_params_batch_cfg_record.txt"),
                    parent)
    , m_ui(std::make_unique<Ui::OSDParamsCfgPage>())
{
    m_ui->setupUi(this);
    const QList<QVariant> positions{QStringLiteral("left_top"), QStringLiteral("left_bottom"),
                                    QStringLiteral("right_top"), QStringLiteral("right_bottom"),
                                    QStringLiteral("hide")};
    m_ui->timePositionParam->setItemsData(positions);
    m_ui->namePositionParam->setItemsData(positions);

    setParams({
        {OsdVisible, m_ui->osdVisible, {m_ui->osdVisiblePanel}, "bShowOSD", switchState(m_ui->visibleSwitch)},
        {TimeFormat,
         m_ui->timeFormat,
         {m_ui->timeFormatPanel},
         "timeFormat",
         [this] { return m_ui->timeFormatParam->currentText() + QStringLiteral(" hh:mm:ss"); }},
        {TimePosition, m_ui->timePosition, {m_ui->timePositionPanel}, "timePos", itemData(m_ui->timePositionParam)},
        {Name, m_ui->name, {m_ui->namePanel}, "channelName", editedText(m_ui->nameParam)},
        {NamePosition, m_ui->namePosition, {m_ui->namePositionPanel}, "position", itemData(m_ui->namePositionParam)},
        {LargeFont, m_ui->largeFont, {m_ui->largeFontPanel}, "bLargeOSD", switchState(m_ui->largeFontSwitch)},
    });
}

OSDParamsCfgPage::~OSDParamsCfgPage() = default;

ParamsCfgTask *OSDParamsCfgPage::createTask(const QString &devId, const QJsonObject &values)
{
    return new OSDParamsCfgTask(devId, values, this);
}

} // namespace orda_batchCfg
