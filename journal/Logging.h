#pragma once

#include <QLoggingCategory>

namespace orda_journal {

/// "orda.journal": what the user is not told of the history.
Q_DECLARE_LOGGING_CATEGORY(logJournal)

} // namespace orda_journal
