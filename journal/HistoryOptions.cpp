#include "journal/HistoryOptions.h"

#include <QDir>
#include <QFile>

namespace orda_journal {

QString HistoryOptions::defaultPath()
{
    QString state = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
    if (!state.startsWith(QLatin1Char('/'))) // a relative path is to be ignored
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return QDir::cleanPath(state) + QStringLiteral("/orda/history.db");
}

} // namespace orda_journal
