#pragma once

#include <QString>

namespace vms_sdk {

/// State of a device. The module uses the last two names, and asks BaseTools::isDevOnline() which states mean that
/// requests reach the device. The numbers are free, and a client may have more.
enum DevStatus
{
    DevOffline = 0,
    DevDefaultPassword = 5, ///< online, still with its factory password
    DevLocked = 6 ///< online, locked against changes of its password
};

/// One device. Copied often; an unknown device is the record with an empty id. A client may have more members.
struct DevInfo
{
    QString id; ///< unique; the same device keeps it
    QString name; ///< as the operator calls it; where it is empty, the list shows the serial number
    QString serialNumber;
    QString ip; ///< as text; empty for a device without an address of its own
    quint32 ipNumber = 0; ///< the same address in host byte order, for sorting
    QString password; ///< only its strength is looked at
    int accessCode = 0; ///< 1: this client reaches the device itself; others are not listed
    int kindCode = 0; ///< 1: camera, 6: recorder; others are not listed
};

} // namespace vms_sdk
