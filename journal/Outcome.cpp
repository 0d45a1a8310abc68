#include "journal/Outcome.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orda_journal {

namespace {

// In the order of the enumeration.
constexpr std::array<const char *, 8> names{"done",    "unchanged",      "failed",      "unknown",
                                            "stopped", "partly-written", "not-reached", "differs"};

} // namespace

QString outcomeName(Outcome outcome)
{
    return QLatin1String(names.at(std::size_t(outcome)));
}

QStringList outcomeNames()
{
    QStringList list;
    for (const char *name : names)
        list.append(QLatin1String(name));
    return list;
}

Outcome outcomeFromName(const QString &name, bool *isKnown)
{
    const auto *const found =
        std::find_if(names.begin(), names.end(), [&name](const char *known) { return name == QLatin1String(known); });
    *isKnown = found != names.end();
    return *isKnown ? Outcome(found - names.begin()) : Outcome::Unknown;
}

} // namespace orda_journal
