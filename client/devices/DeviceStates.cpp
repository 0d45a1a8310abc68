#include "client/devices/DeviceStates.h"

#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_saas/LoginSignals.h>
#include <vms_client_sdk/ClientSignals.h>

#include <QDateTime>

#include <chrono>
#include <utility>

namespace orda_client {

using orda_data::DataSignals;
using orda_data::DevsMgrData;
using orda_saas::LoginSignals;
using vms_sdk::ClientSignals;

namespace {

using namespace std::chrono_literals;

constexpr auto mergeTime = 200ms;

} // namespace

DeviceStates::DeviceStates(QObject *parent)
    : QObject(parent)
    , m_tell(
          mergeTime, [this] { tell(); }, this)
{
    DevsMgrData::instance(); // first, so that it has heard of a trouble before this object looks
    const DataSignals &data = DataSignals::instance();
    connect(&data, &DataSignals::signalDevStatusChanged, this, &DeviceStates::look);
    connect(&data, &DataSignals::signalUpdateDevs, this, &DeviceStates::handleUpdate);
    connect(&data, &DataSignals::signalDeleteDevs, this, &DeviceStates::handleDelete);
    // A device that cannot even be dialled has a reason, and never a change of status.
    connect(&ClientSignals::instance(), &ClientSignals::signalDevTroubled, this, &DeviceStates::look);
    // What the operator may do decides about devices without an address of their own.
    const LoginSignals &login = LoginSignals::instance();
    connect(&login, &LoginSignals::signalSaasLogoutSuccess, this, &DeviceStates::lookAtAll);
    connect(&login, &LoginSignals::signalEnterpriseStatus, this, &DeviceStates::lookAtAll);
    lookAtAll();
}

// At once and not when the changes are told: a device may be away for less than that time.
void DeviceStates::look(const QString &devId)
{
    DeviceState now = DeviceState::ofDevice(devId);
    if (now.reason == orda_engine::ReachReason::NoSuchDevice)
        return; // a late signal
    const auto known = m_states.constFind(devId);
    const bool isKnown = known != m_states.constEnd();
    const bool isSame =
        isKnown && known->kind == now.kind && (now.kind == DeviceState::OffLine || known->reason == now.reason);
    const qint64 lost =
        now.kind == DeviceState::OffLine ? DevsMgrData::instance().getDevTrouble(devId).offlineSince : 0;
    now.since = lost > 0 ? lost : isSame ? known->since : QDateTime::currentMSecsSinceEpoch();
    if (isKnown && *known == now)
        return;
    m_states.insert(devId, now);
    m_tell.request();
}

void DeviceStates::lookAtAll()
{
    const QList<vms_sdk::DevInfo> devs = DevsMgrData::instance().getAllDevs(false);
    for (const vms_sdk::DevInfo &dev : devs)
        look(dev.id);
}

void DeviceStates::handleUpdate(const QList<vms_sdk::DevInfo> &devs)
{
    m_isListChanged = true;
    m_tell.request();
    for (const vms_sdk::DevInfo &dev : devs)
        look(dev.id);
}

void DeviceStates::handleDelete(const QStringList &devIds)
{
    m_isListChanged = true;
    m_tell.request();
    for (const QString &devId : devIds)
        m_states.remove(devId);
}

void DeviceStates::tell()
{
    emit signalChanged(std::exchange(m_isListChanged, false));
}

} // namespace orda_client
