#include <vms_client_sdk/DeviceTls.h>

#include <QRandomGenerator>
#include <QSslCipher>
#include <QSslEllipticCurve>

#include <algorithm>

namespace vms_sdk {

QSslConfiguration deviceTls()
{
    static const QList<QSslCipher> ciphers = [] {
        QList<QSslCipher> list = QSslConfiguration::supportedCiphers();
        const auto isPlain = [](const QSslCipher &c) { return c.keyExchangeMethod().startsWith(QLatin1String("DH")); };
        list.erase(std::remove_if(list.begin(), list.end(), isPlain), list.end());
        return list;
    }();
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    tls.setCiphers(ciphers);
    // Naming the curves leaves out the other groups of TLS 1.3, among which are such numbers too.
    tls.setEllipticCurves({QSslEllipticCurve::fromShortName(QStringLiteral("prime256v1")),
                           QSslEllipticCurve::fromShortName(QStringLiteral("secp384r1")),
                           QSslEllipticCurve::fromShortName(QStringLiteral("secp521r1"))});
    return tls;
}

TroubleReason troubleOf(QAbstractSocket::SocketError error, bool isConnecting)
{
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return TroubleReason::ConnectionRefused;
    case QAbstractSocket::HostNotFoundError:
        return TroubleReason::NoAddress;
    case QAbstractSocket::SslHandshakeFailedError:
        return TroubleReason::Tls;
    default: // no route to it, for instance
        return isConnecting ? TroubleReason::NoAnswer : TroubleReason::ConnectionLost;
    }
}

std::chrono::milliseconds randomBackOff(std::chrono::milliseconds first, std::chrono::milliseconds last, int losses)
{
    const qint64 longest = qMin<qint64>(last.count(), first.count() << qMin(losses, 20));
    const double share = QRandomGenerator::global()->generateDouble();
    return first + std::chrono::milliseconds(qint64(double(longest - first.count()) * share));
}

} // namespace vms_sdk
