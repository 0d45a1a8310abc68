#include "client/ClientSession.h"
#include "fleet/EmbeddedFleet.h"
#include "fleet/FaultPlan.h"
#include "journal/HistoryWriter.h"
#include "journal/JournalTransport.h"
#include "journal/PageWatch.h"

#include <families/Families.h>

#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/WebSocketTransport.h>

#include <QWidget>

#include <utility>

namespace orda_client {

ClientSession::ClientSession(const orda_journal::HistoryOptions &history, QObject *parent)
    : QObject(parent)
{
    using orda_journal::JournalTransport;
    auto transport = std::make_unique<vms_sdk::WebSocketTransport>();
    m_transport = transport.get();
    auto journal = std::make_unique<JournalTransport>(std::move(transport),
                                                      std::make_unique<orda_journal::HistoryWriter>(history));
    m_journal = journal.get();
    m_pageWatch = new orda_journal::PageWatch(m_journal, this);
    connect(m_journal, &JournalTransport::signalHistoryFailed, this, [this](const QString &why) {
        tellAfterRun(tr("%1. Nothing was written to devices after that.").arg(why));
    });
    connect(m_journal, &JournalTransport::signalHistorySetAside, this, &ClientSession::tellAfterRun);
    connect(m_journal, &JournalTransport::signalRunEnded, this, &ClientSession::tellAlerts);
    connect(m_pageWatch, &orda_journal::PageWatch::signalDeclined, this, &ClientSession::signalAlert);
    vms_sdk::ClientSdk::instance().setTransport(std::move(journal));

    const auto &data = orda_data::DataSignals::instance();
    connect(&data, &orda_data::DataSignals::signalUpdateDevs, this, &ClientSession::followStore);
    connect(&data, &orda_data::DataSignals::signalDeleteDevs, this, &ClientSession::followStore);
}

ClientSession::~ClientSession()
{
    vms_sdk::ClientSdk::instance().setTransport(nullptr);
}

QString ClientSession::startDemo(int devices, const QString &faultsFile)
{
    device_fleet::FaultPlan faults;
    if (!faultsFile.isEmpty()) {
        QString error;
        QStringList warnings;
        faults = device_fleet::FaultPlan::read(faultsFile, &error, &warnings);
        if (!error.isEmpty())
            return error;
        for (const QString &warning : qAsConst(warnings))
            emit signalWarning(warning);
    }
    device_fleet::FleetOptions options;
    options.devices = devices;
    m_fleet = std::make_unique<device_fleet::EmbeddedFleet>(options, faults);
    QString error = m_fleet->start();
    if (error.isEmpty())
        replaceDevices(m_fleet->inventory());
    return error;
}

QString ClientSession::openInventory(const QString &file)
{
    const vms_sdk::Inventory inventory = vms_sdk::readInventory(file);
    for (const QString &warning : inventory.warnings)
        emit signalWarning(warning);
    if (inventory.error.isEmpty())
        replaceDevices(inventory.devices);
    return inventory.error;
}

void ClientSession::replaceDevices(const QList<vms_sdk::DevInfo> &devices)
{
    auto &store = orda_data::DevsMgrData::instance();
    QSet<QString> kept;
    for (const vms_sdk::DevInfo &dev : devices)
        kept.insert(dev.id);
    QStringList gone;
    const QList<vms_sdk::DevInfo> known = store.getAllDevs(false);
    for (const vms_sdk::DevInfo &dev : known)
        if (!kept.contains(dev.id))
            gone.append(dev.id);
    if (!gone.isEmpty())
        store.deleteDevs(gone);
    store.updateDevs(devices);
}

void ClientSession::followStore()
{
    m_transport->setDevices(orda_data::DevsMgrData::instance().getAllDevs(false));
}

void ClientSession::watchPages(const QObject *form)
{
    for (const orda_batchCfg::FamilyEntry &family : orda_batchCfg::Families::all())
        if (auto *page = form->findChild<QWidget *>(QLatin1String(family.pageName)))
            m_pageWatch->watch(page);
}

// The run's summary would hide it, and whoever drives the client takes an alert before the summary for its end.
void ClientSession::tellAfterRun(const QString &text)
{
    m_alerts.append(text);
    if (!m_journal->isBusy())
        tellAlerts();
}

void ClientSession::tellAlerts()
{
    const QStringList alerts = std::exchange(m_alerts, {});
    for (const QString &text : alerts)
        emit signalAlert(text);
}

void ClientSession::connectAgain()
{
    m_transport->connectAgain();
}

} // namespace orda_client
