#include "XCOMMON/PwdStrength.h"

namespace XCOMMON {

namespace {

constexpr int minLength = 8;

int characterKinds(const QString &password)
{
    bool hasLower = false;
    bool hasUpper = false;
    bool hasDigit = false;
    bool hasOther = false;
    for (const QChar c : password)
        if (c.isLower())
            hasLower = true;
        else if (c.isUpper())
            hasUpper = true;
        else if (c.isDigit())
            hasDigit = true;
        else
            hasOther = true;
    return int(hasLower) + int(hasUpper) + int(hasDigit) + int(hasOther);
}

} // namespace

PwdStrength checkPwdStrength(const QString &password)
{
    if (password.isEmpty())
        return PwdInvalid;
    const int kinds = characterKinds(password);
    if (password.size() < minLength || kinds == 1)
        return PwdWeak;
    return kinds >= 3 ? PwdStrong : PwdMedium;
}

} // namespace XCOMMON
