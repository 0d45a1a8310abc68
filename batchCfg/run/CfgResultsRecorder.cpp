#include "run/CfgResultsRecorder.h"

#include <orda_base/BaseTools.h>
#include <orda_data/DevsMgrData.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QStringBuilder>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orda_batchCfg {

namespace {

Q_LOGGING_CATEGORY(logRecord, "orda.record", QtWarningMsg)

constexpr int ipWidth = 16; // a column that holds every IPv4 address

QString temporaryDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation);
}

// Qt takes the root directory in place of one that is missing, and looks for a relative one in the working directory. The
// record must go to neither of them.
QString refusalOfDirectory()
{
    const QByteArray given = qgetenv("TMPDIR");
    if (!given.isEmpty() && !given.startsWith('/'))
        return CfgResultsRecorder::tr("the temporary directory \"%1\" is not an absolute path")
            .arg(QFile::decodeName(given));
    if (!QFileInfo(temporaryDirectory()).isDir())
        return CfgResultsRecorder::tr("the temporary directory \"%1\" is missing").arg(QFile::decodeName(given));
    return {};
}

// Why the file behind the descriptor is not to be written; empty when it is the user's own.
QString refusal(int fd)
{
    struct stat info = {};
    if (::fstat(fd, &info) != 0)
        return qt_error_string(errno);
    if (!S_ISREG(info.st_mode))
        return CfgResultsRecorder::tr("it is not a regular file");
    if (info.st_uid != ::geteuid())
        return CfgResultsRecorder::tr("it belongs to another user");
    if (info.st_nlink != 1)
        return CfgResultsRecorder::tr("it has more than one name");
    return {};
}

struct flock lockFrom(pid_t place)
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = place;
    return lock; // to the end of the file, however long it gets
}

// Locks through this descriptor only, so that the lock stays when a window of the same process opens and closes the
// file. The system does not say which process has such a lock. To make it known, the lock begins at the byte whose
// number is the id of the process; it reaches to the end of the file, so any two of these locks exclude each other.
// @return the process that has the file locked, 0 when it was locked here, -1 when the process is not known
pid_t takeLock(int fd)
{
    struct flock own = lockFrom(::getpid());
    if (::fcntl(fd, F_OFD_SETLK, &own) == 0)
        return 0;
    if (errno != EAGAIN && errno != EACCES)
        return 0; // a file system without locks: a record that is not protected is better than none
    struct flock other = lockFrom(0);
    if (::fcntl(fd, F_OFD_GETLK, &other) != 0 || other.l_type == F_UNLCK)
        return -1;
    if (other.l_pid > 0)
        return other.l_pid;
    return other.l_start > 0 ? pid_t(other.l_start) : -1;
}

QString processText(pid_t pid)
{
    if (pid < 0)
        return CfgResultsRecorder::tr("another process");
    QFile program(QStringLiteral("/proc/%1/comm").arg(pid));
    const QByteArray name = program.open(QIODevice::ReadOnly) ? program.readAll().trimmed() : QByteArray();
    return name.isEmpty() ? CfgResultsRecorder::tr("process %1").arg(pid)
                          : CfgResultsRecorder::tr("process %1 (%2)").arg(pid).arg(QFile::decodeName(name));
}

} // namespace

