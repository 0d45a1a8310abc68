#pragma once

#include <QCoreApplication>
#include <QString>

namespace orda_client {

/// A record on the disk. It lies in a directory that all users of the machine may share, so only a regular file of the
/// user's own is ever read.
class RecordFile
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::RecordFile)

public:
    /// What is there, told without reading. Two looks that are equal saw the same record.
    struct State
    {
        bool exists = false;
        QString refusal; ///< for the user: why the file is not read; empty when it may be
        qint64 changed = 0; ///< nanoseconds since the epoch
        qint64 size = 0;
        quint64 inode = 0;

        /// The local time that no entry is later than, with a day for a change of the time zone since.
        QString lastTime() const;

        bool operator==(const State &other) const;
    };

    struct Content
    {
        QByteArray bytes; ///< in the locale's encoding
        QString error; ///< for the user, empty when the bytes are there
    };

    /// @param name without a directory
    explicit RecordFile(const QString &name);

    /// As the module's pages have it.
    QString path() const { return m_path; }
    State look() const;
    Content read() const;

private:
    QString m_path;
};

} // namespace orda_client
