#include "journal/HistoryFile.h"

#include "journal/HistorySchema.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QUuid>

#include <array>

namespace orda_journal {

namespace {

// SQLite's primary result codes.
enum SqliteCode
{
    SqliteBusy = 5,
    SqliteLocked = 6,
    SqliteReadOnly = 8,
    SqliteIoError = 10,
    SqliteCorrupt = 11,
    SqliteFull = 13,
    SqliteCannotOpen = 14,
    SqliteNotADatabase = 26
};

// SQLite keeps what was committed last in the second file until it is moved to the first; the third is its index.
const std::array<QString, 3> &suffixes()
{
    static const std::array<QString, 3> all{QStringLiteral("-wal"), QStringLiteral("-shm"), QString()};
    return all;
}

constexpr int cachedKiB = 16 * 1024; // what a run of 10,000 devices has under way, so that it is not read again
constexpr int walPages = 16 * 1024; // 64 MiB: moved to the file after a run and not within it
constexpr int keptWalBytes = 4 * 1024 * 1024; // what the second file shrinks to when it has been moved

} // namespace

HistoryFile::HistoryFile(const HistoryOptions &options)
    : m_options(options)
    , m_connection(QStringLiteral("orda_journal-") + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
}

HistoryFile::~HistoryFile()
{
    close();
}

void HistoryFile::close()
{
    if (!m_database.isValid())
        return;
    m_database.close();
    m_database = QSqlDatabase(); // Qt warns when one is left of a connection that is removed
    QSqlDatabase::removeDatabase(m_connection);
    m_identity.reset();
}

bool HistoryFile::openToWrite(QString *setAside)
{
    close();
    clearError();
    QString why = makePrivateDirectory(QFileInfo(m_options.path).absolutePath());
    if (!why.isEmpty())
        return fail(Unusable, why);
    // Two processes must neither make the tables both, nor set aside a file that the other one has just made.
    FileLock lock;
    why = lock.take(m_options.path + QStringLiteral(".lock"), m_options.lockTimeout);
    if (!why.isEmpty())
        return fail(Unusable, why);
    if (connectToWrite())
        return true;
    return m_fault == Damaged && setAside && moveAside(setAside) && connectToWrite();
}

bool HistoryFile::openToRead()
{
    close();
    clearError();
    const QString directory = QFileInfo(m_options.path).absolutePath();
    if (!identityOf(directory) || !identityOf(m_options.path))
        return true;
    const QString why = refusalOfDirectory(directory);
    if (!why.isEmpty())
        return fail(Unusable, why);
    if (!connectTo(QStringLiteral("QSQLITE_OPEN_READONLY;")))
        return false;
    const int version = value(QStringLiteral("PRAGMA user_version")).toInt();
    if (m_fault == NoFault && version == historySteps().size())
        return true;
    close();
    if (m_fault != NoFault || version == 0) // a file without tables yet: another process is making them
        return m_fault == NoFault;
    return fail(Unusable, tr("%1: it was written by another version of this program").arg(m_options.path));
}

bool HistoryFile::connectTo(const QString &options)
{
    for (const QString &suffix : suffixes()) {
        const QString why = refusalOfFile(m_options.path + suffix);
        if (!why.isEmpty())
            return fail(Unusable, why);
    }
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")))
        return fail(Unusable, tr("%1: Qt's plug-in for SQLite is not installed").arg(m_options.path));
    m_identity = identityOf(m_options.path);
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    m_database.setDatabaseName(m_options.path);
    m_database.setConnectOptions(options
                                 + QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(m_options.lockTimeout.count()));
    if (m_database.open())
        return true;
    close();
    return fail(Unusable, tr("%1: it cannot be opened").arg(m_options.path));
}

bool HistoryFile::connectToWrite()
{
    close();
    clearError();
    const QString why = makePrivateFile(m_options.path);
    if (!why.isEmpty())
        return fail(Unusable, why);
    if (!connectTo({}))
        return false;
    const int version = value(QStringLiteral("PRAGMA user_version")).toInt();
    if (m_fault == NoFault && version > historySteps().size())
        fail(Unusable, tr("%1: it was written by a newer version of this program").arg(m_options.path));
    if (m_fault != NoFault)
        return false;
    if (version == 0) // before the first table: removed runs then make the file smaller
        run(QStringLiteral("PRAGMA auto_vacuum = INCREMENTAL"));
    const QString mode = value(QStringLiteral("PRAGMA journal_mode = WAL")).toString();
    if (m_fault == NoFault && mode != QLatin1String("wal"))
        fail(Unusable, tr("%1: it cannot be shared by several processes there").arg(m_options.path));
    // With FULL a commit is on the disk when it returns, so nothing leaves for a device whose former state a power cut
    // could take away again. What a power cut may cost is what was not committed: outcomes of the last milliseconds,
    // which count as unknown then. A disk that says too early that it has written may lose more.
    run(QStringLiteral("PRAGMA synchronous = FULL"));
    run(QStringLiteral("PRAGMA foreign_keys = ON"));
    run(QStringLiteral("PRAGMA cache_size = -%1").arg(cachedKiB));
    run(QStringLiteral("PRAGMA wal_autocheckpoint = %1").arg(walPages));
    run(QStringLiteral("PRAGMA journal_size_limit = %1").arg(keptWalBytes));
    return m_fault == NoFault && (version == historySteps().size() || migrate());
}

bool HistoryFile::migrate()
{
    const QVector<QStringList> &steps = historySteps();
    if (!begin())
        return false;
    for (int step = value(QStringLiteral("PRAGMA user_version")).toInt(); step < steps.size(); ++step)
        for (const QString &statement : steps.at(step))
            if (m_fault == NoFault)
                run(statement);
    if (m_fault == NoFault && run(QStringLiteral("PRAGMA user_version = %1").arg(steps.size())) && commit())
        return true;
    rollBack();
    return false;
}

bool HistoryFile::isInPlace() const
{
    const std::optional<FileIdentity> now = identityOf(m_options.path);
    return now && m_identity && *now == *m_identity;
}

bool HistoryFile::setAside(QString *what)
{
    FileLock lock;
    const QString why = lock.take(m_options.path + QStringLiteral(".lock"), m_options.lockTimeout);
    if (!why.isEmpty())
        return fail(Unusable, why);
    return !isInPlace() || moveAside(what);
}

// Renames while the connection is open: SQLite, which would tidy up when it closes the file, leaves alone one that was
// moved. The file itself comes last, so that after a crash in between it is found damaged again.
bool HistoryFile::moveAside(QString *what)
{
    const QString stem =
        QStringLiteral("%1.damaged-%2")
            .arg(m_options.path, QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss")));
    QString name = stem;
    for (int i = 2; QFileInfo::exists(name) || QFileInfo::exists(name + suffixes().front()); ++i)
        name = stem + QStringLiteral("-%1").arg(i);
    for (const QString &suffix : suffixes()) {
        const QString from = m_options.path + suffix;
        if (identityOf(from) && !QFile::rename(from, name + suffix))
            return fail(Unusable, tr("%1: it is damaged and cannot be renamed").arg(from));
    }
    *what = tr("The history %1 is damaged. It was renamed to %2, and a new one was begun.").arg(m_options.path, name);
    return true;
}

void HistoryFile::clearError()
{
    m_fault = NoFault;
    m_error.clear();
}

bool HistoryFile::fail(Fault fault, const QString &error)
{
    m_fault = fault;
    m_error = error;
    return false;
}

// Takes the error of a query. The first one stands: it is the cause of those after it.
void HistoryFile::note(const QSqlQuery &query)
{
    const QSqlError error = query.lastError();
    if (error.type() == QSqlError::NoError || m_fault != NoFault)
        return;
    const int code = error.nativeErrorCode().toInt() & 0xff; // without the detail in the higher bits
    const bool isDamaged = code == SqliteCorrupt || code == SqliteNotADatabase;
    const QString what = textOf(code);
    fail(isDamaged ? Damaged : Unusable,
         QStringLiteral("%1: %2").arg(m_options.path, what.isEmpty() ? error.databaseText() : what));
}

QString HistoryFile::textOf(int sqliteCode)
{
    switch (sqliteCode) {
    case SqliteCorrupt:
    case SqliteNotADatabase:
        return tr("it is damaged");
    case SqliteFull:
        return tr("the disk is full");
    case SqliteIoError:
        return tr("the disk could not be read or written");
    case SqliteReadOnly:
        return tr("it is read-only");
    case SqliteBusy:
    case SqliteLocked:
        return tr("another process has it locked");
    case SqliteCannotOpen:
        return tr("it cannot be opened");
    default:
        return {};
    }
}

QSqlQuery HistoryFile::prepare(const QString &sql)
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    query.prepare(sql);
    note(query);
    return query;
}

bool HistoryFile::run(QSqlQuery &query)
{
    if (query.exec())
        return true;
    note(query);
    return m_fault != NoFault ? false : fail(Unusable, m_options.path);
}

bool HistoryFile::run(const QString &sql)
{
    QSqlQuery query = prepare(sql);
    return m_fault == NoFault && run(query);
}

bool HistoryFile::next(QSqlQuery &query)
{
    const bool isThere = query.next();
    note(query); // of a row that cannot be read, too
    return isThere;
}

QVariant HistoryFile::value(const QString &sql)
{
    QSqlQuery query = prepare(sql);
    return m_fault == NoFault && run(query) && next(query) ? query.value(0) : QVariant();
}

bool HistoryFile::begin()
{
    clearError();
    return run(QStringLiteral("BEGIN IMMEDIATE"));
}

bool HistoryFile::commit()
{
    return m_fault == NoFault && run(QStringLiteral("COMMIT"));
}

// What fails here has been rolled back by SQLite already; the error before it stays.
void HistoryFile::rollBack()
{
    QSqlQuery(m_database).exec(QStringLiteral("ROLLBACK"));
}

QString HistoryFile::lockPath(const QString &runId) const
{
    const QString id = QUuid::fromString(runId).toString(QUuid::WithoutBraces);
    return QStringLiteral("%1/%2.lock").arg(QFileInfo(m_options.path).absolutePath(), id);
}

} // namespace orda_journal