CfgResultsRecorder::CfgResultsRecorder(const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_filePath(temporaryDirectory() + QLatin1Char('/') + fileName)
    , m_noDirectory(refusalOfDirectory())
{
}

QString CfgResultsRecorder::reserve()
{
    close();
    m_error.clear();
    m_entryEnds.clear();
    m_file = new QFile(m_filePath, this);
    QString why, holder;
    const int fd = openLocked(&why, &holder);
    if (fd >= 0) // QFile takes the descriptor over and has nothing left to do that could fail
        m_isReserved = m_file->open(fd, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
    else
        m_error = tr("cannot open the record file %1: %2")
                      .arg(m_noDirectory.isEmpty() ? m_filePath : QFileInfo(m_filePath).fileName(), why);
    return holder;
}

bool CfgResultsRecorder::open()
{
    if (!m_isReserved)
        reserve();
    if (!m_isReserved) {
        qCWarning(logRecord).noquote() << m_error;
        return false;
    }
    m_isReserved = false;
    if (::fchmod(m_file->handle(), S_IRUSR | S_IWUSR) != 0 || ::ftruncate(m_file->handle(), 0) != 0) {
        fail(tr("cannot open the record file %1: %2").arg(m_filePath, qt_error_string(errno)));
        m_file->close();
    }
    return m_file->isOpen();
}

// Opens and locks the file for this run and leaves its content as it is.
// @return the descriptor; -1 when that failed, with the reason in @p why, and in @p holder when another run has the file
int CfgResultsRecorder::openLocked(QString *why, QString *holder) const
{
    *why = m_noDirectory;
    if (!why->isEmpty())
        return -1;
    const int fd = ::open(QFile::encodeName(m_filePath).constData(),
                          O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, S_IRUSR | S_IWUSR);
    if (fd < 0) {
        *why = errno == ELOOP ? tr("it is a symbolic link") : qt_error_string(errno);
        return -1;
    }
    *why = refusal(fd);
    if (why->isEmpty()) {
        const pid_t pid = takeLock(fd);
        if (pid == 0)
            return fd;
        *holder = processText(pid);
        *why = tr("it is in use by %1").arg(*holder);
    }
    ::close(fd);
    return -1;
}

void CfgResultsRecorder::record(const QString &devId, const QString &msg)
{
    if (!m_file || !m_file->isOpen() || m_isReserved)
        return; // open() has said why, or was not called
    const vms_sdk::DevInfo dev = orda_data::DevsMgrData::instance().getDevInfoById(devId);
    const QString gap = QStringLiteral("    ");
    const QString wideGap = QStringLiteral("                ");
    const QString entry = timeText() % gap % dev.serialNumber % gap % dev.ip.leftJustified(ipWidth) % gap % msg
                        % wideGap % dev.name % QLatin1String("\n\n");
    if (!write(entry.toLocal8Bit()))
        fail(tr("cannot write the record file %1: %2").arg(m_filePath, qt_error_string(errno)));
}

// Calls the system's write() because it names the cause of a failure; QFile does not when a part could be written.
// @return false with errno set, and nothing of the entry in the file
bool CfgResultsRecorder::write(const QByteArray &entry)
{
    const int fd = m_file->handle();
    const char *next = entry.constData();
    const char *const end = next + entry.size();
    while (next < end) {
        const ssize_t written = ::write(fd, next, std::size_t(end - next));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            const int cause = errno;
            // A part of an entry would be read as the beginning of the next one.
            const auto half = off_t(next - entry.constData());
            if (half > 0 && ::ftruncate(fd, ::lseek(fd, 0, SEEK_END) - half) != 0)
                qCDebug(logRecord) << "the record keeps a part of an entry";
            errno = cause;
            return false;
        }
        next += written;
    }
    m_entryEnds.append((m_entryEnds.isEmpty() ? 0 : m_entryEnds.constLast()) + entry.size());
    return true;
}

QString CfgResultsRecorder::timeText()
{
    const qint64 second = QDateTime::currentSecsSinceEpoch();
    if (std::exchange(m_second, second) != second)
        m_timeText = orda_base::BaseTools::instance().strDatetime(QDateTime::currentDateTime(), false, false);
    return m_timeText;
}

// Whether the path still leads to the file that was written.
bool CfgResultsRecorder::isInPlace() const
{
    struct stat written = {};
    struct stat found = {};
    return ::fstat(m_file->handle(), &written) == 0 && ::lstat(QFile::encodeName(m_filePath).constData(), &found) == 0
        && written.st_ino == found.st_ino && written.st_dev == found.st_dev;
}

void CfgResultsRecorder::close()
{
    if (!m_file)
        return;
    if (m_file->isOpen() && !std::exchange(m_isReserved, false)) {
        if (!isInPlace()) {
            m_entryEnds.clear();
            fail(tr("the record file %1 was removed or replaced during the run").arg(m_filePath));
        }
        m_file->close(); // some network drives report only here that they are full
        if (m_file->error() != QFileDevice::NoError)
            fail(tr("cannot write the record file %1: %2").arg(m_filePath, m_file->errorString()));
    }
    m_file->close();
    m_file->deleteLater();
    m_file = nullptr;
}

// Keeps and logs the first failure of a run only: the later ones follow from it.
void CfgResultsRecorder::fail(const QString &what)
{
    if (m_error.isEmpty()) {
        m_error = what;
        qCWarning(logRecord).noquote() << what;
    }
}

} // namespace orda_batchCfg
