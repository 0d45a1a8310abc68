#pragma once

#include <QByteArray>
#include <QSslError>

class QSslCertificate;

namespace vms_sdk {

/// The one certificate that a device may show, known by its SHA-256. It replaces the check of the issuers and of the
/// host name, because devices sign their certificates themselves or have those of a maker that is not known here.
/// Everything else about the certificate must be in order.
class PinnedCertificate
{
public:
    /// As sha256FromText() takes it; a text that it does not take matches no certificate. Empty: nothing is pinned.
    explicit PinnedCertificate(const QString &fingerprint);

    bool isSet() const { return m_isSet; }
    bool matches(const QSslCertificate &certificate) const;
    /// Those of @p errors that do not matter for a pinned certificate.
    /// @param leaf the device's own certificate, which the TLS layer calls the peer's
    QList<QSslError> tolerated(const QList<QSslError> &errors, const QSslCertificate &leaf) const;
    /// What is wrong with the certificate, for a log; empty when all errors are tolerated ones.
    static QString fault(const QList<QSslError> &errors, const QList<QSslError> &tolerated);

private:
    bool m_isSet;
    QByteArray m_sha256;
};

} // namespace vms_sdk
