#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/websocket/ClientSignOn.h>

#include <QElapsedTimer>
#include <QJsonObject>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

class BareClient;

/// One device of a bare client, without its connection: what is sent when, and what is made of an answer.
class BareDevice
{
public:
    BareDevice(const vms_sdk::DevInfo &device, BareClient &client);
    virtual ~BareDevice() = default;
    BareDevice(const BareDevice &) = delete;
    BareDevice &operator=(const BareDevice &) = delete;

    virtual void dial() = 0;
    void read();

protected:
    virtual void send(const QString &message) = 0;
    /// A whole message has arrived.
    void take(const QString &message);

private:
    void request(const QString &text);
    void takeAnswer(const QString &text);

    BareClient &m_client;
    vms_sdk::ClientSignOn m_signOn;
    QString m_id;
    bool m_hasRead = false;
};

/// What the clients that the product is measured against have in common, so that they differ in nothing but the
/// network: connects to all devices of an inventory, configures the OSD of each over the same texts with the same
/// pause, prints what that took, and ends. No store, no time-outs, no form.
///   INVENTORY [--read]
/// With --read it reads only.
class BareClient
{
public:
    using Later = std::function<void(std::chrono::milliseconds, const std::function<void()> &)>;
    using MakeDevice = std::function<std::unique_ptr<BareDevice>(const vms_sdk::DevInfo &, BareClient &)>;

    /// The clock starts here, before anything of a network library.
    BareClient(int argc, char *argv[]);

    /// @param later calls back once, on the same thread, after that time
    void start(const MakeDevice &make, Later later);

private:
    friend class BareDevice;

    void dialNext();
    void onOnline();
    void onConfigured();

    QElapsedTimer m_clock;
    QString m_inventory;
    bool m_onlyReads;
    Later m_later;
    std::vector<std::unique_ptr<BareDevice>> m_devices;
    std::size_t m_dialled = 0;
    std::size_t m_online = 0;
    std::size_t m_configured = 0;
    QJsonObject m_figures;
};
