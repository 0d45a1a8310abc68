#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace orda_client {

/// What a table says of a device itself: the columns by which people know it. Texts as the inventory has them.
struct DeviceCells
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::DeviceCells)

public:
    enum Column
    {
        Name,
        SerialNumber,
        Address,
        Group,
        Count
    };

    /// As the store has it now; of a device that is unknown there only the id. GUI thread.
    static DeviceCells of(const QString &devId);
    static QStringList titles();

    QString text(int column) const;
    /// "Gate (SN-0001)", or what is known of it.
    QString shownName() const;

    QString devId, name, serialNumber, ip, group;
};

} // namespace orda_client
