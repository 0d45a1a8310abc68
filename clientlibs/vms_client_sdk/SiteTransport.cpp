#include <vms_client_sdk/SiteTransport.h>

#include <vms_client_sdk/WebSocketTransport.h>
#include <vms_client_sdk/onvif/OnvifTransport.h>

namespace vms_sdk {

SiteTransport::SiteTransport(QObject *parent)
    : DeviceTransport(parent)
    , m_webSockets(new WebSocketTransport(this))
    , m_onvif(new OnvifTransport(this))
{
    listenTo(m_webSockets, DevProtocol::Vms);
    listenTo(m_onvif, DevProtocol::Onvif);
}

SiteTransport::~SiteTransport()
{
    shutdown();
}

void SiteTransport::listenTo(DeviceTransport *transport, DevProtocol protocol)
{
    connect(transport, &DeviceTransport::answered, this, &DeviceTransport::answered, Qt::DirectConnection);
    // By way of this thread, which knows whose device it is now: a device that changes its protocol is reported by both
    // transports at the same time.
    const auto isOfOther = [this, protocol](const QString &devId) {
        return m_isShutDown || m_protocols.value(devId, protocol) != protocol;
    };
    connect(
        transport, &DeviceTransport::linkTroubled, this,
        [this, isOfOther](const QString &devId, const LinkTrouble &trouble) {
            if (!isOfOther(devId))
                emit linkTroubled(devId, trouble);
        },
        Qt::QueuedConnection);
    connect(
        transport, &DeviceTransport::identified, this,
        [this, isOfOther](const QString &devId, const QString &serialNumber) {
            if (!isOfOther(devId))
                emit identified(devId, serialNumber);
        },
        Qt::QueuedConnection);
    connect(
        transport, &DeviceTransport::devStatusChanged, this,
        [this, isOfOther, protocol](const QString &devId, DevStatus status) {
            if (isOfOther(devId))
                return;
            if (status == DevOffline)
                m_reported.remove(devId);
            else
                m_reported.insert(devId, protocol);
            emit devStatusChanged(devId, status);
        },
        Qt::QueuedConnection);
}

void SiteTransport::timedOut(const QString &requestId)
{
    m_onvif->timedOut(requestId); // the others do nothing about it
}

void SiteTransport::setDevices(const QList<DevInfo> &devices)
{
    if (m_isShutDown)
        return;
    QList<DevInfo> ofWebSockets, ofOnvif;
    QStringList changed;
    m_protocols.clear();
    for (const DevInfo &device : devices) {
        m_protocols.insert(device.id, device.protocol);
        (device.protocol == DevProtocol::Onvif ? ofOnvif : ofWebSockets).append(device);
        if (m_reported.value(device.id, device.protocol) != device.protocol)
            changed.append(device.id);
    }
    m_webSockets->setDevices(ofWebSockets);
    m_onvif->setDevices(ofOnvif);
    // What the transport before says of them is not heard any more; the new one begins with a device that is offline.
    for (const QString &devId : qAsConst(changed)) {
        m_reported.remove(devId);
        emit linkTroubled(devId, {});
        emit devStatusChanged(devId, DevOffline);
    }
}

void SiteTransport::send(const QString &requestId, const QString &devId, const QString &text)
{
    if (m_protocols.value(devId) == DevProtocol::Onvif)
        m_onvif->send(requestId, devId, text);
    else
        m_webSockets->send(requestId, devId, text);
}

void SiteTransport::passedOn(const QString &requestId, const QString &text)
{
    m_webSockets->passedOn(requestId, text);
    m_onvif->passedOn(requestId, text);
}

void SiteTransport::setRequestTimeout(std::chrono::milliseconds timeout)
{
    m_webSockets->setRequestTimeout(timeout);
    m_onvif->setRequestTimeout(timeout);
}

void SiteTransport::connectAgain()
{
    m_webSockets->connectAgain();
    m_onvif->connectAgain();
}

void SiteTransport::connectDevicesAgain(const QStringList &devIds)
{
    m_webSockets->connectDevicesAgain(devIds);
    m_onvif->connectDevicesAgain(devIds);
}

void SiteTransport::shutdown()
{
    m_isShutDown = true;
    m_webSockets->shutdown();
    m_onvif->shutdown();
}

} // namespace vms_sdk
