#include "run/DevEligibility.h"

#include <XCOMMON/PwdStrength.h>
#include <orda_base/BaseTools.h>
#include <orda_data/DevsMgrData.h>
#include <orda_saas/SaasWorker.h>

#include <QCoreApplication>

namespace orda_batchCfg {

namespace {

// Codes of DevInfo that the rule tests.
constexpr int reachedDirectly = 1;
constexpr int kindCamera = 1;
constexpr int kindRecorder = 6;

/// The context of the texts.
class DevEligibility
{
    Q_DECLARE_TR_FUNCTIONS(orda_batchCfg::DevEligibility)
};

} // namespace

Eligibility devEligibility(const vms_sdk::DevInfo &dev)
{
    if (dev.id.isEmpty())
        return Eligibility::NoId;
    const vms_sdk::DevStatus status = orda_data::DevsMgrData::instance().getDevStatus(dev.id);
    if (dev.accessCode != reachedDirectly)
        return Eligibility::NotReachedDirectly;
    if (dev.kindCode != kindCamera && dev.kindCode != kindRecorder)
        return Eligibility::NotCameraNorRecorder;
    if (!orda_base::BaseTools::instance().isDevOnline(status))
        return Eligibility::NotOnline;
    if (!dev.ip.isEmpty() || orda_saas::SaasWorker::instance().canOperateDevFreely(dev.serialNumber))
        return Eligibility::Eligible;
    if (status == vms_sdk::DevDefaultPassword)
        return Eligibility::FactoryPassword;
    if (status == vms_sdk::DevLocked)
        return Eligibility::Locked;
    const XCOMMON::PwdStrength strength = XCOMMON::checkPwdStrength(dev.password);
    if (strength == XCOMMON::PwdInvalid)
        return Eligibility::NoPassword;
    if (strength == XCOMMON::PwdWeak)
        return Eligibility::WeakPassword;
    return Eligibility::Eligible;
}

bool isConfigurable(const vms_sdk::DevInfo &dev)
{
    return dev.accessCode == reachedDirectly && (dev.kindCode == kindCamera || dev.kindCode == kindRecorder);
}

QString eligibilityText(Eligibility eligibility)
{
    switch (eligibility) {
    case Eligibility::Eligible:
        break;
    case Eligibility::NoId:
        return DevEligibility::tr("no such device");
    case Eligibility::NotReachedDirectly:
        return DevEligibility::tr("not reached directly");
    case Eligibility::NotCameraNorRecorder:
        return DevEligibility::tr("neither a camera nor a recorder");
    case Eligibility::NotOnline:
        return DevEligibility::tr("not online");
    case Eligibility::FactoryPassword:
        return DevEligibility::tr("no IP address, and still with its factory password");
    case Eligibility::Locked:
        return DevEligibility::tr("no IP address, and locked");
    case Eligibility::NoPassword:
        return DevEligibility::tr("no IP address, and no password");
    case Eligibility::WeakPassword:
        return DevEligibility::tr("no IP address, and a weak password");
    }
    return {};
}

} // namespace orda_batchCfg
