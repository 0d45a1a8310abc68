#include "network/NetworkParamsCfgPage.h"

#include "network/NetworkParamsCfgTask.h"
#include "ui_NetworkParamsCfgPage.h"

namespace orda_batchCfg {

namespace {

enum ParamBit
{
    Compatible = 1,
    LockIp = 2,
    SmartOnline = 4
};

} // namespace

NetworkParamsCfgPage::NetworkParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(NetworkParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::NetworkParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {Compatible, m_ui->compatibleEnable, {m_ui->compatibleEnablePanel}, "discoveryflag", m_ui->compatibleSwitch},
        {LockIp, m_ui->lockIpEnable, {m_ui->lockIpEnablePanel}, "bIPLock", m_ui->lockIpSwitch},
        {SmartOnline, m_ui->smartOnlineEnable, {m_ui->smartOnlineEnablePanel}, "bSmartOnline", m_ui->smartOnlineSwitch},
    });
}

NetworkParamsCfgPage::~NetworkParamsCfgPage() = default;

} // namespace orda_batchCfg
