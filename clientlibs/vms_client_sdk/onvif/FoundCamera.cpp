#include <vms_client_sdk/onvif/FoundCamera.h>

#include <vms_client_sdk/ForeignText.h>

#include <QHostAddress>

namespace vms_sdk {

namespace {

constexpr quint16 httpPort = 80;
constexpr quint16 httpsPort = 443;

bool isTls(const QUrl &address)
{
    return address.scheme() == QLatin1String("https");
}

quint16 portOf(const QUrl &address)
{
    return quint16(address.port(isTls(address) ? httpsPort : httpPort));
}

} // namespace

bool FoundCamera::isAtSender() const
{
    return !addresses.isEmpty() && addresses.constFirst().host() == sender;
}

QString hostAndPort(const QUrl &address)
{
    return QStringLiteral("%1 %2").arg(address.host()).arg(portOf(address));
}

DevInfo toDevInfo(const FoundCamera &camera, QSet<QString> *takenIds)
{
    const QUrl address = camera.addresses.value(0);
    DevInfo device;
    device.protocol = DevProtocol::Onvif;
    device.name = displayText(camera.name.isEmpty() ? camera.hardware : camera.name); // no inventory takes controls
    device.accessCode = device.kindCode = 1;
    const QHostAddress ip(address.host());
    if (ip.protocol() == QAbstractSocket::IPv4Protocol && !address.hasQuery()) {
        device.ip = ip.toString();
        device.ipNumber = ip.toIPv4Address();
        device.port = portOf(address);
        device.tls = isTls(address);
        const QString path = address.path(QUrl::FullyEncoded);
        device.path = path.isEmpty() ? QStringLiteral("/onvif/device_service") : path; // the standard's own
    } else {
        device.url = address.toString(QUrl::FullyEncoded);
    }
    const bool isUsualPort = portOf(address) == httpPort || portOf(address) == httpsPort;
    const QString host = displayText(address.host(QUrl::FullyEncoded));
    const QString first = isUsualPort ? QStringLiteral("onvif-%1").arg(host)
                                      : QStringLiteral("onvif-%1-%2").arg(host).arg(portOf(address));
    device.id = first;
    for (int number = 2; takenIds->contains(device.id); ++number)
        device.id = QStringLiteral("%1-%2").arg(first).arg(number);
    takenIds->insert(device.id);
    return device;
}

} // namespace vms_sdk
