#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/Export.h>

#include <QJsonObject>
#include <QStringList>

namespace vms_sdk {

/// The devices of a site as read from a file. Either an error and no devices, or devices in the order of the file.
struct Inventory
{
    QList<DevInfo> devices;
    QStringList warnings; ///< for the operator, a printable line each: keys that are not used
    QString error; ///< for the operator: a printable line with file, entry, field and what
                   ///< would be right; empty on success
};

/// Reads an inventory file (docs/device-protocol.md, "The inventory file"). All or nothing: the first wrong entry
/// refuses the file. Refused as well when it holds passwords and others than its owner may read or change it.
VMS_CLIENT_SDK_EXPORT Inventory readInventory(const QString &path);

/// The content of an inventory file that readInventory() reads back to the same records.
VMS_CLIENT_SDK_EXPORT QJsonObject inventoryToJson(const QList<DevInfo> &devices);

/// Writes an inventory file, replacing one that is there at once and as a whole; readable by its owner only, for it
/// holds passwords. Returns an error text for the operator, empty on success.
VMS_CLIENT_SDK_EXPORT QString writeInventory(const QString &path, const QList<DevInfo> &devices);

} // namespace vms_sdk
