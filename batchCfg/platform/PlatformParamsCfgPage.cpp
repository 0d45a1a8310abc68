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
    : ParamsCfgPage(PlatformParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::PlatformParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {ServiceEnable, m_ui->serviceEnable, {m_ui->serviceEnablePanel}, "qbcloud_en", m_ui->serviceSwitch},
        {ServiceAddress, m_ui->serviceAddress, {m_ui->serviceAddressPanel}, "qbcloud_addr", m_ui->serviceAddressParam},
        // The type has no box of its own: it goes with either.
        {ServiceEnable | ServiceAddress, nullptr, {m_ui->serviceTypePanel}, "qbcloud_type", m_ui->serviceType},
    });
    m_ui->serviceAddressParam->setCursorPosition(0); // where the line is too short, its beginning is seen
}

PlatformParamsCfgPage::~PlatformParamsCfgPage() = default;

} // namespace orda_batchCfg
