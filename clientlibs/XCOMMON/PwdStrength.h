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

/// There are four kinds of characters: lower case, upper case, digits, and all others.
/// Empty: invalid. Under 8 characters, or only one kind: weak. Two kinds: medium. Three kinds or more: strong.
XCOMMON_EXPORT PwdStrength checkPwdStrength(const QString &password);

} // namespace XCOMMON
