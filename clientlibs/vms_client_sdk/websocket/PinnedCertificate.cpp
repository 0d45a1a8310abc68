#include "PinnedCertificate.h"

#include <QCryptographicHash>
#include <QSslCertificate>

namespace vms_sdk {

PinnedCertificate::PinnedCertificate(const QString &fingerprint)
    : m_sha256(QByteArray::fromHex(fingerprint.toLatin1())) // which reads over colons
{
}

bool PinnedCertificate::matches(const QSslCertificate &certificate) const
{
    return isSet() && certificate.digest(QCryptographicHash::Sha256) == m_sha256;
}

QList<QSslError> PinnedCertificate::tolerated(const QList<QSslError> &errors) const
{
    QList<QSslError> list;
    for (const QSslError &error : errors) {
        switch (error.error()) {
        case QSslError::SelfSignedCertificate:
        case QSslError::UnableToGetLocalIssuerCertificate: // signed by a maker's CA that is not installed here
        case QSslError::UnableToVerifyFirstCertificate:
        case QSslError::CertificateUntrusted:
        case QSslError::HostNameMismatch:
            if (matches(error.certificate()))
                list.append(error);
            break;
        default:
            break;
        }
    }
    return list;
}

} // namespace vms_sdk
