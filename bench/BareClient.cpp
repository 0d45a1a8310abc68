#include "BareClient.h"

#include "OsdExchange.h"
#include "ProcessMemory.h"

#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/OpenFiles.h>

#include <QJsonDocument>
#include <QTextStream>
#include <QUuid>

#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr int settingUpAtOnce = 32; // as the product

} // namespace

BareDevice::BareDevice(const vms_sdk::DevInfo &device, BareClient &client)
    : m_client(client)
    , m_signOn(device)
    , m_id(QUuid::createUuid().toString())
{
}

void BareDevice::read()
{
    request(osd_exchange::readRequest());
}

void BareDevice::request(const QString &text)
{
    send(vms_sdk::toFrameText({m_id, text}));
}

void BareDevice::take(const QString &message)
{
    if (m_signOn.state()) {
        takeAnswer(vms_sdk::parseFrame(message)->text);
        return;
    }
    const vms_sdk::ClientSignOn::Outcome outcome = m_signOn.take(message);
    if (outcome.step == vms_sdk::ClientSignOn::Step::Answer)
        send(outcome.text);
    else if (outcome.step == vms_sdk::ClientSignOn::Step::Welcome)
        m_client.onOnline();
    else
        qFatal("sign-on: %s", qPrintable(outcome.text));
}

void BareDevice::takeAnswer(const QString &text)
{
    if (std::exchange(m_hasRead, true)) {
        if (!osd_exchange::isAccepted(text))
            qFatal("a device refused to be configured");
        m_client.onConfigured();
        return;
    }
    const QString write = osd_exchange::writeRequest(text); // what a plan works out, too
    if (write.isEmpty())
        qFatal("a device refused to be read");
    if (m_client.m_onlyReads)
        m_client.onConfigured();
    else
        m_client.m_later(10ms, [this, write] { request(write); });
}

BareClient::BareClient(int argc, char *argv[])
    : m_inventory(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""))
    , m_onlyReads(argc > 2 && qstrcmp(argv[2], "--read") == 0)
{
    m_clock.start();
}

void BareClient::start(const MakeDevice &make, Later later)
{
    m_later = std::move(later);
    vms_sdk::raiseOpenFileLimit();
    const vms_sdk::Inventory inventory = vms_sdk::readInventory(m_inventory);
    if (!inventory.error.isEmpty() || inventory.devices.isEmpty())
        qFatal("INVENTORY [--read]: %s", qPrintable(inventory.error));
    for (const vms_sdk::DevInfo &dev : inventory.devices)
        m_devices.push_back(make(dev, *this));
    for (int i = 0; i < settingUpAtOnce; ++i)
        dialNext();
}

void BareClient::dialNext()
{
    if (m_dialled < m_devices.size())
        m_devices[m_dialled++]->dial();
}

void BareClient::onOnline()
{
    dialNext();
    if (++m_online < m_devices.size())
        return;
    m_figures.insert(QStringLiteral("connectMs"), m_clock.elapsed());
    m_figures.insert(QStringLiteral("memoryKiB"), processMemoryKiB("VmRSS"));
    m_later(200ms, [this] {
        m_clock.start();
        for (const auto &device : m_devices)
            device->read();
    });
}

void BareClient::onConfigured()
{
    if (++m_configured < m_devices.size())
        return;
    m_figures.insert(QStringLiteral("runMs"), double(m_clock.nsecsElapsed()) / 1e6);
    QTextStream(stdout) << QJsonDocument(m_figures).toJson(QJsonDocument::Compact) << Qt::endl;
    std::_Exit(0); // closing thousands of sockets is not measured
}
