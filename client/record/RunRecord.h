#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace orda_client {

/// The outcome of one device, as a run's record has it.
struct RunEntry
{
    /// In the order in which an operator wants to see them.
    enum Outcome
    {
        Failed,
        Unreadable,
        Succeeded
    };

    Outcome outcome = Unreadable;
    QString time; ///< local, "yyyy-MM-dd hh:mm:ss"
    QString serialNumber, ip, name; ///< any of them may be empty
    QString message; ///< the result; of an unreadable entry its whole text, and the other fields are empty

    bool operator==(const RunEntry &other) const;
};

/// Failures that have one message, or all entries that cannot be read.
struct FailureGroup
{
    RunEntry::Outcome outcome = RunEntry::Failed; ///< never Succeeded
    QString message; ///< empty for unreadable entries
    int count = 0;
};

/// Reads a record: one entry for each device, in the order of the text. An entry is the time, the serial number, the IP
/// address (in a column of 16 characters, wider only where it is longer), the result and the device's name, with 4
/// blanks in between but 16 before the name, and ends with an empty line. The fields are free texts, which may contain
/// such gaps themselves; the address, or the empty column of a device without one, tells where the others begin and
/// end. No text is dropped: what cannot be read becomes an unreadable entry. A success becomes one too when it could
/// also be read in another way, because a field looks like a part of an entry or like an entry of another time.
/// @param successTexts results of devices that were configured; any other is a failure
/// @param lastTime no entry is later; empty when that is not known
QVector<RunEntry> parseRunRecord(const QString &text, const QStringList &successTexts, const QString &lastTime = {});
/// The same for a record whose writer has told where the entries end, in bytes: then no field is taken for an entry,
/// whatever it contains. Ends that do not fit this record are ignored.
QVector<RunEntry> parseRunRecord(const QByteArray &record, const QVector<int> &ends, const QStringList &successTexts,
                                 const QString &lastTime = {});

/// The module's text for a device that was configured, in all its languages: the record may have been written before
/// the language was changed.
QStringList successTexts();

/// The largest group first, equal ones by their message.
QVector<FailureGroup> groupFailures(const QVector<RunEntry> &entries);

} // namespace orda_client
