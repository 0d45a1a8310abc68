#include "OsdExchange.h"
#include "ProcessMemory.h"

#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/OpenFiles.h>
#include <vms_client_sdk/websocket/ClientSignOn.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkRequest>
#include <QTextStream>
#include <QTimer>
#include <QUuid>
#include <QWebSocket>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

// The least that a client on QtWebSockets can be: connects to all devices of an inventory, configures the OSD of each
// over the same texts with the same pause, prints what that took, and ends. No store, no time-outs, no form.
//   bare_client INVENTORY [--read]
// With --read it reads only.

namespace {

using namespace std::chrono_literals;

constexpr int settingUpAtOnce = 32; // as the product

/// One device: dials and signs on, then reads, merges and writes.
class BareDevice : public QObject
{
public:
    using Done = std::function<void()>;

    BareDevice(const vms_sdk::DevInfo &device, bool onlyReads, const Done &isOnline, const Done &isConfigured)
        : m_onlyReads(onlyReads)
        , m_url(vms_sdk::deviceUrl(device))
        , m_signOn(device)
        , m_isOnline(isOnline)
        , m_isConfigured(isConfigured)
    {
        connect(&m_socket, &QWebSocket::textMessageReceived, this, &BareDevice::take);
        connect(&m_socket, &QWebSocket::disconnected, this, [] { qFatal("a device has gone"); });
    }

    void dial()
    {
        QNetworkRequest request(m_url);
        request.setRawHeader("Sec-WebSocket-Protocol", vms_sdk::deviceSubProtocol);
        m_socket.open(request);
    }

    void read() { send(osd_exchange::readRequest()); }

private:
    void send(const QString &text) { m_socket.sendTextMessage(vms_sdk::toFrameText({m_id, text})); }

    void take(const QString &message)
    {
        if (m_signOn.state()) {
            takeAnswer(vms_sdk::parseFrame(message)->text);
            return;
        }
        const vms_sdk::ClientSignOn::Outcome outcome = m_signOn.take(message);
        if (outcome.step == vms_sdk::ClientSignOn::Step::Answer)
            m_socket.sendTextMessage(outcome.text);
        else if (outcome.step == vms_sdk::ClientSignOn::Step::Welcome)
            m_isOnline();
        else
            qFatal("sign-on: %s", qPrintable(outcome.text));
    }

    void takeAnswer(const QString &text)
    {
        if (std::exchange(m_hasRead, true)) {
            if (!osd_exchange::isAccepted(text))
                qFatal("a device refused to be configured");
            m_isConfigured();
        } else if (m_onlyReads) {
            if (osd_exchange::writeRequest(text).isEmpty()) // what a plan works out, too
                qFatal("a device refused to be read");
            m_isConfigured();
        } else {
            const QString write = osd_exchange::writeRequest(text);
            QTimer::singleShot(10ms, this, [this, write] { send(write); });
        }
    }

    bool m_onlyReads;
    QUrl m_url;
    QWebSocket m_socket;
    vms_sdk::ClientSignOn m_signOn;
    Done m_isOnline, m_isConfigured;
    QString m_id = QUuid::createUuid().toString();
    bool m_hasRead = false;
};

} // namespace

int main(int argc, char *argv[])
{
    QElapsedTimer clock;
    clock.start();
    qputenv("QT_NO_GLIB", "1"); // as the programs do
    const QCoreApplication app(argc, argv);
    vms_sdk::raiseOpenFileLimit();
    const vms_sdk::Inventory inventory = vms_sdk::readInventory(QCoreApplication::arguments().value(1));
    if (!inventory.error.isEmpty() || inventory.devices.isEmpty())
        qFatal("bare_client INVENTORY: %s", qPrintable(inventory.error));

    const bool onlyReads = QCoreApplication::arguments().contains(QStringLiteral("--read"));
    std::vector<std::unique_ptr<BareDevice>> devices;
    std::size_t dialled = 0;
    std::size_t online = 0;
    std::size_t configured = 0;
    QJsonObject figures;
    const auto dialNext = [&] {
        if (dialled < devices.size())
            devices[dialled++]->dial();
    };
    const auto isOnline = [&] {
        dialNext();
        if (++online < devices.size())
            return;
        figures.insert(QStringLiteral("connectMs"), clock.elapsed());
        figures.insert(QStringLiteral("memoryKiB"), processMemoryKiB("VmRSS"));
        QTimer::singleShot(200ms, QCoreApplication::instance(), [&] {
            clock.start();
            for (const auto &device : devices)
                device->read();
        });
    };
    const auto isConfigured = [&] {
        if (++configured == devices.size()) {
            figures.insert(QStringLiteral("runMs"), double(clock.nsecsElapsed()) / 1e6);
            QTextStream(stdout) << QJsonDocument(figures).toJson(QJsonDocument::Compact) << Qt::endl;
            std::_Exit(0); // closing thousands of sockets is not measured
        }
    };
    for (const vms_sdk::DevInfo &dev : inventory.devices)
        devices.push_back(std::make_unique<BareDevice>(dev, onlyReads, isOnline, isConfigured));
    for (int i = 0; i < settingUpAtOnce; ++i)
        dialNext();
    return QCoreApplication::exec();
}
