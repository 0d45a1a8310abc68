#pragma once

#include <QCoreApplication>
#include <QString>

#include <chrono>

namespace orda_journal {

struct HistoryOptions
{
    Q_DECLARE_TR_FUNCTIONS(orda_journal::HistoryOptions)

public:
    /// $XDG_STATE_HOME/orda/history.db, where XDG_STATE_HOME is ~/.local/state unless it is set to an absolute path.
    static QString defaultPath();

    /// With keptDays and keptMegabytes as the user has set them in orda/history.ini of the configuration directory
    /// ($XDG_CONFIG_HOME, else ~/.config); without the file as they are here.
    /// @param warning what of the file is not used, for the user; else empty
    static HistoryOptions configured(QString *warning);

    QString path = defaultPath();
    int keptDays = 90; ///< older runs are removed …
    qint64 keptBytes = qint64(1) << 30; ///< … and the oldest ones when the file grows beyond this …
    int keptRuns = 20; ///< … but never the latest so many
    /// How long a commit waits for another process that has the file, before the history counts as not writable.
    std::chrono::milliseconds lockTimeout{5000};
    /// Commits are at least so far apart while there is something to write: what comes in between shares one.
    std::chrono::milliseconds groupTime{10};
};

} // namespace orda_journal
