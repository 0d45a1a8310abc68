#include <vms_client_sdk/PinnedCertificate.h>

#include <vms_client_sdk/DeviceProtocol.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QSslCertificate>
#include <QStringList>

namespace vms_sdk {

namespace {

/// Errors about who signed a certificate, and for which name: with a pinned certificate these do not matter.
bool isAboutSigner(QSslError::SslError error)
{
    switch (error) {
    case QSslError::SelfSignedCertificate:
    case QSslError::SelfSignedCertificateInChain:
    case QSslError::UnableToGetIssuerCertificate:
    case QSslError::UnableToGetLocalIssuerCertificate: // signed by a maker's CA that is not installed here
    case QSslError::UnableToVerifyFirstCertificate:
    case QSslError::UnableToDecodeIssuerPublicKey:
    case QSslError::UnableToDecryptCertificateSignature:
    case QSslError::CertificateSignatureFailed:
    case QSslError::SubjectIssuerMismatch:
    case QSslError::AuthorityIssuerSerialNumberMismatch:
    case QSslError::InvalidCaCertificate:
    case QSslError::PathLengthExceeded:
    case QSslError::CertificateUntrusted:
    case QSslError::HostNameMismatch:
        return true;
    default:
        return false;
    }
}

/// Checked here and not by the errors, because those do not always name the right certificate of a chain.
bool isInItsTime(const QSslCertificate &certificate)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    return certificate.effectiveDate() <= now && now <= certificate.expiryDate();
}

} // namespace

PinnedCertificate::PinnedCertificate(const QString &fingerprint)
    : m_isSet(!fingerprint.isEmpty())
    , m_sha256(sha256FromText(fingerprint))
{
}

bool PinnedCertificate::matches(const QSslCertificate &certificate) const
{
    return isSet() && certificate.digest(QCryptographicHash::Sha256) == m_sha256;
}

QList<QSslError> PinnedCertificate::tolerated(const QList<QSslError> &errors, const QSslCertificate &leaf) const
{
    if (!matches(leaf) || !isInItsTime(leaf))
        return {};
    QList<QSslError> list;
    for (const QSslError &error : errors) {
        const bool isAboutAnother = !error.certificate().isNull() && error.certificate() != leaf;
        if (isAboutAnother || isAboutSigner(error.error()))
            list.append(error);
    }
    return list;
}

QString PinnedCertificate::fault(const QList<QSslError> &errors, const QList<QSslError> &tolerated)
{
    QStringList faults;
    for (const QSslError &error : errors)
        if (!tolerated.contains(error))
            faults.append(error.errorString());
    return faults.isEmpty()
             ? QString()
             : QStringLiteral("shows a certificate that is not accepted: %1").arg(faults.join(QLatin1String("; ")));
}

} // namespace vms_sdk
