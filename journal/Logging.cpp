#include "journal/Logging.h"

namespace orda_journal {

Q_LOGGING_CATEGORY(logJournal, "orda.journal", QtWarningMsg)

} // namespace orda_journal
