#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <optional>

namespace vms_sdk {

/// HTTP Digest (RFC 7616): the account shown to a device by a nonce of its own. MD5, and SHA-256 where the device
/// offers it; with "qop=auth" or, as older devices have it, without.
class DigestAuth
{
public:
    /// The strongest of the challenges that can be answered; none when there is none ("Basic" is never answered).
    /// @param challenges values of WWW-Authenticate headers; several may be joined by commas in one
    static std::optional<DigestAuth> fromChallenges(const QByteArrayList &challenges);

    const QByteArray &nonce() const { return m_nonce; }
    bool isStale() const { return m_isStale; } ///< the device says that only the nonce was too old

    /// The value of the next request's Authorization header; each call counts as a use of the nonce.
    /// @param uri path and query of the address
    /// @param method of HTTP @param clientNonce empty: a random one
    QByteArray authorization(const QString &userName, const QString &password, const QByteArray &uri,
                             const QByteArray &method = "POST", const QByteArray &clientNonce = {});

private:
    struct Challenge;
    static std::optional<DigestAuth> fromChallenge(const Challenge &challenge);

    QByteArray m_realm, m_nonce, m_opaque, m_algorithm;
    bool m_hasOpaque = false;
    bool m_isSha256 = false;
    bool m_isSession = false; ///< the hash of the account is bound to the nonces: "MD5-sess"
    bool m_hasQop = false;
    bool m_isStale = false;
    quint32 m_uses = 0;
};

} // namespace vms_sdk
