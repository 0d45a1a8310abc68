#pragma once

#include <QString>

#include <chrono>
#include <optional>

#include <sys/types.h>

namespace orda_journal {

// Files that nobody but the user reads or writes, and that are never reached through a link. The functions return why
// that cannot be had, as a text for the user that names the file; empty when all is well.

/// Makes the directory, and those above it that are missing, for the user alone. One that is there must be the user's
/// own, and nobody else may write to it: who can, could put another file in place of ours at any moment.
QString makePrivateDirectory(const QString &path);
/// Makes an empty file, mode 0600. One that is there gets that mode when it passes refusalOfFile().
QString makePrivateFile(const QString &path);
/// Why a file that is there is not to be used; empty also when there is none.
QString refusalOfFile(const QString &path);
QString refusalOfDirectory(const QString &path);

/// Which file a path leads to at this moment.
struct FileIdentity
{
    dev_t device = 0;
    ino_t inode = 0;

    bool operator==(const FileIdentity &other) const { return device == other.device && inode == other.inode; }
};
/// Nothing when there is no such file.
std::optional<FileIdentity> identityOf(const QString &path);

/// A lock on a file of its own, which ends with its process, however that ends. It holds within a process, too.
class FileLock
{
public:
    FileLock() = default;
    ~FileLock() { release(); }
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

    /// Makes the file where there is none.
    /// @return why the lock was not taken, as a text for the user; empty: taken
    QString take(const QString &path, std::chrono::milliseconds timeout);
    void release();
    void releaseAndRemove();

    /// Whether somebody has the lock. Makes no file.
    static bool isTaken(const QString &path);

private:
    int m_fd = -1;
    QString m_path;
};

} // namespace orda_journal
