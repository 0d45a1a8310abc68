#include "journal/PrivateFile.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orda_journal {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(orda_journal::PrivateFile)
};

QString fault(const QString &path, const QString &why)
{
    return QStringLiteral("%1: %2").arg(path, why);
}

QString faultOfSystem(const QString &path)
{
    const int cause = errno;
    return fault(path, cause == ELOOP ? Texts::tr("it is a symbolic link") : qt_error_string(cause));
}

QString makeDirectories(const QString &path)
{
    if (QFileInfo::exists(path))
        return {};
    const QString above = QFileInfo(path).path();
    QString why = above == path ? QString() : makeDirectories(above);
    if (!why.isEmpty() || ::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || errno == EEXIST)
        return why;
    return faultOfSystem(path);
}

} // namespace

QString makePrivateDirectory(const QString &path)
{
    const QString why = makeDirectories(path);
    return why.isEmpty() ? refusalOfDirectory(path) : why;
}

QString refusalOfDirectory(const QString &path)
{
    struct stat info = {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return faultOfSystem(path);
    if (S_ISLNK(info.st_mode))
        return fault(path, Texts::tr("it is a symbolic link"));
    if (!S_ISDIR(info.st_mode))
        return fault(path, Texts::tr("it is not a directory"));
    if (info.st_uid != ::geteuid())
        return fault(path, Texts::tr("it belongs to another user"));
    if ((info.st_mode & (S_IWGRP | S_IWOTH)) != 0)
        return fault(path, Texts::tr("other users may write to it"));
    return {};
}

// Looks at the path and opens nothing: closing a file that SQLite has open in this process would end SQLite's locks.
QString refusalOfFile(const QString &path)
{
    struct stat info = {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return errno == ENOENT ? QString() : faultOfSystem(path);
    if (S_ISLNK(info.st_mode))
        return fault(path, Texts::tr("it is a symbolic link"));
    if (!S_ISREG(info.st_mode))
        return fault(path, Texts::tr("it is not a regular file"));
    if (info.st_uid != ::geteuid())
        return fault(path, Texts::tr("it belongs to another user"));
    if (info.st_nlink != 1)
        return fault(path, Texts::tr("it has more than one name"));
    return {};
}

QString makePrivateFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int fd = ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (fd >= 0) {
        ::close(fd);
        return {};
    }
    if (errno != EEXIST)
        return faultOfSystem(path);
    QString why = refusalOfFile(path);
    if (!why.isEmpty())
        return why;
    struct stat info = {};
    if (::lstat(name.constData(), &info) != 0
        || ((info.st_mode & ALLPERMS) != (S_IRUSR | S_IWUSR) && ::chmod(name.constData(), S_IRUSR | S_IWUSR) != 0))
        return faultOfSystem(path);
    return {};
}

std::optional<FileIdentity> identityOf(const QString &path)
{
    struct stat info = {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return std::nullopt;
    return FileIdentity{info.st_dev, info.st_ino};
}

bool FileLock::isTaken(const QString &path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return false;
    const bool isFree = ::flock(fd, LOCK_SH | LOCK_NB) == 0;
    ::close(fd);
    return !isFree;
}

QString FileLock::take(const QString &path, std::chrono::milliseconds timeout)
{
    release();
    const QDeadlineTimer deadline(timeout);
    for (;;) {
        const int fd = ::open(QFile::encodeName(path).constData(),
                              O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, S_IRUSR | S_IWUSR);
        if (fd < 0)
            return faultOfSystem(path);
        struct stat info = {};
        const bool isLocked = ::flock(fd, LOCK_EX | LOCK_NB) == 0;
        const bool isBusy = !isLocked && (errno == EWOULDBLOCK || errno == EINTR);
        if (isLocked && ::fstat(fd, &info) == 0 && identityOf(path) == FileIdentity{info.st_dev, info.st_ino}) {
            m_fd = fd;
            m_path = path;
            return {};
        }
        QString why = isBusy ? fault(path, Texts::tr("another process has it locked")) : faultOfSystem(path);
        ::close(fd);
        if (isLocked)
            continue; // whoever had it has removed the file: this is the lock of none
        if (!isBusy || deadline.hasExpired())
            return why;
        QThread::msleep(5); // flock() itself waits without end
    }
}

void FileLock::release()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

void FileLock::releaseAndRemove()
{
    if (m_fd >= 0)
        ::unlink(QFile::encodeName(m_path).constData());
    release();
}

} // namespace orda_journal
