#pragma once

#include <QObject>
#include <QVector>

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

    /// Takes the record for a run that is about to begin; what is in it stays until open(). Two clients of one user
    /// have the same record, and only one of them may have it at a time, until close() or the end of its process.
    /// @return the process that has it, in words for the user; empty when the record was taken, and also when it cannot
    ///         be opened for another reason: open() then fails and error() names the reason
    QString reserve();
    /// Starts a new record, which empties that of the run before. The path is known to everybody on the machine, so it
    /// is never followed through a link and must be the user's own regular file.
    /// @return false when the file cannot be had; error() says why, and record() then writes nothing
    bool open();
    /// Writes one entry through to the file: a client that is killed loses nothing that was recorded. Serial number, IP
    /// address and name are the store's at this moment. Without an open record nothing happens.
    void record(const QString &devId, const QString &msg);
    void close();

    QString filePath() const { return m_filePath; }
    /// Why the record that was opened last is missing or not complete, in words for the user; empty when it is complete.
    /// Does not change after close().
    QString error() const { return m_error; }
    /// Where each entry of that record ends in the file, in bytes. A reader needs this because a device's message may
    /// look like an entry.
    QVector<int> entryEnds() const { return m_entryEnds; }

private:
    int openLocked(QString *why, QString *holder) const;
    bool write(const QByteArray &entry);
    bool isInPlace() const;
    QString timeText();
    void fail(const QString &what);

    QString m_filePath;
    QFile *m_file = nullptr;
    QString m_noDirectory; // why there is no directory for the file; empty when there is
    bool m_isReserved = false;
    QString m_error;
    QVector<int> m_entryEnds;
    qint64 m_second = -1; // since the epoch, and its text: thousands of results come in one second
    QString m_timeText;
};

} // namespace orda_batchCfg
