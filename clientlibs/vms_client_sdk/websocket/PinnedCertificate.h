#pragma once

#include <QByteArray>
#include <QSslError>

class QSslCertificate;

namespace vms_sdk {

/// The one certificate that a device may show, told by its SHA-256. The pin stands in for the chain of trust and the
/// host name, for devices sign their certificates themselves; everything else about the certificate must be in order.
class PinnedCertificate
{
public:
    /// Hexadecimal, with or without colons. Empty: nothing is pinned.
    explicit PinnedCertificate(const QString &fingerprint);

    bool isSet() const { return !m_sha256.isEmpty(); }
    bool matches(const QSslCertificate &certificate) const;
    /// Those of @p errors that the pin makes up for.
    QList<QSslError> tolerated(const QList<QSslError> &errors) const;

private:
    QByteArray m_sha256;
};

} // namespace vms_sdk
