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
    : ParamsCfgPage(OSDParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::OSDParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {OsdVisible, m_ui->osdVisible, {m_ui->osdVisiblePanel}, "bShowOSD", m_ui->visibleSwitch},
        {TimeFormat, m_ui->timeFormat, {m_ui->timeFormatPanel}, "timeFormat", m_ui->timeFormatParam},
        {TimePosition, m_ui->timePosition, {m_ui->timePositionPanel}, "timePos", m_ui->timePositionParam},
        {Name, m_ui->name, {m_ui->namePanel}, "channelName", m_ui->nameParam},
        {NamePosition, m_ui->namePosition, {m_ui->namePositionPanel}, "position", m_ui->namePositionParam},
        {LargeFont, m_ui->largeFont, {m_ui->largeFontPanel}, "bLargeOSD", m_ui->largeFontSwitch},
    });
}

OSDParamsCfgPage::~OSDParamsCfgPage() = default;

} // namespace orda_batchCfg
