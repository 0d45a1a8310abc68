#include "client/record/RecordFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orda_client {

namespace {

// A hundred times the record of ten thousand devices.
constexpr qint64 maxSize = qint64(256) << 20U;

QString temporaryDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation);
}

// Qt would replace a missing directory by the root directory, and take a relative one from the working directory.
bool hasDirectory()
{
    const QByteArray given = qgetenv("TMPDIR");
    return (given.isEmpty() || given.startsWith('/')) && QFileInfo(temporaryDirectory()).isDir();
}

QString refusalOf(const struct stat &info)
{
    if (S_ISLNK(info.st_mode))
        return RecordFile::tr("it is a symbolic link");
    if (!S_ISREG(info.st_mode))
        return RecordFile::tr("it is not a regular file");
    if (info.st_uid != ::geteuid())
        return RecordFile::tr("it belongs to another user");
    if (info.st_nlink > 1)
        return RecordFile::tr("it has more than one name");
    if (info.st_size > maxSize)
        return RecordFile::tr("it is too large for a record");
    return {};
}

} // namespace

QString RecordFile::State::lastTime() const
{
    return QDateTime::fromMSecsSinceEpoch(changed / 1'000'000)
        .addDays(1)
        .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

bool RecordFile::State::operator==(const State &other) const
{
    return exists == other.exists && refusal == other.refusal && changed == other.changed && size == other.size
        && inode == other.inode;
}

RecordFile::RecordFile(const QString &nameOrPath)
    : m_path(nameOrPath)
    , m_isTemporary(!QFileInfo(nameOrPath).isAbsolute())
{
    if (m_isTemporary)
        m_path = temporaryDirectory() + QLatin1Char('/') + nameOrPath;
}

bool RecordFile::isReachable() const
{
    return !m_isTemporary || hasDirectory();
}

RecordFile::State RecordFile::state() const
{
    State found;
    struct stat info = {};
    if (isReachable() && ::lstat(QFile::encodeName(m_path).constData(), &info) == 0) {
        found.exists = true;
        found.refusal = refusalOf(info);
        found.changed = qint64(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec;
        found.size = info.st_size;
        found.inode = info.st_ino;
    }
    return found;
}

RecordFile::Content RecordFile::read() const
{
    const auto fail = [](const QString &why) { return Content{{}, why}; };
    if (!isReachable())
        return fail(tr("there is no temporary directory"));
    // O_NONBLOCK: opening a pipe of that name would wait for a writer.
    const int fd = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return fail(errno == ELOOP ? tr("it is a symbolic link") : qt_error_string(errno));
    struct stat info = {};
    const QString why = ::fstat(fd, &info) == 0 ? refusalOf(info) : qt_error_string(errno);
    QFile file;
    if (!why.isEmpty() || !file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return fail(why.isEmpty() ? file.errorString() : why);
    }
    const QByteArray bytes = file.read(maxSize);
    if (file.error() != QFileDevice::NoError)
        return fail(file.errorString());
    return {bytes, {}};
}

} // namespace orda_client
