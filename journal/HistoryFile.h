#pragma once

#include "journal/HistoryOptions.h"
#include "journal/PrivateFile.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <optional>

namespace orda_journal {

/// One connection to the history, of one thread: the file as such, and the errors of what is done with it. The first
/// error stays until open…(), begin() or clearError().
class HistoryFile
{
    Q_DECLARE_TR_FUNCTIONS(orda_journal::HistoryFile)

public:
    enum Fault
    {
        NoFault,
        Unusable,
        Damaged ///< what the file holds is not a history any more
    };

    explicit HistoryFile(const HistoryOptions &options);
    ~HistoryFile();
    HistoryFile(const HistoryFile &) = delete;
    HistoryFile &operator=(const HistoryFile &) = delete;

    /// Makes directory, file and tables where they are missing. A damaged file is set aside and a new one made.
    /// @param setAside appended to: what became of a damaged file, for the user; null: it is left alone, as an error
    bool openToWrite(QString *setAside);
    /// Changes nothing. @return true without being open: there is no history yet
    bool openToRead();
    /// Queries of this connection must be gone.
    void close();
    bool isOpen() const { return m_database.isOpen(); }
    /// False when the path leads to another file by now, or to none.
    bool isInPlace() const;
    /// Renames the file to "….damaged-<date>-<time>" with what belongs to it. Leaves it alone when another process has
    /// done so. Queries may still live; close() afterwards.
    bool setAside(QString *what);

    Fault fault() const { return m_fault; }
    QString error() const { return m_error; } ///< for the user; names the file
    void clearError();
    /// @return false, so that a function can end with it
    bool fail(Fault fault, const QString &error);

    QSqlQuery prepare(const QString &sql);
    template <typename... Values>
    bool run(QSqlQuery &query, const Values &...values)
    {
        int place = 0;
        (query.bindValue(place++, bound(values)), ...);
        return run(query);
    }
    bool run(QSqlQuery &query);
    bool run(const QString &sql);
    /// The next row; false also when reading it failed.
    bool next(QSqlQuery &query);
    /// The first value of the first row.
    QVariant value(const QString &sql);

    bool begin();
    bool commit();
    void rollBack();

    /// Of the lock that the process holds whose run this is.
    QString lockPath(const QString &runId) const;
    const HistoryOptions &options() const { return m_options; }

private:
    template <typename Value>
    static QVariant bound(const Value &value)
    {
        return value;
    }
    // A null QString would become NULL.
    static QVariant bound(const QString &text) { return text.isNull() ? QLatin1String("") : text; }

    static QString textOf(int sqliteCode);
    bool connectToWrite();
    bool connectTo(const QString &options);
    bool migrate();
    bool moveAside(QString *what);
    void note(const QSqlQuery &query);

    HistoryOptions m_options;
    QString m_connection; // name, for Qt
    QSqlDatabase m_database;
    std::optional<FileIdentity> m_identity;
    Fault m_fault = NoFault;
    QString m_error;
};

} // namespace orda_journal
