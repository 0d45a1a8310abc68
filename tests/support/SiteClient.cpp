#include "support/SiteClient.h"

#include "support/FleetOf.h"
#include "support/OrdaTest.h"
#include "support/Store.h"

#include <orda_worker/AssistantSignals.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/WebSocketTransport.h>

using orda_worker::AssistantSignals;

namespace {

QList<vms_sdk::DevInfo> started(device_fleet::EmbeddedFleet &fleet)
{
    if (const QString error = fleet.start(); !error.isEmpty())
        qFatal("%s", qPrintable(error));
    return fleet.inventory();
}

} // namespace

FleetSite::FleetSite(int devices, std::chrono::milliseconds waitingTime, const device_fleet::FaultPlan &faults,
                     quint32 seed)
    : fleet(fleetOf(devices, seed), faults)
    , client(started(fleet), waitingTime)
{
}

SiteClient::SiteClient(const QList<vms_sdk::DevInfo> &devices, std::chrono::milliseconds waitingTime)
{
    auto transport = std::make_unique<vms_sdk::WebSocketTransport>();
    auto *raw = transport.get();
    vms_sdk::ClientSdk::instance().setTransport(std::move(transport));
    vms_sdk::ClientSdk::instance().setRequestTimeout(waitingTime);
    orda_data::DevsMgrData::instance().updateDevs(devices);
    raw->setDevices(devices);
    form.show();
}

SiteClient::~SiteClient()
{
    dismissDialogs();
    vms_sdk::ClientSdk::instance().setTransport(nullptr);
    clearStore();
}

QString SiteClient::configure(const FamilyRow &family) const
{
    const QSignalSpy summaries(&AssistantSignals::instance(), &AssistantSignals::signalEventConfirmRaised);
    form.findChild<QAbstractButton *>(family.navigationKey)->click();
    form.findChild<QWidget *>(family.pageName)->findChild<QAbstractButton *>(QStringLiteral("okBt"))->click();
    return summaries.count() == 1 ? summaries.at(0).at(0).value<orda_worker::EventConfirmInfo>().text : QString();
}
