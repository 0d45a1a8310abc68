#include "journal/HistoryOptions.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

namespace orda_journal {

QString HistoryOptions::defaultPath()
{
    QString state = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
    if (!state.startsWith(QLatin1Char('/'))) // a relative path is to be ignored
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return QDir::cleanPath(state) + QStringLiteral("/orda/history.db");
}

HistoryOptions HistoryOptions::configured(QString *warning)
{
    HistoryOptions options;
    warning->clear();
    const QString path =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1String("/orda/history.ini");
    const QSettings settings(path, QSettings::IniFormat);
    const auto number = [&](const char *key, qint64 absent) {
        const QString text = settings.value(QLatin1String(key)).toString();
        bool isNumber = false;
        const int value = text.toInt(&isNumber);
        if (isNumber && value > 0)
            return qint64(value);
        if (settings.contains(QLatin1String(key)))
            *warning = tr("%1: %2 must be a whole number from 1 on, not \"%3\"; it is %4")
                           .arg(path, QLatin1String(key), text)
                           .arg(absent);
        return absent;
    };
    constexpr qint64 megabyte = 1 << 20;
    options.keptDays = int(number("keptDays", options.keptDays));
    options.keptBytes = megabyte * number("keptMegabytes", options.keptBytes / megabyte);
    if (settings.status() != QSettings::NoError)
        *warning = tr("%1 cannot be read").arg(path);
    return options;
}

} // namespace orda_journal
