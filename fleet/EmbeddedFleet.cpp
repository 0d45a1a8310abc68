#include "fleet/EmbeddedFleet.h"

#include "fleet/DeviceFleet.h"
#include "fleet/ThreadCall.h"

#include <vms_client_sdk/OpenFiles.h>

namespace device_fleet {

namespace {

constexpr qint64 filesPerDevice = 2; // the client's end and ours
constexpr qint64 filesPerCamera = 4; // two connections, with both ends here
constexpr qint64 otherFiles = 128; // libraries, fonts, displays, records

} // namespace

EmbeddedFleet::EmbeddedFleet(const FleetOptions &options, const FaultPlan &faults, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_faults(faults)
{
    m_thread.setObjectName(QStringLiteral("fleet"));
}

EmbeddedFleet::~EmbeddedFleet()
{
    stop();
}

std::unique_ptr<EmbeddedFleet> EmbeddedFleet::startDemo(int devices, const QString &faultsFile, QStringList *warnings,
                                                        QString *error, int onvifDevices)
{
    FaultPlan faults;
    if (!faultsFile.isEmpty())
        faults = FaultPlan::read(faultsFile, error, warnings);
    if (!error->isEmpty())
        return nullptr;
    FleetOptions options;
    options.devices = devices;
    options.onvifDevices = onvifDevices;
    auto fleet = std::make_unique<EmbeddedFleet>(options, faults);
    *error = fleet->start();
    return error->isEmpty() ? std::move(fleet) : nullptr;
}

QString EmbeddedFleet::start()
{
    if (m_fleet)
        return {};
    const qint64 needed = m_options.devices * filesPerDevice + m_options.onvifDevices * filesPerCamera + otherFiles;
    const qint64 limit = vms_sdk::raiseOpenFileLimit();
    if (needed > limit) {
        return tr("%1 simulated devices in this process need %2 open files, but it may have only %3. Start them in a "
                  "process of "
                  "their own, orda_fleet --devices %4 --onvif %5 --inventory FILE, and connect to that inventory.")
            .arg(m_options.devices + m_options.onvifDevices)
            .arg(needed)
            .arg(limit)
            .arg(m_options.devices)
            .arg(m_options.onvifDevices);
    }
    m_fleet = new DeviceFleet(m_options, m_faults);
    m_fleet->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_fleet, &QObject::deleteLater);
    connect(m_fleet, &DeviceFleet::requestReceived, this, &EmbeddedFleet::requestReceived, Qt::DirectConnection);
    connect(m_fleet, &DeviceFleet::signOnRefused, this, &EmbeddedFleet::signOnRefused, Qt::DirectConnection);
    m_thread.start();

    QString error;
    onFleetThread([&] { error = m_fleet->start(); });
    if (!error.isEmpty())
        stop();
    return error;
}

void EmbeddedFleet::stop()
{
    m_thread.quit();
    m_thread.wait();
    m_fleet = nullptr;
}

void EmbeddedFleet::onFleetThread(const std::function<void()> &function) const
{
    callOnThreadOf(m_fleet, function);
}

QList<vms_sdk::DevInfo> EmbeddedFleet::inventory() const
{
    QList<vms_sdk::DevInfo> records;
    onFleetThread([&] { records = m_fleet->inventory(); });
    return records;
}

QJsonObject EmbeddedFleet::dump() const
{
    QJsonObject parameters;
    onFleetThread([&] { parameters = m_fleet->dump(); });
    return parameters;
}

int EmbeddedFleet::connectedDevices() const
{
    int count = 0;
    onFleetThread([&] { count = m_fleet->connectedDevices(); });
    return count;
}

void EmbeddedFleet::setFault(const QString &deviceId, const QString &method, const FaultRule &fault)
{
    onFleetThread([&] { m_fleet->setFault(deviceId, method, fault); });
}

void EmbeddedFleet::clearFaults()
{
    onFleetThread([&] { m_fleet->clearFaults(); });
}

void EmbeddedFleet::setOnline(const QString &deviceId, bool online)
{
    onFleetThread([&] { m_fleet->setOnline(deviceId, online); });
}

} // namespace device_fleet
