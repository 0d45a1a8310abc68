#pragma once

#include <vms_client_sdk/onvif/FoundCamera.h>

#include <QByteArray>
#include <QByteArrayList>

namespace vms_sdk {

/// What of an answer is taken. Real ones have one or two addresses and a dozen short scopes.
inline constexpr int maxFoundAddresses = 16;
inline constexpr int maxFoundText = 256; ///< characters; what is longer is left out whole, for a half would mislead

/// The texts of one search: a probe for each type of device that cameras answer to. Some know one of them only.
/// @param messageIds one each, such as "urn:uuid:…"
QByteArrayList probeMessages(const QStringList &messageIds);
inline constexpr int probeCount = 2;

/// What is in a datagram that came after a probe.
struct ProbeAnswer
{
    QString relatesTo; ///< id of the message that is answered
    QList<FoundCamera> cameras; ///< those with an address that can be used
    QString error; ///< why it is no answer, printable; empty when it is one
};

ProbeAnswer readProbeAnswer(const QByteArray &datagram, const QString &sender);

} // namespace vms_sdk
