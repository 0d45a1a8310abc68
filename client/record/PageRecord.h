#pragma once

#include "client/record/RecordFile.h"
#include "client/record/RunRecord.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

struct Family;

/// What a page of the form tells about the record of its last run in this process.
struct PageRecord
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::PageRecord)

public:
    QString inUse; ///< who was using the record when Configure was pressed last, so that nothing was done; else empty
    QString error; ///< why the record is missing or not whole; empty when it is whole, and when there was no run
    QVector<int> entryEnds; ///< where each entry ends in the file, in bytes; empty while a run goes on

    /// @param form the batch-configuration form, or a window that has it
    static PageRecord of(const QWidget *form, const Family &family);

    /// The run has written nothing: what is in the file is older.
    bool isMissing() const { return !error.isEmpty() && entryEnds.isEmpty(); }
    /// The error as a sentence for the user; empty without one.
    QString complaint() const;

    bool operator==(const PageRecord &other) const;
};

/// A family's record: what is on the disk, and what the page tells about it.
struct FamilyRecord
{
    const Family *family;
    RecordFile::State state;
    PageRecord page;

    /// The results of the family's last run. @param error why there are none, for the user; else empty
    QVector<RunEntry> read(QString *error) const;
    bool operator!=(const FamilyRecord &other) const;
};

/// The records that exist or should exist. Those that may be read come first, and among them the newest.
/// @param also a family that is listed in any case; may be null
QVector<FamilyRecord> familyRecords(const QWidget *form, const Family *also);

} // namespace orda_client
