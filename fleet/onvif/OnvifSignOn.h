#pragma once

#include "fleet/onvif/CameraState.h"

#include <QByteArrayList>
#include <QDateTime>
#include <QHash>

namespace device_fleet {

enum class SignOn
{
    Good,
    Missing, ///< no account was shown in a way that the camera takes
    Stale, ///< the right one, but its nonce does not count any more
    Refused
};

/// What a client shows of an account.
struct ShownAccount
{
    QByteArray authorization; ///< the HTTP header's value; may be empty
    QByteArray target; ///< that the request is for, as it was written
    const vms_sdk::XmlElement *soapHeader = nullptr; ///< may be null
};

/// A camera's own judgement of who asks: HTTP Digest, WS-UsernameToken, or both.
class OnvifSignOn
{
public:
    OnvifSignOn(QString userName, QString password, const CameraTraits &traits);

    /// @param now by the camera's clock
    SignOn check(const ShownAccount &shown, const QDateTime &now);
    /// The headers of HTTP that ask for an account, with a new nonce; empty where the camera takes none by HTTP.
    QByteArray challenges(bool isStale);

private:
    SignOn checkDigest(const QByteArray &authorization, const QByteArray &target);
    SignOn checkToken(const vms_sdk::XmlElement &token, const QDateTime &now);

    QString m_userName, m_password;
    CameraTraits m_traits;
    QByteArrayList m_nonces; ///< given out and still good, the oldest first
    QHash<QString, QDateTime> m_usedNonces; ///< of UsernameToken, with the time of their use
};

} // namespace device_fleet
