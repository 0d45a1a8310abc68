#pragma once

#include <vms_client_sdk/LinkTrouble.h>

#include <QAbstractSocket>
#include <QSslConfiguration>

#include <chrono>

/// What all connections to devices have in common, whichever protocol they speak.
namespace vms_sdk {

/// TLS 1.2 or newer, with keys exchanged over elliptic curves. With plain Diffie-Hellman the device would choose the
/// numbers before it has shown who it is, and large ones block the thread that all devices share for a second.
QSslConfiguration deviceTls();

/// Why there is no connection to a device, from what its socket says.
/// @param isConnecting whether it has not been up yet
TroubleReason troubleOf(QAbstractSocket::SocketError error, bool isConnecting);

/// The pause before a device is tried again: random, the longest possible one growing with the losses in a row, so that
/// devices that were lost together are not tried again at the same time.
/// @param first the shortest @param last the longest
std::chrono::milliseconds randomBackOff(std::chrono::milliseconds first, std::chrono::milliseconds last, int losses);

} // namespace vms_sdk
