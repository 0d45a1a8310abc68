#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/Export.h>

#include <QJsonObject>
#include <QVector>

namespace vms_sdk {

/// Entries of an inventory that do not come from an inventory file, such as the lines of a table.
struct InventoryEntries
{
    struct Entry
    {
        QString name; ///< as messages about other entries call it, such as "line 3"
        QJsonObject fields; ///< those of the inventory file; others are not looked at
    };

    struct Fault
    {
        int entry = 0; ///< index
        QString field;
        QString whatIsRight; ///< for the user, such as "must not be empty"; texts of the entries may be quoted in it
    };

    QList<DevInfo> devices; ///< in the order of the entries; empty when there are faults
    QVector<Fault> faults; ///< all of them, by entries in their order; one of each field
};

/// Looks at the entries as readInventory() does.
VMS_CLIENT_SDK_EXPORT InventoryEntries checkInventoryEntries(const QVector<InventoryEntries::Entry> &entries);

} // namespace vms_sdk
