#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <functional>

namespace vms_sdk {

/// One entry of a CheckedFile. Each field is read by what it must be; the entry keeps the first fault of each field,
/// because later ones may be consequences of it. After a fault the values are of no use.
class CheckedEntry
{
    Q_DECLARE_TR_FUNCTIONS(CheckedJson)

public:
    /// @param name as messages call the entry, such as "devices[1]"
    CheckedEntry(QString name, QJsonObject fields);

    const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    /// Undefined when the field is missing.
    QJsonValue value(const QString &key);
    // These give @p absent when the field is missing.
    QString text(const QString &key, const QString &absent = {});
    int wholeNumber(const QString &key, int min, int max, int absent);
    bool flag(const QString &key, bool absent = false);
    /// The index of the text among @p choices. @param absent -1: the field must not be missing
    int choice(const QString &key, const QStringList &choices, int absent);

    /// @param whatIsRight such as "must not be empty"
    void fail(const QString &key, const QString &whatIsRight);
    struct Fault
    {
        QString key;
        QString whatIsRight;
    };
    /// In the order in which they were found.
    const QVector<Fault> &faults() const { return m_faults; }
    bool hasFault(const QString &key) const;
    /// Field and what would be right, of the first; empty without a fault.
    QString fault() const;
    /// The fields that nobody has read.
    QStringList unknownKeys() const;

private:
    QString m_name;
    QJsonObject m_fields;
    QSet<QString> m_knownKeys;
    QVector<Fault> m_faults;
};

/// A JSON file that people edit: an object with one list of entries, which are objects. The first fault refuses the
/// whole file. All messages are for the user, a printable line each that begins with the file.
class CheckedFile
{
    Q_DECLARE_TR_FUNCTIONS(CheckedJson)

public:
    CheckedFile(QString path, QString listKey);

    /// To be called once.
    /// @param readEntry called for each entry in their order, until one has a fault
    void read(const std::function<void(CheckedEntry &entry)> &readEntry);
    /// Refuses the file for a fault that is not of one entry.
    void fail(const QString &what);

    /// Of the file that was read.
    QFile::Permissions permissions() const { return m_permissions; }
    /// File, entry, field and what would be right; empty without a fault.
    const QString &error() const { return m_error; }
    /// Keys that are not used: they may be misspelt.
    const QStringList &warnings() const { return m_warnings; }

private:
    QJsonObject readRoot();
    void warn(const QString &what);

    QString m_path;
    QString m_listKey;
    QFile::Permissions m_permissions;
    QString m_error;
    QStringList m_warnings;
};

} // namespace vms_sdk
