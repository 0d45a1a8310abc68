#pragma once

#include <QString>

namespace orda_batch {

/// How many columns of a terminal a text takes: wide characters, as Chinese ones are, take two. By the locale of the
/// process; controls and what the locale does not know count as one.
int displayWidth(const QString &text);

/// The text as it fits into that many columns, with "…" at its end when it does not fit whole.
QString cutToWidth(const QString &text, int width);

} // namespace orda_batch
