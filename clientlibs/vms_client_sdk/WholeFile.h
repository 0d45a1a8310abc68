#pragma once

#include <QString>

namespace vms_sdk {

enum class Readers
{
    Usual, ///< as the user's files are
    OwnerOnly ///< from the first byte on: for what holds passwords
};

/// Writes a file so that nobody ever finds half of it: one of that name is replaced when the new one is complete.
/// @return why it is not written, for the user; empty on success
QString writeWholeFile(const QString &path, const QByteArray &content, Readers readers);

} // namespace vms_sdk
