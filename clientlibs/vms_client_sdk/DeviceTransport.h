#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/Export.h>
#include <vms_client_sdk/LinkTrouble.h>

#include <QObject>

#include <chrono>

namespace vms_sdk {

/// Carries texts to devices and back. The SDK owns the transport that it is given (ClientSdk::setTransport).
class VMS_CLIENT_SDK_EXPORT DeviceTransport : public QObject
{
    Q_OBJECT

public:
    explicit DeviceTransport(QObject *parent = nullptr);
    ~DeviceTransport() override;

    /// Called on the GUI thread. Must not block. A text that cannot be delivered is dropped: the request then ends by
    /// its time-out.
    virtual void send(const QString &requestId, const QString &devId, const QString &text) = 0;
    /// Called on the GUI thread when an answer that this transport raised is about to reach the listeners. A transport
    /// that limits how many answers may wait for the GUI thread counts them with this; the default does nothing.
    virtual void passedOn(const QString &requestId, const QString &text);
    /// Called on the GUI thread, before the first request and at each change, with the waiting time of requests. A
    /// transport that needs several steps for one ends it before; the default does nothing.
    virtual void setRequestTimeout(std::chrono::milliseconds timeout);
    /// Called on the GUI thread when the waiting time of a request is over, renewals included, before the listeners
    /// hear of it. A transport that needs several steps for one begins no further step; the default does nothing.
    virtual void timedOut(const QString &requestId);

Q_SIGNALS:
    // May be raised on any thread, from inside send() too: the SDK always queues them.
    void answered(const QString &requestId, const QString &text);
    void devStatusChanged(const QString &devId, vms_sdk::DevStatus status);
    /// Why the device is not connected, for transports that know it: raised before each devStatusChanged() to a state
    /// that is not online, and at no other time, so that a device that comes and goes is limited in both alike.
    void linkTroubled(const QString &devId, const vms_sdk::LinkTrouble &trouble);
    /// A device whose record has no serial number has said its own: before it is online.
    void identified(const QString &devId, const QString &serialNumber);
};

} // namespace vms_sdk
