#include "run/CfgResultsRecorder.h"

#include <orda_base/BaseTools.h>
#include <orda_data/DevsMgrData.h>

#include <QDateTime>
#include <QFile>
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

// Why the file behind the descriptor is not to be written; empty when it is the user's own.
QString refusal(int fd)
{
    struct stat info = {};
    if (::fstat(fd, &info) != 0)
        return qt_error_string(errno);
    if (!S_ISREG(info.st_mode))
        return QStringLiteral("it is not a regular file");
    if (info.st_uid != ::geteuid())
        return QStringLiteral("it belongs to another user");
    if (info.st_nlink != 1)
        return QStringLiteral("it has more than one name");
    return {};
}

} // namespace

CfgResultsRecorder::CfgResultsRecorder(const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_filePath(QStandardPaths::writableLocation(QStandardPaths::TempLocation) + QLatin1Char('/') + fileName)
{
}

bool CfgResultsRecorder::open()
{
    close();
    m_reported = false;
    m_file = new QFile(m_filePath, this);
    return openSafely();
}

bool CfgResultsRecorder::openSafely()
{
    const auto fail = [this](const QString &why) {
        reportOnce(QStringLiteral("cannot open the record file %1: %2").arg(m_filePath, why));
        return false;
    };

    const int fd = ::open(QFile::encodeName(m_filePath).constData(),
                          O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, S_IRUSR | S_IWUSR);
    if (fd < 0)
        return fail(errno == ELOOP ? QStringLiteral("it is a symbolic link") : qt_error_string(errno));
    QString why = refusal(fd);
    if (why.isEmpty() && (::fchmod(fd, S_IRUSR | S_IWUSR) != 0 || ::ftruncate(fd, 0) != 0))
        why = qt_error_string(errno);
    if (!why.isEmpty()) {
        ::close(fd);
        return fail(why);
    }
    // QFile takes the descriptor over and has nothing left to do that could fail.
    return m_file->open(fd, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
}

void CfgResultsRecorder::record(const QString &devId, const QString &msg)
{
    if (!m_file)
        return;
    const vms_sdk::DevInfo dev = orda_data::DevsMgrData::instance().getDevInfoById(devId);
    const QString gap = QStringLiteral("    ");
    const QString wideGap = QStringLiteral("                ");
    const QString entry = timeText() % gap % dev.serialNumber % gap % dev.ip.leftJustified(ipWidth) % gap % msg
                        % wideGap % dev.name % QLatin1String("\n\n");
    if (!m_file->isOpen())
        return; // open() has said why
    const QByteArray bytes = entry.toLocal8Bit();
    if (m_file->write(bytes) != bytes.size() || !m_file->flush())
        reportOnce(QStringLiteral("cannot write the record file %1: %2").arg(m_filePath, m_file->errorString()));
}

QString CfgResultsRecorder::timeText()
{
    const qint64 second = QDateTime::currentSecsSinceEpoch();
    if (std::exchange(m_second, second) != second)
        m_timeText = orda_base::BaseTools::instance().strDatetime(QDateTime::currentDateTime(), false, false);
    return m_timeText;
}

void CfgResultsRecorder::close()
{
    if (m_file) {
        m_file->close();
        m_file->deleteLater();
        m_file = nullptr;
    }
}

void CfgResultsRecorder::reportOnce(const QString &what)
{
    if (!std::exchange(m_reported, true))
        qCWarning(logRecord).noquote() << what;
}

} // namespace orda_batchCfg
