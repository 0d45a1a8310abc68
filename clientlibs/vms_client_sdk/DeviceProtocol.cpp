#include <vms_client_sdk/DeviceProtocol.h>

#include <QRegularExpression>

namespace vms_sdk {

QString toFrameText(const DeviceFrame &frame)
{
    return frame.requestId + QLatin1Char('\n') + frame.text;
}

std::optional<DeviceFrame> parseFrame(const QString &frameText)
{
    const int end = frameText.indexOf(QLatin1Char('\n'));
    if (end < 0)
        return std::nullopt;
    return DeviceFrame{frameText.left(end), frameText.mid(end + 1)};
}

QByteArray sha256FromText(const QString &fingerprint)
{
    static const QRegularExpression bytes(QStringLiteral("^[0-9A-Fa-f]{2}(:?[0-9A-Fa-f]{2}){31}\\z"));
    return bytes.match(fingerprint).hasMatch() ? QByteArray::fromHex(fingerprint.toLatin1()) : QByteArray();
}

QUrl deviceUrl(const DevInfo &device)
{
    if (!device.url.isEmpty())
        return QUrl(device.url, QUrl::StrictMode);
    if (device.ip.isEmpty() || device.port == 0)
        return {};
    QString scheme = device.protocol == DevProtocol::Onvif ? QStringLiteral("http") : QStringLiteral("ws");
    if (device.tls)
        scheme += QLatin1Char('s');
    return QUrl(QStringLiteral("%1://%2:%3%4").arg(scheme, device.ip).arg(device.port).arg(device.path),
                QUrl::StrictMode);
}

} // namespace vms_sdk
