#pragma once

#include <XCOMMON/Export.h>

#include <QString>

namespace XCOMMON {

enum PwdStrength
{
    PwdInvalid = -1,
    PwdWeak,
    PwdMedium,
    PwdStrong
};

/// Classes of characters are lower case, upper case, digits, and all others.
/// Empty: invalid. Under 8 characters, or of one class only: weak. Three classes or more: strong. Else medium.
XCOMMON_EXPORT PwdStrength checkPwdStrength(const QString &password);

} // namespace XCOMMON
