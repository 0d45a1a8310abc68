#pragma once

#include <vms_client_sdk/Export.h>

#include <QList>
#include <QMetaType>
#include <QString>

namespace vms_sdk {

/// State of a device as the SDK sees it. 1, 5 and 6 count as online: there is a connection, and requests reach the
/// device. The numbers of the online states are the ones that devices report themselves (docs/device-protocol.md).
enum DevStatus
{
    DevOffline = 0,
    DevOnline = 1,
    DevConnecting = 2, ///< being dialled or signing on
    DevRefused = 3, ///< the sign-on failed; not tried again until the record changes or the operator asks for it
    DevDefaultPassword = 5, ///< online, still with its factory password
    DevLocked = 6 ///< online, locked against changes of its password
};

/// True for the three online states.
VMS_CLIENT_SDK_EXPORT bool isOnlineStatus(DevStatus status);

/// How a device is spoken to.
enum class DevProtocol
{
    Vms, ///< our own: docs/device-protocol.md
    Onvif ///< docs/onvif.md
};

/// One device of the site. Plain data; an unknown device is the record with an empty id.
struct DevInfo
{
    QString id; ///< key of everything, never empty for a real device
    QString name; ///< as the operator calls it, may be empty
    QString serialNumber; ///< what the device must say at sign-on; empty: any is taken
                          ///< (an ONVIF device's own is filled in when it has signed on)
    QString ip; ///< IPv4 text; empty for devices that are reached through a relay only
    quint32 ipNumber = 0; ///< the same address as a number in host byte order, for sorting; 0 without one
    quint16 port = 0;
    QString userName;
    QString password; ///< never sent, never logged
    int accessCode = 0; ///< 1: reached directly by this SDK
    int kindCode = 0; ///< 1: camera, 6: recorder
    QString group; ///< such as its place at the site, to select devices by; may be empty
    DevProtocol protocol = DevProtocol::Vms;
    QString path = QStringLiteral("/"); ///< of the WebSocket address, or of the device service of ONVIF
    bool tls = false; ///< wss:// instead of ws://, https:// instead of http://
    QString url; ///< dialled instead of ip, port, path and tls where it is given
    QString
        fingerprint; ///< SHA-256 of the device's certificate, hexadecimal with or without colons; empty: the CAs decide
};

VMS_CLIENT_SDK_EXPORT bool operator==(const DevInfo &a, const DevInfo &b);
inline bool operator!=(const DevInfo &a, const DevInfo &b)
{
    return !(a == b);
}

} // namespace vms_sdk

Q_DECLARE_METATYPE(vms_sdk::DevStatus)
Q_DECLARE_METATYPE(vms_sdk::DevInfo)
Q_DECLARE_METATYPE(QList<vms_sdk::DevInfo>)
