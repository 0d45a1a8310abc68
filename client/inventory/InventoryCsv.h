#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>
#include <QVector>

namespace orda_client {

/// An inventory as a table for spreadsheets: a head line with names of fields of the inventory file
/// (docs/device-protocol.md, section 7) in any order, then a line for each device. UTF-8, "," or ";" between the cells.
/// An empty cell is a field that is not there.
class InventoryCsv
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::InventoryCsv)

public:
    struct Fault
    {
        int line = 1; ///< both counted from 1; of a cell in several lines the first
        int column = 1;
        QString field; ///< the column's name; empty where the fault is not of one field
        QString what; ///< and what would be right, for the user
    };

    struct Content
    {
        QList<vms_sdk::DevInfo> devices; ///< in the order of the lines; empty when there are faults
        QVector<Fault> faults; ///< all of them, by line and column
        QStringList unusedColumns; ///< names that are no fields
    };
    /// Blanks around texts go away, but for user names and passwords.
    static Content read(const QByteArray &content);

    enum class Passwords
    {
        Without,
        With
    };
    /// What read() reads back to the same devices; without passwords but for these. Cells that a spreadsheet would take
    /// for formulas get an apostrophe in front, which read() takes away.
    static QByteArray text(const QList<vms_sdk::DevInfo> &devices, Passwords passwords);
};

} // namespace orda_client
