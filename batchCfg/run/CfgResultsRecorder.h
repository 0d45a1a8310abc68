#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QFile;
QT_END_NAMESPACE

namespace orda_batchCfg {

/// Writes the outcome of each device of a page's last run to a plain text file in the temporary directory, one entry a
/// device: time, serial number, IP address, message, name. User-interface thread only.
class CfgResultsRecorder : public QObject
{
    Q_OBJECT

public:
    /// Touches no file. @param fileName without a directory
    explicit CfgResultsRecorder(const QString &fileName, QObject *parent = nullptr);

    /// Starts a new record, which empties that of the run before. The path is known to everybody on the machine, so it
    /// is never followed through a link and must be the user's own regular file.
    /// @return false when the file cannot be had; the reason is logged, and record() then writes nothing
    bool open();
    /// Writes one entry through to the file: a client that is killed loses nothing that was recorded. Serial number, IP
    /// address and name are the store's at this moment. Without an open record nothing happens.
    void record(const QString &devId, const QString &msg);
    void close();

    QString filePath() const { return m_filePath; }

private:
    bool openSafely();
    QString timeText();
    void reportOnce(const QString &what);

    QString m_filePath;
    QFile *m_file = nullptr;
    bool m_reported = false;
    qint64 m_second = -1; // since the epoch, and its text: thousands of results come in one second
    QString m_timeText;
};

} // namespace orda_batchCfg
