#pragma once

#include <orda_base/Export.h>

#include <QCollator>
#include <QString>

#include <optional>

namespace orda_base {

/// Compares names by the rules of the locale, and numbers in them by their value: "cam 2" comes before "cam 10". GUI
/// thread only.
ORDA_BASE_EXPORT const QCollator &nameCollator();

/// The number of a dotted IPv4 address in host byte order; nothing for any other text.
ORDA_BASE_EXPORT std::optional<quint32> ipv4Number(const QString &text);

} // namespace orda_base
