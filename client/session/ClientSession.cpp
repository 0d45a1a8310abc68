#include "client/session/ClientSession.h"
#include "engine/DeviceSession.h"
#include "fleet/EmbeddedFleet.h"
#include "journal/HistoryWriter.h"
#include "journal/JournalTransport.h"
#include "journal/PageWatch.h"

#include <families/Families.h>

#include <vms_client_sdk/Inventory.h>

#include <QFileInfo>
#include <QWidget>

#include <utility>

namespace orda_client {

ClientSession::ClientSession(const orda_journal::HistoryOptions &history, QObject *parent)
    : QObject(parent)
    , m_historyOptions(history)
    , m_devices(std::make_unique<orda_engine::DeviceSession>(std::make_unique<orda_journal::HistoryWriter>(history)))
    , m_journal(m_devices->journal())
    , m_pageWatch(new orda_journal::PageWatch(m_journal, this))
{
    using orda_journal::JournalTransport;
    connect(m_journal, &JournalTransport::signalHistoryFailed, this, [this](const QString &why) {
        tellAfterRun(tr("%1. Nothing was written to devices after that.").arg(why));
    });
    connect(m_journal, &JournalTransport::signalHistorySetAside, this, &ClientSession::tellAfterRun);
    connect(m_journal, &JournalTransport::signalRunEnded, this, &ClientSession::tellAlerts);
    connect(m_pageWatch, &orda_journal::PageWatch::signalDeclined, this, &ClientSession::signalAlert);
}

ClientSession::~ClientSession() = default;

orda_journal::JournalTransport *ClientSession::journal() const
{
    return m_journal;
}

void ClientSession::setSource(const Source &source)
{
    m_source = source;
    emit signalSourceChanged();
}

QString ClientSession::startDemo(int devices, const QString &faultsFile, int onvifDevices)
{
    QString error;
    QStringList warnings;
    auto fleet = device_fleet::EmbeddedFleet::startDemo(devices, faultsFile, &warnings, &error, onvifDevices);
    for (const QString &warning : qAsConst(warnings))
        emit signalWarning(warning);
    if (!fleet)
        return error;
    m_devices->setDevices(fleet->inventory()); // before an earlier fleet ends
    m_fleet = std::move(fleet);
    setSource({{}, devices + onvifDevices});
    return {};
}

QString ClientSession::openInventory(const QString &file)
{
    const vms_sdk::Inventory inventory = vms_sdk::readInventory(file);
    for (const QString &warning : inventory.warnings)
        emit signalWarning(warning);
    if (!inventory.error.isEmpty())
        return inventory.error;
    m_devices->setDevices(inventory.devices);
    m_fleet.reset();
    setSource({QFileInfo(file).absoluteFilePath(), 0});
    return {};
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
    m_devices->connectAgain();
}

void ClientSession::connectDevicesAgain(const QStringList &devIds)
{
    m_devices->connectDevicesAgain(devIds);
}

} // namespace orda_client
