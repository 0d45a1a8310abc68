#pragma once

#include <vms_client_sdk/Export.h>

#include <QString>

/// Texts that come from devices, inventories and other files. They may contain characters that a terminal takes for
/// commands, that change the reading direction of the words beside them, or that nobody sees.
namespace vms_sdk {

/// Control characters and line breaks.
VMS_CLIENT_SDK_EXPORT bool holdsControls(const QString &text);

/// Controls, and characters that are not drawn: zero-width ones, marks of the reading direction, halves of a surrogate
/// pair. Two texts that differ only in these look the same.
VMS_CLIENT_SDK_EXPORT bool holdsInvisible(const QString &text);

/// For logs and terminals: each such character as its number, "\u202e", but for those in @p kept.
VMS_CLIENT_SDK_EXPORT QString escaped(const QString &text, const QString &kept = {});

/// For windows: each such character as U+FFFD, the sign for what cannot be shown, but for those in @p kept.
VMS_CLIENT_SDK_EXPORT QString displayText(const QString &text, const QString &kept = {});

} // namespace vms_sdk
