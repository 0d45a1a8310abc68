#pragma once

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
};

} // namespace orda_client
