#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QCoreApplication>
#include <QMultiHash>
#include <QStringList>
#include <QVector>

namespace orda_client {

/// Finds the devices that a list names, as people paste or load one: by serial number, id, address ("10.0.0.1",
/// "10.0.0.1:8080" or the whole address of one that has no IP address) or name. A text must be the whole of one of
/// these; capitals count, but in names. A text that fits several devices, by whatever, stands for none of them.
class DeviceLookup
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::DeviceLookup)

public:
    struct Ambiguous
    {
        QString text;
        QStringList devIds; ///< all devices that it fits
    };
    /// Every text of the list is in one of these.
    struct Found
    {
        QStringList devIds; ///< each once, in the order of the list
        QStringList unknown; ///< texts that fit no device
        QVector<Ambiguous> ambiguous;
        QStringList repeated; ///< texts for a device that was named before
        QString error; ///< why the list cannot be read, for the user; then nothing was looked up
    };

    explicit DeviceLookup(const QList<vms_sdk::DevInfo> &devices);

    /// @param list texts on lines of their own, or with commas, semicolons or tabs between them; one in quotation marks
    /// may contain these, and a quotation mark written twice. A line that is as a whole one of the texts that a device
    /// is known by is not taken apart.
    /// @param firstColumnOnly it is a table, of which the first cell of each row names a device. What stands between
    /// its cells is seen from the first line: tabs, else semicolons, else commas.
    Found find(const QString &list, bool firstColumnOnly) const;

private:
    /// A row of the list.
    struct Line
    {
        QString whole; ///< as it is written
        QStringList cells;
    };
    class Reader;
    class Taking;

    QStringList devicesBy(const QString &text) const;
    QStringList devicesByCell(const QString &cell) const;

    QMultiHash<QString, QString> m_ids; // device ids by serial number, id and address
    QMultiHash<QString, QString> m_idsByName; // without capitals
};

} // namespace orda_client
