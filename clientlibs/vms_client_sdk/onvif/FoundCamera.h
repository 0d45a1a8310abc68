#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/Export.h>

#include <QList>
#include <QSet>
#include <QString>
#include <QUrl>

namespace vms_sdk {

/// A camera that has answered a search. All texts are the camera's own: not safe to print, and nobody has proved
/// anything.
struct VMS_CLIENT_SDK_EXPORT FoundCamera
{
    QString endpoint; ///< its own name for itself, such as "urn:uuid:…": the same in all its answers
    QString name, hardware, location; ///< from the scopes, decoded; may be empty
    QList<QUrl> addresses; ///< of its device service, as it says them, those at the sender first; http or https, at
                           ///< least one
    QString sender; ///< IP address that the answer came from

    /// Whether the first address is where the answer came from. Any other may be anybody's.
    bool isAtSender() const;
};

/// A camera as an inventory has it, by its first address: without an account, a serial number and a fingerprint, which
/// no answer proves.
/// @param takenIds those of other devices; the new one's, made of the address, is added
VMS_CLIENT_SDK_EXPORT DevInfo toDevInfo(const FoundCamera &camera, QSet<QString> *takenIds);

/// Host and port of an address, by which it is known that two are of one device.
VMS_CLIENT_SDK_EXPORT QString hostAndPort(const QUrl &address);

} // namespace vms_sdk

Q_DECLARE_METATYPE(vms_sdk::FoundCamera)
