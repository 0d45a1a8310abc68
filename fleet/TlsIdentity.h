#pragma once

#include <QSslConfiguration>

namespace device_fleet {

/// Certificate and key with which the devices show themselves, and TLS 1.2 at least.
/// @param certificateFile PEM, the device's own certificate first, then those that lead to its CA
/// @param keyFile PEM, RSA or EC, without a passphrase
/// @param error set to a text for the user: file and what is wrong with it; empty on success
QSslConfiguration readTlsIdentity(const QString &certificateFile, const QString &keyFile, QString *error);

} // namespace device_fleet
