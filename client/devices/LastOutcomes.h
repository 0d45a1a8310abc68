#pragma once

#include "journal/HistoryOptions.h"
#include "journal/HistoryRows.h"

#include <vms_client_sdk/DevInfo.h>

#include <QFutureWatcher>
#include <QHash>
#include <QObject>
#include <QVector>

namespace orda_client {

/// What became of each device in its latest run, from the history, which is read in another thread. User-interface
/// thread.
class LastOutcomes : public QObject
{
    Q_OBJECT

public:
    struct LastOutcome
    {
        orda_journal::LatestOutcome latest;
        QString text; ///< "Audio Parameters: Done"
        QString time; ///< when the run began
    };

    explicit LastOutcomes(const orda_journal::HistoryOptions &history, QObject *parent = nullptr);

    /// Reads the history anew; returns at once. While it is being read, it is read once more after that.
    void read();

    /// Null when the history has none of this device. One of a device that was replaced by it since does not count.
    const LastOutcome *of(const vms_sdk::DevInfo &device) const;
    /// Why the history could not be read, for the user; empty when it was.
    QString error() const { return m_read.error; }

signals:
    void signalRead();

private:
    struct Read
    {
        QHash<QString, QVector<LastOutcome>> outcomes; ///< by device id
        QString error;
    };

    static Read readNow(const orda_journal::HistoryOptions &history);
    void take();

    const orda_journal::HistoryOptions m_history;
    QFutureWatcher<Read> m_reading;
    bool m_isWantedAgain = false;
    Read m_read;
};

} // namespace orda_client
