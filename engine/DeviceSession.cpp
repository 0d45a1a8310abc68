#include "engine/DeviceSession.h"

#include "journal/HistoryWriter.h"
#include "journal/JournalTransport.h"

#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/SiteTransport.h>

#include <QSet>

#include <utility>

namespace orda_engine {

using orda_data::DataSignals;
using orda_data::DevsMgrData;

DeviceSession::DeviceSession(std::unique_ptr<orda_journal::HistoryWriter> history, QObject *parent)
    : QObject(parent)
{
    auto transport = std::make_unique<vms_sdk::SiteTransport>();
    m_transport = transport.get();
    auto journal = std::make_unique<orda_journal::JournalTransport>(std::move(transport), std::move(history));
    m_journal = journal.get();
    vms_sdk::ClientSdk::instance().setTransport(std::move(journal));

    const DataSignals &data = DataSignals::instance();
    connect(&data, &DataSignals::signalUpdateDevs, this, &DeviceSession::followStore);
    connect(&data, &DataSignals::signalDeleteDevs, this, &DeviceSession::followStore);
}

DeviceSession::~DeviceSession()
{
    vms_sdk::ClientSdk::instance().setTransport(nullptr);
}

orda_journal::JournalTransport *DeviceSession::journal() const
{
    return m_journal;
}

void DeviceSession::setDevices(const QList<vms_sdk::DevInfo> &devices)
{
    DevsMgrData &store = DevsMgrData::instance();
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

void DeviceSession::followStore()
{
    if (m_transport)
        m_transport->setDevices(DevsMgrData::instance().getAllDevs(false));
}

void DeviceSession::connectAgain()
{
    if (m_transport)
        m_transport->connectAgain();
}

void DeviceSession::connectDevicesAgain(const QStringList &devIds)
{
    if (m_transport)
        m_transport->connectDevicesAgain(devIds);
}

} // namespace orda_engine
