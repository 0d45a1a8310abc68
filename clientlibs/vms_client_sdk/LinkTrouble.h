#pragma once

#include <QMetaType>
#include <QString>

namespace vms_sdk {

/// Why a device is not connected.
enum class TroubleReason
{
    None, ///< nothing is known: it was not tried yet, or was taken away on purpose
    Password, ///< the device does not accept the user name or the password
    SerialNumber, ///< it has another serial number than its record
    SignOn, ///< it does not sign on as it should: cannot prove that it knows the password, nonce too short, no
            ///< WebSocket, no HTTP
    Certificate, ///< its certificate is not accepted
    Tls, ///< no secure connection for another reason than the certificate
    ConnectionRefused, ///< nobody listens at its address
    NoAnswer, ///< it does not answer in time, or cannot be reached
    NoAddress, ///< its record has no address, or the name in it is not known
    ConnectionLost, ///< the connection has ended or broken
    Limits ///< cut for what it did: docs/device-protocol.md, section 6
};

/// What a transport knows of a device that is not connected.
struct LinkTrouble
{
    TroubleReason reason = TroubleReason::None; ///< of the latest attempt
    QString detail; ///< short and in English, as the log has it; safe to print
    qint64 offlineSince = 0; ///< milliseconds since the epoch, UTC; 0: it was not online since its record was set
};

inline bool operator==(const LinkTrouble &a, const LinkTrouble &b)
{
    return a.reason == b.reason && a.detail == b.detail && a.offlineSince == b.offlineSince;
}

} // namespace vms_sdk

Q_DECLARE_METATYPE(vms_sdk::TroubleReason)
Q_DECLARE_METATYPE(vms_sdk::LinkTrouble)
