#pragma once

#include <QCoreApplication>
#include <QString>

namespace orda_client {

/// A record on the disk. All users of the machine may share its directory, so only a regular file that belongs to this
/// user is ever read.
class RecordFile
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::RecordFile)

public:
    /// What the file system tells about the file. While it stays equal the content has not changed.
    struct State
    {
        bool exists = false;
        QString refusal; ///< for the user: why the file is not read; empty when it may be
        qint64 changed = 0; ///< nanoseconds since the epoch
        qint64 size = 0;
        quint64 inode = 0;

        /// A local time that no entry can be later than. It is a day after the last change of the file, because the
        /// time zone may have changed since.
        QString lastTime() const;

        bool operator==(const State &other) const;
    };

    struct Content
    {
        QByteArray bytes; ///< in the locale's encoding
        QString error; ///< for the user, empty when the bytes are there
    };

    /// @param nameOrPath a name without a directory: where the module's pages have their records; or an absolute path
    explicit RecordFile(const QString &nameOrPath);

    QString path() const { return m_path; }
    State state() const;
    Content read() const;

private:
    bool isReachable() const;

    QString m_path;
    bool m_isTemporary;
};

} // namespace orda_client
