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
    : ParamsCfgPage(tr("Network Parameters Configuration Result"),
                    QStringLiteral("vms_network_params_batch_cfg_record.txt"), parent)
    , m_ui(std::make_unique<Ui::NetworkParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {Compatible,
         m_ui->compatibleEnable,
         {m_ui->compatibleEnablePanel},
         "discoveryflag",
         switchNumber(m_ui->compatibleSwitch)},
        {LockIp, m_ui->lockIpEnable, {m_ui->lockIpEnablePanel}, "bIPLock", switchState(m_ui->lockIpSwitch)},
        {SmartOnline,
         m_ui->smartOnlineEnable,
         {m_ui->smartOnlineEnablePanel},
         "bSmartOnline",
         switchState(m_ui->smartOnlineSwitch)},
    });
}

NetworkParamsCfgPage::~NetworkParamsCfgPage() = default;

ParamsCfgTask *NetworkParamsCfgPage::createTask(const QString &devId, const QJsonObject &values)
{
    unsigned taskFlags = 0;
    if ((flags() & Compatible) != 0)
        taskFlags |= NetworkParamsCfgTask::Discovery;
    if ((flags() & (LockIp | SmartOnline)) != 0) // both travel with the IP interface
        taskFlags |= NetworkParamsCfgTask::IpInterface;
    return new NetworkParamsCfgTask(devId, values, taskFlags, this);
}

} // namespace orda_batchCfg
