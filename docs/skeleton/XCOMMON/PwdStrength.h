#pragma once

#include <QString>

namespace XCOMMON {

/// The module uses the first two names. A client may have more.
enum PwdStrength
{
    PwdInvalid = -1, ///< there is none
    PwdWeak,
    PwdMedium,
    PwdStrong
};

/// A device without an IP address is listed when its password is better than weak.
PwdStrength checkPwdStrength(const QString &password);

} // namespace XCOMMON
