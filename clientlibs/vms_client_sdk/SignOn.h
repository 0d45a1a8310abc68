#pragma once

#include <QByteArray>
#include <QString>

namespace vms_sdk {

// What both sides of a sign-on compute (docs/device-protocol.md, "Sign-on"). Nonces and proofs are base64 texts
// throughout.

enum class SignOnSide
{
    Client,
    Device
};

/// A fresh nonce from the system's random source.
QByteArray makeNonce();

/// True for well-formed base64 of at least 16 bytes: a shorter nonce would let recorded proofs be used again.
bool isNonceLongEnough(const QByteArray &base64);

/// HMAC-SHA256(UTF-8 password, "client:" or "device:" + device nonce + ":" + client nonce).
QByteArray signOnProof(SignOnSide side, const QString &password, const QByteArray &deviceNonce,
                       const QByteArray &clientNonce);

/// Compares proofs in a time that does not tell where they differ.
bool isSameProof(const QByteArray &a, const QByteArray &b);

} // namespace vms_sdk
